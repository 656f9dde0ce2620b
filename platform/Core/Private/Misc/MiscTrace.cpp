#include "ProfilingDebugging/MiscTrace.h"

DEFINE_LOG_CATEGORY(LogTrace);

void FMiscTrace::OutputBookmark(const TCHAR* Name)
{
	UE_LOG(LogTrace, VeryVerbose, TEXT("%s"), Name);
}
