#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** Something that takes log lines, once it is added to the global log. */
class CORE_API FOutputDevice
{
public:
	FOutputDevice() = default;
	virtual ~FOutputDevice() = default;
	UE_NONCOPYABLE(FOutputDevice)

	/** @param Message one line, without its end */
	virtual void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	virtual void Flush() {}
	/** When false, lines of other threads come on the game thread, in the next frame at the latest. */
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }
};
