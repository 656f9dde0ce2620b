#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"

#include <algorithm>
#include <cstdlib>

DEFINE_LOG_CATEGORY(LogTemp);

FLogCategoryBase::FLogCategoryBase(const TCHAR* Name, ELogVerbosity::Type DefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Verbosity(std::min(DefaultVerbosity, InCompileTimeVerbosity))
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryName(Name)
{
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	Verbosity.store(std::min(NewVerbosity, CompileTimeVerbosity), std::memory_order_relaxed);
}

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	static const TCHAR* const Names[] = { TEXT("NoLogging"), TEXT("Fatal"), TEXT("Error"), TEXT("Warning"), TEXT("Display"), TEXT("Log"),
		TEXT("Verbose"), TEXT("VeryVerbose") };
	return Names[Verbosity];
}

void FMsg::Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message)
{
	GetGlobalLogSingleton()->Serialize(Message, Verbosity, Category);
	if (Verbosity == ELogVerbosity::Fatal)
	{
		GetGlobalLogSingleton()->Flush();
		std::abort();
	}
}
