#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"

struct CORE_API FMsg
{
	/** Gives one line to every output device; a Fatal one then ends the process. Any thread. */
	static void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message);
};

/** The format and its arguments are those of FString::Printf; they are looked at only when the category lets the line through. */
#define UE_LOG(CategoryName, Verbosity, Format, ...)                                                                                       \
	do                                                                                                                                     \
	{                                                                                                                                      \
		if (!(CategoryName).IsSuppressed(ELogVerbosity::Verbosity))                                                                        \
		{                                                                                                                                  \
			FMsg::Log((CategoryName).GetCategoryName(), ELogVerbosity::Verbosity, *FString::Printf(Format __VA_OPT__(, ) __VA_ARGS__));    \
		}                                                                                                                                  \
	} while (false)

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                  \
	extern struct FLogCategory##CategoryName : FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>          \
	{                                                                                                                                      \
		FLogCategory##CategoryName()                                                                                                       \
			: FLogCategory(TEXT(#CategoryName))                                                                                            \
		{                                                                                                                                  \
		}                                                                                                                                  \
	} CategoryName

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

/** For a category that one source file has to itself. */
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)                                                   \
	static struct FLogCategory##CategoryName : FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity>          \
	{                                                                                                                                      \
		FLogCategory##CategoryName()                                                                                                       \
			: FLogCategory(TEXT(#CategoryName))                                                                                            \
		{                                                                                                                                  \
		}                                                                                                                                  \
	} CategoryName

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
