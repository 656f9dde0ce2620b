#pragma once

#include "HAL/CriticalSection.h"

/** Holds a lock for the length of a scope. */
class FScopeLock
{
public:
	explicit FScopeLock(FCriticalSection* InSection)
		: Section(InSection)
	{
		Section->Lock();
	}
	~FScopeLock() { Section->Unlock(); }
	UE_NONCOPYABLE(FScopeLock)

private:
	FCriticalSection* Section;
};
