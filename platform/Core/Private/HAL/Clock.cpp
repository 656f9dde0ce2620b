#include "CoreHost/Clock.h"

#include "HAL/PlatformProcess.h"
#include "HAL/PlatformTime.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <thread>

namespace
{
double RealSeconds()
{
	return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/** A date and the moment of the platform's clock at which it was set. */
struct FSetDate
{
	FDateTime Date;
	double Moment;
};

/** The clock shows Base at the real time RealBase and runs on from there. */
struct FClockState
{
	double Base = RealSeconds();
	double RealBase = Base;
	double Rate = 1.0;
	bool bManual = false;
	std::optional<FSetDate> SetDate;

	double Seconds() const { return bManual ? Base : Base + (RealSeconds() - RealBase) * Rate; }
	void Rebase()
	{
		Base = Seconds();
		RealBase = RealSeconds();
	}
};

std::mutex Lock;

FClockState& State()
{
	static FClockState Instance;
	return Instance;
}
}

void FHostClock::SetRate(double Rate)
{
	check(Rate > 0.0);
	std::lock_guard Guard(Lock);
	State().Rebase();
	State().Rate = Rate;
}

double FHostClock::GetRate()
{
	std::lock_guard Guard(Lock);
	return State().Rate;
}

void FHostClock::SetManual(bool bManual)
{
	std::lock_guard Guard(Lock);
	State().Rebase();
	State().bManual = bManual;
}

bool FHostClock::IsManual()
{
	std::lock_guard Guard(Lock);
	return State().bManual;
}

void FHostClock::Advance(double Seconds)
{
	std::lock_guard Guard(Lock);
	check(State().bManual && Seconds >= 0.0);
	State().Base += Seconds;
}

void FHostClock::SetDate(FDateTime Utc)
{
	std::lock_guard Guard(Lock);
	State().SetDate = { Utc, State().Seconds() };
}

void FHostClock::ClearDate()
{
	std::lock_guard Guard(Lock);
	State().SetDate.reset();
}

double FHostClock::Seconds()
{
	std::lock_guard Guard(Lock);
	return State().Seconds();
}

FDateTime FHostClock::UtcNow()
{
	std::lock_guard Guard(Lock);
	if (const std::optional<FSetDate>& Set = State().SetDate)
	{
		return Set->Date + FTimespan::FromSeconds(State().Seconds() - Set->Moment);
	}
	using FTicks = std::chrono::duration<int64, std::ratio<1, ETimespan::TicksPerSecond>>;
	const auto SinceEpoch = std::chrono::duration_cast<FTicks>(std::chrono::system_clock::now().time_since_epoch());
	return FDateTime::FromUnixTimestamp(0) + FTimespan(SinceEpoch.count());
}

double FPlatformTime::Seconds()
{
	return FHostClock::Seconds();
}

void FPlatformProcess::Sleep(float Seconds)
{
	std::this_thread::sleep_for(std::chrono::duration<double>(Seconds / FHostClock::GetRate()));
}
