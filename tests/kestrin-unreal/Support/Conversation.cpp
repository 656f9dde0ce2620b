#include "Conversation.h"

#include "Agent/KestrinInterface.h"
#include "CoreHost/Clock.h"
#include "CoreHost/MainLoop.h"
#include "Serialization/JsonSerializer.h"
#include "UObject/Class.h"

namespace
{
std::string LookOf(const FName& FontName)
{
	return FontName == FKestrinInterface::RegularFontName ? "user" : FontName == FKestrinInterface::BoldFontName ? "assistant" : "progress";
}

/** Enters Idle anew from any state, so that nothing of an earlier test is left running. */
void BringToIdle()
{
	FAgent::Get().SetState(EAgentState::Approved);
	FAgent::Get().SetState(EAgentState::Idle);
}
}

FConversation::FConversation(std::string_view ProjectName)
	: Project(ProjectName)
{
	FHostClock::SetManual(true);
	BringToIdle();
	FAgent::Get().ClearToolResults();
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.Initialize();
	Interface.OnAddStatusMessageDelegate.BindLambda(
		[this](FString Text, FLinearColor, FName FontName, float) { Chat.push_back(LookOf(FontName) + "|" + ToUtf8(Text)); });
	Interface.OnAddDiffMessageDelegate.BindLambda(
		[this](FString Path, FString Old, FString New) { Chat.push_back("diff|" + ToUtf8(Path) + "|" + ToUtf8(Old) + "|" + ToUtf8(New)); });
	StateHandle = FAgent::Get().OnAgentStateChanged.AddLambda([this] { States.push_back(State()); });
}

FConversation::~FConversation()
{
	FAgent::Get().OnAgentStateChanged.Remove(StateHandle);
	FKestrinInterface::Get().OnAddStatusMessageDelegate.Unbind();
	FKestrinInterface::Get().OnAddDiffMessageDelegate.Unbind();
	BringToIdle();
	FKestrinInterface::Get().Shutdown();
	FHostClock::SetManual(false);
}

void FConversation::Answer(int32 Code, std::string_view Body)
{
	Wire.Answer(LastRequest().Id, Code, Body);
	FMainLoop::Tick();
}

void FConversation::Accept(std::string_view RequestId)
{
	Answer(200, "{\"request_id\":\"" + std::string(RequestId) + "\"}");
}

void FConversation::WaitForPoll()
{
	const int32 Before = CountRequests(TEXT("GET"));
	for (int Ticks = 0; Ticks < 200 && CountRequests(TEXT("GET")) == Before; ++Ticks)
	{
		FMainLoop::RunFor(0.1);
	}
}

void FConversation::Finish(std::string_view Response, std::string_view RequestId)
{
	Accept(RequestId);
	WaitForPoll();
	Answer(200, "{\"status\":\"COMPLETED\",\"response\":" + std::string(Response) + "}");
}

void FConversation::FinishWith(std::string_view Blocks, bool bAutoContinue)
{
	Finish("{\"auto_continue\":" + std::string(bAutoContinue ? "true" : "false") + ",\"response\":[" + std::string(Blocks) + "]}");
}

void FConversation::StartAndFinishWith(std::string_view Blocks, bool bAutoContinue)
{
	FKestrinInterface::Get().InitialRequest(TEXT("Go"));
	FinishWith(Blocks, bAutoContinue);
}

std::string FConversation::RunTool(const char* Tool, std::string_view Input)
{
	TSharedPtr<FJsonObject> Json;
	FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(FUtf8::Decode(Input)), Json);
	return ToUtf8(FAgent::Get().RunTool(Tool, TEXT("id"), Json));
}

std::string FConversation::State() const
{
	return StateName(FAgent::Get().GetState());
}

int32 FConversation::CountRequests(const TCHAR* Verb) const
{
	return Wire.GetRequests().FilterByPredicate([Verb](const FScriptedRequest& Request) { return Request.Verb == Verb; }).Num();
}

void FConversation::Forget()
{
	Chat.clear();
	States.clear();
}

std::string StateName(EAgentState State)
{
	return ToUtf8(StaticEnum<EAgentState>()->GetNameStringByValue(static_cast<int64>(State)));
}
