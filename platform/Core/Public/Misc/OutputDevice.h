#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** Something that takes log lines: those of the global log once it is added to it, or those of an operation that it is given to. */
class CORE_API FOutputDevice
{
public:
	FOutputDevice() = default;
	virtual ~FOutputDevice() = default;
	UE_NONCOPYABLE(FOutputDevice)

	/** @param Message one line, without its end */
	virtual void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	/** The format and its arguments are those of FString::Printf. */
	template <typename... ArgTypes>
	void Logf(ELogVerbosity::Type Verbosity, const TCHAR* Format, ArgTypes... Args)
	{
		Serialize(*FString::Printf(Format, Args...), Verbosity, TEXT("LogGeneral"));
	}
	virtual void Flush() {}
	/** When false, lines of other threads come on the game thread, in the next frame at the latest. */
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }
};
