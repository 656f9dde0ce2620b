#include "CoreHost/MainLoop.h"

#include "Async/GameThreadTasks.h"
#include "Containers/Ticker.h"
#include "CoreHost/Clock.h"
#include "Misc/CoreDelegates.h"
#include "Misc/OutputDeviceRedirector.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace
{
/** In seconds; for those elements that are to be called every frame. */
constexpr double LongestFrame = 0.016;
/** A manual clock moves at least this far, so that rounding never makes it stand before a due time. */
constexpr double ShortestStep = 1e-6;

/** When the last frame was, by the platform's clock. */
double LastFrame = FHostClock::Seconds();

std::mutex WakeLock;
std::condition_variable WakeSignal;
bool bWoken = false;

/** @return whether the loop was woken, now or since the last sleep */
bool Sleep(double RealSeconds)
{
	std::unique_lock Guard(WakeLock);
	WakeSignal.wait_for(Guard, std::chrono::duration<double>(std::max(RealSeconds, 0.0)), [] { return bWoken; });
	return std::exchange(bWoken, false);
}
}

/** By the platform's clock, from now on; not below 0. */
double FMainLoop::SecondsUntilDue()
{
	return std::max(LastFrame + FTSTicker::GetCoreTicker().GetSecondsUntilDue() - FHostClock::Seconds(), 0.0);
}

void FMainLoop::Tick()
{
	const double Now = FHostClock::Seconds();
	const float DeltaTime = static_cast<float>(Now - LastFrame);
	LastFrame = Now;
	GLog->FlushThreadedLogs();
	FCoreDelegates::OnBeginFrame.Broadcast();
	FGameThreadTasks::Get().Run();
	FTSTicker::GetCoreTicker().Tick(DeltaTime);
}

void FMainLoop::Wait()
{
	Sleep(std::min(SecondsUntilDue() / FHostClock::GetRate(), LongestFrame));
}

void FMainLoop::Wake()
{
	{
		std::lock_guard Guard(WakeLock);
		bWoken = true;
	}
	WakeSignal.notify_one();
}

void FMainLoop::RunFor(double PlatformSeconds)
{
	const double End = FHostClock::Seconds() + PlatformSeconds;
	Tick();
	for (double Left = PlatformSeconds; Left > 0.0; Left = End - FHostClock::Seconds())
	{
		if (FHostClock::IsManual())
		{
			// What woke the loop waits for a frame, as it would on a clock that runs.
			const double Longest = Sleep(0.0) ? LongestFrame : Left;
			FHostClock::Advance(std::max(std::min({ Left, SecondsUntilDue(), Longest }), ShortestStep));
		}
		else
		{
			Sleep(std::min(std::min(Left, SecondsUntilDue()) / FHostClock::GetRate(), LongestFrame));
		}
		Tick();
	}
}

bool FMainLoop::RunUntil(TFunctionRef<bool()> Done, double RealSeconds)
{
	const auto End = std::chrono::steady_clock::now() + std::chrono::duration<double>(RealSeconds);
	Tick();
	while (!Done())
	{
		if (std::chrono::steady_clock::now() >= End)
		{
			return false;
		}
		Wait();
		Tick();
	}
	return true;
}
