#include "Misc/OutputDeviceRedirector.h"

#include "Containers/StringConv.h"
#include "CoreGlobals.h"
#include "Misc/ScopeLock.h"

#include <algorithm>
#include <cstdio>

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	// Never destroyed: static objects log while the process ends.
	static FOutputDeviceRedirector* const Log = new FOutputDeviceRedirector;
	return Log;
}

FOutputDeviceRedirector* GetGlobalLogSingleton()
{
	return FOutputDeviceRedirector::Get();
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	FScopeLock Lock(&DevicesLock);
	if (!IsRedirectingTo(OutputDevice))
	{
		Devices.push_back(OutputDevice);
	}
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	FScopeLock Lock(&DevicesLock);
	std::erase(Devices, OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(const FOutputDevice* OutputDevice) const
{
	return std::find(Devices.begin(), Devices.end(), OutputDevice) != Devices.end();
}

void FOutputDeviceRedirector::EnableBacklog(bool bEnable)
{
	FScopeLock Lock(&BacklogLock);
	bBacklogEnabled = bEnable;
	Backlog.clear();
}

void FOutputDeviceRedirector::SerializeBacklog(FOutputDevice* OutputDevice)
{
	std::vector<FLine> Lines;
	{
		FScopeLock Lock(&BacklogLock);
		Lines = Backlog;
	}
	for (const FLine& Line : Lines)
	{
		OutputDevice->Serialize(*Line.Message, Line.Verbosity, Line.Category);
	}
}

void FOutputDeviceRedirector::Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	{
		FScopeLock Lock(&BacklogLock);
		if (bBacklogEnabled)
		{
			Backlog.push_back({ FString(Message), Verbosity, Category });
		}
	}
	if (IsInGameThread())
	{
		FlushThreadedLogs();
		Deliver(Message, Verbosity, Category, false);
	}
	else
	{
		FScopeLock Lock(&WaitingLock);
		Waiting.push_back({ FString(Message), Verbosity, Category });
	}
	Deliver(Message, Verbosity, Category, true);
}

void FOutputDeviceRedirector::Deliver(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category, bool bToMultipleThreads)
{
	FScopeLock Lock(&DevicesLock);
	if (Devices.empty() && Verbosity == ELogVerbosity::Fatal && bToMultipleThreads)
	{
		// The last words of a program that has no log yet.
		std::fprintf(stderr, "Fatal: %s\n", TCHAR_TO_UTF8(Message));
	}
	const std::vector<FOutputDevice*> Addressed = Devices;
	for (FOutputDevice* Device : Addressed)
	{
		if (IsRedirectingTo(Device) && Device->CanBeUsedOnMultipleThreads() == bToMultipleThreads)
		{
			Device->Serialize(Message, Verbosity, Category);
		}
	}
}

void FOutputDeviceRedirector::FlushThreadedLogs()
{
	std::vector<FLine> Lines;
	{
		FScopeLock Lock(&WaitingLock);
		Lines.swap(Waiting);
	}
	for (const FLine& Line : Lines)
	{
		Deliver(*Line.Message, Line.Verbosity, Line.Category, false);
	}
}

void FOutputDeviceRedirector::Flush()
{
	if (IsInGameThread())
	{
		FlushThreadedLogs();
	}
	FScopeLock Lock(&DevicesLock);
	for (FOutputDevice* Device : Devices)
	{
		Device->Flush();
	}
}
