#include "Async/Async.h"
#include "Containers/Ticker.h"
#include "HAL/PlatformTime.h"
#include "TestSupport.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace
{
using FHandle = FTSTicker::FDelegateHandle;

/** Adds an element that counts its calls and ends after so many. */
FHandle AddCounter(FTSTicker& Ticker, float Delay, int32& Calls, int32 Last = 1000)
{
	return Ticker.AddTicker(TEXT("counter"), Delay, [&Calls, Last](float) { return ++Calls < Last; });
}

TEST(Ticker, CallsAfterTheDelayAndOncePerTickAtMost)
{
	FTSTicker Ticker;
	int32 Every = 0;
	int32 Slow = 0;
	AddCounter(Ticker, 0.0f, Every);
	AddCounter(Ticker, 1.0f, Slow);
	const struct
	{
		float Step;
		int32 Every, Slow;
	} Steps[] = { { 0.5f, 1, 0 }, { 0.5f, 2, 1 }, { 0.75f, 3, 1 }, { 5.0f, 4, 2 }, { 0.5f, 5, 2 }, { 0.5f, 6, 3 } };
	for (const auto& Step : Steps)
	{
		Ticker.Tick(Step.Step);
		EXPECT_EQ(Every, Step.Every);
		EXPECT_EQ(Slow, Step.Slow);
	}
}

TEST(Ticker, FalseEndsAnElementAndItsHandle)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	FHandle Handle = AddCounter(Ticker, 0.0f, Calls, 2);
	Ticker.Tick(0.1f);
	EXPECT_TRUE(Handle.IsValid());
	Ticker.Tick(0.1f);
	EXPECT_FALSE(Handle.IsValid());
	Ticker.Tick(0.1f);
	EXPECT_EQ(Calls, 2);
	FTSTicker::RemoveTicker(Handle);
	FTSTicker::RemoveTicker(FHandle());
}

TEST(Ticker, ElementsMayAddAndRemoveWhileTheyAreCalled)
{
	FTSTicker Ticker;
	FString Calls;
	FHandle Self;
	FHandle Later;
	Self = Ticker.AddTicker(TEXT("first"), 0.0f,
		[&](float)
		{
		Calls += TEXT("a");
		FTSTicker::RemoveTicker(Self);
		FTSTicker::RemoveTicker(Later);
		Ticker.AddTicker(TEXT("added"), 0.0f,
			[&](float)
			{
			Calls += TEXT("c");
			return false;
		});
		return true;
	});
	Later = Ticker.AddTicker(TEXT("removed"), 0.0f,
		[&](float)
		{
		Calls += TEXT("b");
		return true;
	});
	Ticker.Tick(0.1f);
	EXPECT_EQ(Calls, FString(TEXT("a")));
	Ticker.Tick(0.1f);
	Ticker.Tick(0.1f);
	EXPECT_EQ(Calls, FString(TEXT("ac")));
}

TEST(Ticker, ADeadObjectsElementEnds)
{
	struct FOwner : TSharedFromThis<FOwner>
	{
		bool OnTick(float) { return ++Calls > 0; }
		int32 Calls = 0;
	};
	FTSTicker Ticker;
	TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
	const FHandle Handle = Ticker.AddTicker(FTickerDelegate::CreateSP(Owner.ToSharedRef(), &FOwner::OnTick));
	Ticker.Tick(0.1f);
	EXPECT_EQ(Owner->Calls, 1);
	Owner.Reset();
	Ticker.Tick(0.1f);
	EXPECT_FALSE(Handle.IsValid());
}

TEST(Ticker, RemovingWaitsForACallOnAnotherThread)
{
	FTSTicker Ticker;
	std::atomic<bool> bInside = false;
	std::atomic<bool> bLeft = false;
	const FHandle Handle = Ticker.AddTicker(TEXT("slow"), 0.0f,
		[&](float)
		{
		bInside = true;
		std::this_thread::sleep_for(std::chrono::milliseconds(50));
		bLeft = true;
		return true;
	});
	std::thread Other([&Ticker] { Ticker.Tick(0.1f); });
	while (!bInside)
	{
		std::this_thread::yield();
	}
	FTSTicker::RemoveTicker(Handle);
	EXPECT_TRUE(bLeft);
	Other.join();
}

TEST(MainLoop, TasksRunInALaterFrameInOrder)
{
	FManualClock Manual;
	FString Order;
	const FGraphEventRef First = FFunctionGraphTask::CreateAndDispatchWhenReady(
		[&Order]
		{
		Order += TEXT("1");
		AsyncTask(ENamedThreads::GameThread, [&Order] { Order += TEXT("3"); });
		},
		TStatId(), nullptr, ENamedThreads::GameThread);
	std::thread(
		[&Order]
		{
		EXPECT_FALSE(IsInGameThread());
		AsyncTask(ENamedThreads::GameThread, [&Order] { Order += IsInGameThread() ? TEXT("2") : TEXT("?"); });
	}).join();
	EXPECT_TRUE(Order.IsEmpty());
	EXPECT_FALSE(First->IsComplete());
	FMainLoop::Tick();
	EXPECT_EQ(Order, FString(TEXT("12")));
	EXPECT_TRUE(First->IsComplete());
	FMainLoop::Tick();
	EXPECT_EQ(Order, FString(TEXT("123")));
}

TEST(MainLoop, AManualClockGoesFromOneDueElementToTheNext)
{
	FManualClock Manual;
	const double Start = FPlatformTime::Seconds();
	std::vector<double> Times;
	const FHandle Handle = FTSTicker::GetCoreTicker().AddTicker(TEXT("test"), 0.1f,
		[&](float)
		{
		Times.push_back(FPlatformTime::Seconds() - Start);
		return true;
	});
	FMainLoop::RunFor(1.05);
	FTSTicker::RemoveTicker(Handle);
	ASSERT_EQ(Times.size(), 10u);
	for (SIZE_T Index = 0; Index < Times.size(); ++Index)
	{
		EXPECT_NEAR(Times[Index], 0.1 * static_cast<double>(Index + 1), 1e-4);
	}
	EXPECT_NEAR(FPlatformTime::Seconds() - Start, 1.05, 1e-4);
}

TEST(MainLoop, AFastClockShortensTheWait)
{
	FMainLoop::Tick();
	FHostClock::SetRate(200.0);
	const auto RealStart = std::chrono::steady_clock::now();
	int32 Calls = 0;
	const FHandle Handle = AddCounter(FTSTicker::GetCoreTicker(), 2.0f, Calls, 1);
	EXPECT_TRUE(FMainLoop::RunUntil([&Calls] { return Calls > 0; }, 10.0));
	FHostClock::SetRate(1.0);
	EXPECT_LT(std::chrono::steady_clock::now() - RealStart, std::chrono::seconds(1));
	FTSTicker::RemoveTicker(Handle);
}

TEST(MainLoop, WakeEndsASleepAndIsNotLost)
{
	bool bDone = false;
	std::thread Other([&bDone] { AsyncTask(ENamedThreads::GameThread, [&bDone] { bDone = true; }); });
	EXPECT_TRUE(FMainLoop::RunUntil([&bDone] { return bDone; }, 10.0));
	Other.join();
	EXPECT_FALSE(FMainLoop::RunUntil([] { return false; }, 0.02));
}

TEST(MainLoop, AnElementThatRunsTheLoopIsNotCalledAgainInside)
{
	FManualClock Manual;
	int32 Calls = 0;
	FTSTicker::GetCoreTicker().AddTicker(TEXT("nesting"), 0.1f,
		[&Calls](float)
		{
		++Calls;
		FMainLoop::RunFor(1.0);
		return false;
	});
	FMainLoop::RunFor(0.2);
	EXPECT_EQ(Calls, 1);
}
}
