#pragma once

#include "Containers/UnrealString.h"
#include "HAL/CriticalSection.h"
#include "Misc/OutputDevice.h"

#include <vector>

/** The global log: hands every line to the devices added to it. Any thread, except where told. */
class CORE_API FOutputDeviceRedirector final : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	/** Does not own the device, which is to be removed before it goes. */
	void AddOutputDevice(FOutputDevice* OutputDevice);
	/** Afterwards the device gets no further line; waits for one that another thread is giving to it. */
	void RemoveOutputDevice(FOutputDevice* OutputDevice);

	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override;
	void Flush() override;
	bool CanBeUsedOnMultipleThreads() const override { return true; }
	/** Gives the devices of the game thread what other threads have logged. Game thread. */
	void FlushThreadedLogs();

	/** Keeps lines for a device that comes later, from now on; false drops those that were kept. */
	void EnableBacklog(bool bEnable);
	/** Gives a device the lines that are kept, the oldest first. */
	void SerializeBacklog(FOutputDevice* OutputDevice);

private:
	struct FLine
	{
		FString Message;
		ELogVerbosity::Type Verbosity;
		FName Category;
	};

	void Deliver(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category, bool bToMultipleThreads);
	bool IsRedirectingTo(const FOutputDevice* OutputDevice) const;

	/** Held while a device takes a line; a device may log, add and remove devices meanwhile. */
	FCriticalSection DevicesLock;
	std::vector<FOutputDevice*> Devices;
	FCriticalSection WaitingLock;
	std::vector<FLine> Waiting;
	FCriticalSection BacklogLock;
	bool bBacklogEnabled = false;
	std::vector<FLine> Backlog;
};

CORE_API FOutputDeviceRedirector* GetGlobalLogSingleton();
#define GLog GetGlobalLogSingleton()
