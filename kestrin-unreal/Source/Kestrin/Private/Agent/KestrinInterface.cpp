#include "Agent/KestrinInterface.h"

#include "Agent/Agent.h"

const FLinearColor FKestrinInterface::UserColor(0.25882354f, 0.52156866f, 0.95686275f, 1.0f);
const FLinearColor FKestrinInterface::KestrinColor(0.9764706f, 0.6117647f, 0.22352941f, 1.0f);
const FLinearColor FKestrinInterface::MessageColor(1.0f, 1.0f, 1.0f, 0.0f);
const float FKestrinInterface::UserFontSize = 10.0f;
const float FKestrinInterface::KestrinFontSize = 10.0f;
const float FKestrinInterface::MessageFontSize = 8.0f;
const FName FKestrinInterface::RegularFontName(TEXT("Regular"));
const FName FKestrinInterface::BoldFontName(TEXT("Bold"));
const FName FKestrinInterface::ItalicFontName(TEXT("Italic"));

FKestrinInterface& FKestrinInterface::Get()
{
	static FKestrinInterface Instance;
	return Instance;
}

void FKestrinInterface::Initialize()
{
	if (bInitialized)
	{
		return;
	}
	bInitialized = true;
	bPluginEnabled = true;
	PrepareLogs();
	OnInitialized.Broadcast();
}

void FKestrinInterface::Shutdown()
{
	if (!bInitialized)
	{
		return;
	}
	if (bPluginEnabled)
	{
		bPluginEnabled = false;
		OnPluginEnabledChanged.Broadcast(false);
	}
	FAgent::Get().RequestCancel(FString());
	bInitialized = false;
}

FString FKestrinInterface::GetVersion() const
{
	return TEXT("1.0.0");
}

void FKestrinInterface::InitialRequest(const FString& Prompt)
{
	if (FAgent::Get().GetState() == EAgentState::Idle)
	{
		const FInitialRequestData Data(Prompt);
		FAgent::Get().SetState(EAgentState::InitialRequest, &Data);
	}
}

void FKestrinInterface::RegularRequest(const FString& Prompt)
{
	if (FAgent::Get().GetState() == EAgentState::AwaitingUpdate)
	{
		const FRegularRequestData Data(Prompt);
		FAgent::Get().SetState(EAgentState::RegularRequest, &Data);
	}
}

void FKestrinInterface::Approve()
{
	if (FAgent::Get().GetState() == EAgentState::AwaitingApproval)
	{
		FAgent::Get().SetState(EAgentState::Approved);
	}
}

void FKestrinInterface::Continue(FString Input)
{
	const FRegularRequestData Data(Input);
	FAgent::Get().SetState(EAgentState::Continue, &Data);
}

void FKestrinInterface::PauseRequest()
{
	FAgent::Get().SetPauseRequested(true);
}

void FKestrinInterface::CancelRequest(const FString& Reason)
{
	FAgent::Get().RequestCancel(Reason);
}

void FKestrinInterface::EndRequest(const FString& Reason)
{
	FAgent::Get().RequestEnd(Reason);
}

void FKestrinInterface::OnAddStatusMessage(const FString& Message, const FLinearColor& Color, const FName& FontName, float FontSize)
{
	OnAddStatusMessageDelegate.ExecuteIfBound(Message, Color, FontName, FontSize);
}

void FKestrinInterface::OnAddDiffMessage(const FString& FilePath, const FString& OldContent, const FString& NewContent)
{
	OnAddDiffMessageDelegate.ExecuteIfBound(FilePath, OldContent, NewContent);
}
