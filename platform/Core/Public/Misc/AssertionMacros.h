#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** How a broken promise of the program itself is reported; bad input never comes here. */
struct CORE_API FDebug
{
	/** Logs the failure and ends the process. */
	[[noreturn]] static void CheckFailed(const ANSICHAR* Expression, const ANSICHAR* File, int Line, const TCHAR* Message);
	/** Logs the failure as an error and goes on. @return false */
	static bool EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int Line, const TCHAR* Message);
};

#define UE_ASSERT_MESSAGE(...) (*FString::Printf(__VA_ARGS__))
#define check(Expression)                                                                                                                  \
	do                                                                                                                                     \
	{                                                                                                                                      \
		if (!(Expression)) [[unlikely]]                                                                                                    \
			FDebug::CheckFailed(#Expression, __FILE__, __LINE__, TEXT(""));                                                                \
	} while (false)
#define checkf(Expression, ...)                                                                                                            \
	do                                                                                                                                     \
	{                                                                                                                                      \
		if (!(Expression)) [[unlikely]]                                                                                                    \
			FDebug::CheckFailed(#Expression, __FILE__, __LINE__, UE_ASSERT_MESSAGE(__VA_ARGS__));                                          \
	} while (false)
#define checkNoEntry() FDebug::CheckFailed("no entry", __FILE__, __LINE__, TEXT(""))
#define verify(Expression) check(Expression)

// An ensure reports once for each place in the code; its value is the expression's.
#define UE_ENSURE_IMPL(Expression, Message)                                                                                                \
	(static_cast<bool>(Expression) || ([&]() {                                                                                             \
		static bool bReported = false;                                                                                                     \
		if (!bReported)                                                                                                                    \
		{                                                                                                                                  \
			bReported = true;                                                                                                              \
			FDebug::EnsureFailed(#Expression, __FILE__, __LINE__, Message);                                                                \
		}                                                                                                                                  \
		return false;                                                                                                                      \
	}()))
#define ensure(Expression) UE_ENSURE_IMPL(Expression, TEXT(""))
#define ensureMsgf(Expression, ...) UE_ENSURE_IMPL(Expression, UE_ASSERT_MESSAGE(__VA_ARGS__))
