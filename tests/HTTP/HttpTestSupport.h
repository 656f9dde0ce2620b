#pragma once

#include "CoreHost/MainLoop.h"
#include "CoreMinimal.h"
#include "HttpModule.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <ostream>

inline void PrintTo(const FString& Text, std::ostream* Out)
{
	*Out << '"' << TCHAR_TO_UTF8(*Text) << '"';
}

/** What a request's delegate was called with. */
struct FCompletion
{
	int32 Calls = 0;
	bool bConnected = false;
	FHttpResponsePtr Response;

	void Watch(IHttpRequest& Request)
	{
		Request.OnProcessRequestComplete().BindLambda(
			[this](FHttpRequestPtr, FHttpResponsePtr InResponse, bool bInConnected)
			{
			EXPECT_TRUE(IsInGameThread());
			++Calls;
			Response = InResponse;
			bConnected = bInConnected;
		});
	}
	bool Wait() const
	{
		return FMainLoop::RunUntil([this] { return Calls > 0; }, 20.0);
	}
};

/** Keeps the text of the log lines of one category while it lives. */
class FCategoryLines final : public FOutputDevice
{
public:
	explicit FCategoryLines(const TCHAR* InCategory)
		: Category(InCategory)
	{
		GLog->AddOutputDevice(this);
	}
	~FCategoryLines() override { GLog->RemoveOutputDevice(this); }
	void Serialize(const TCHAR* Message, ELogVerbosity::Type, const FName& LineCategory) override
	{
		if (LineCategory == Category)
		{
			Lines.Add(Message);
		}
	}

	TArray<FString> Lines;

private:
	FName Category;
};
