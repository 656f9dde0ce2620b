#pragma once

#include "CoreTypes.h"

#include <mutex>

/** A lock that the thread holding it may take again. */
class FCriticalSection
{
public:
	void Lock() { Mutex.lock(); }
	bool TryLock() { return Mutex.try_lock(); }
	void Unlock() { Mutex.unlock(); }

private:
	std::recursive_mutex Mutex;
};
