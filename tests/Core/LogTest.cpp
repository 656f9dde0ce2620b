#include "CoreHost/LogDevice.h"
#include "ProfilingDebugging/MiscTrace.h"
#include "TestSupport.h"

#include <gtest/gtest.h>
#include <thread>

DEFINE_LOG_CATEGORY_STATIC(LogCoreTest, Warning, Log);

namespace
{
TEST(Log, CategoriesLetThroughWhatMattersEnough)
{
	FLogLines Log;
	UE_LOG(LogCoreTest, Error, TEXT("100%% of %s"), TEXT("it"));
	UE_LOG(LogCoreTest, Display, TEXT("suppressed"));
	LogCoreTest.SetVerbosity(ELogVerbosity::All);
	UE_LOG(LogCoreTest, Display, TEXT("let through"));
	UE_LOG(LogCoreTest, Verbose, TEXT("not compiled in"));
	LogCoreTest.SetVerbosity(ELogVerbosity::NoLogging);
	UE_LOG(LogCoreTest, Error, TEXT("switched off"));
	LogCoreTest.SetVerbosity(ELogVerbosity::Warning);
	EXPECT_EQ(Log.Lines, (TArray<FString>{ TEXT("LogCoreTest|Error|100% of it"), TEXT("LogCoreTest|Display|let through") }));
}

TEST(Log, LinesOfOtherThreadsComeOnTheGameThread)
{
	FLogLines Log;
	std::thread([] { UE_LOG(LogTemp, Display, TEXT("from afar")); }).join();
	EXPECT_TRUE(Log.Lines.IsEmpty());
	UE_LOG(LogTemp, Display, TEXT("from here"));
	EXPECT_EQ(Log.Lines, (TArray<FString>{ TEXT("LogTemp|Display|from afar"), TEXT("LogTemp|Display|from here") }));
	std::thread([] { UE_LOG(LogTemp, Display, TEXT("again")); }).join();
	FMainLoop::Tick();
	EXPECT_EQ(Log.Lines.Num(), 3);
}

TEST(Log, ADeviceThatComesLaterGetsTheBacklog)
{
	UE_LOG(LogTemp, Display, TEXT("too early"));
	GLog->EnableBacklog(true);
	UE_LOG(LogTemp, Display, TEXT("first"));
	std::thread([] { UE_LOG(LogTemp, Display, TEXT("from afar")); }).join();
	FMainLoop::Tick();
	FLogLines Log;
	GLog->SerializeBacklog(&Log);
	EXPECT_EQ(Log.Lines, (TArray<FString>{ TEXT("LogTemp|Display|first"), TEXT("LogTemp|Display|from afar") }));
	GLog->EnableBacklog(false);
	Log.Lines.Empty();
	GLog->SerializeBacklog(&Log);
	EXPECT_TRUE(Log.Lines.IsEmpty());
}

TEST(Log, DevicesMayLogAndRemoveEachOther)
{
	struct FTalker final : FOutputDevice
	{
		void Serialize(const TCHAR*, ELogVerbosity::Type, const FName& Category) override
		{
			if (Category == FName("LogCoreTest"))
			{
				GLog->RemoveOutputDevice(Other);
				UE_LOG(LogTemp, Display, TEXT("answer"));
			}
		}
		FOutputDevice* Other = nullptr;
	};
	FTalker Talker;
	GLog->AddOutputDevice(&Talker);
	FLogLines Log;
	Talker.Other = &Log;
	UE_LOG(LogCoreTest, Warning, TEXT("question"));
	GLog->RemoveOutputDevice(&Talker);
	EXPECT_TRUE(Log.Lines.IsEmpty());
}

TEST(Log, TheFilesLines)
{
	FTestDirectory Directory;
	FHostClock::SetDate(FDateTime(2026, 1, 31, 12, 0, 0, 123));
	FManualClock Manual;
	FHostClock::SetDate(FDateTime(2026, 1, 31, 12, 0, 0, 123));
	{
		FLogDevice Device(Directory / "log.txt");
		ASSERT_TRUE(Device.IsOpen());
		UE_LOG(LogTemp, Warning, TEXT("Größe"));
		UE_LOG(LogTemp, Log, TEXT("plain"));
		std::thread([] { UE_LOG(LogTemp, Error, TEXT("at once")); }).join();
	}
	UE_LOG(LogTemp, Log, TEXT("after the end"));
	FHostClock::ClearDate();
	EXPECT_EQ(Directory.Read("log.txt"),
		"[2026.01.31-12.00.00:123]LogTemp: Warning: Größe\n"
		"[2026.01.31-12.00.00:123]LogTemp: plain\n"
		"[2026.01.31-12.00.00:123]LogTemp: Error: at once\n");
}

TEST(Log, BookmarksAreForThoseWhoTrace)
{
	FLogLines Log;
	TRACE_BOOKMARK(TEXT("unseen %d"), 1);
	LogTrace.SetVerbosity(ELogVerbosity::VeryVerbose);
	TRACE_BOOKMARK(TEXT("seen %d"), 2);
	LogTrace.SetVerbosity(ELogVerbosity::Log);
	EXPECT_EQ(Log.Lines, (TArray<FString>{ TEXT("LogTrace|VeryVerbose|seen 2") }));
}

TEST(LogDeathTest, AFatalLineEndsTheProcess)
{
	EXPECT_DEATH({ UE_LOG(LogTemp, Fatal, TEXT("the end")); }, "the end");
}
}
