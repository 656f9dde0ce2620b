#pragma once

#include "Logging/LogMacros.h"

/** Traces go to the log: to see them, set this category to VeryVerbose. */
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTrace, Log, All);

struct CORE_API FMiscTrace
{
	/** A moment worth marking, for those who look for where the time goes. */
	static void OutputBookmark(const TCHAR* Name);
};

/** Format and arguments as for FString::Printf; a single test while nobody traces. */
#define TRACE_BOOKMARK(Format, ...)                                                                                                        \
	do                                                                                                                                     \
	{                                                                                                                                      \
		if (!LogTrace.IsSuppressed(ELogVerbosity::VeryVerbose))                                                                            \
		{                                                                                                                                  \
			FMiscTrace::OutputBookmark(*FString::Printf(Format __VA_OPT__(, ) __VA_ARGS__));                                               \
		}                                                                                                                                  \
	} while (false)
