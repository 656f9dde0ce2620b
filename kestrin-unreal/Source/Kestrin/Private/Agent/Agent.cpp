#include "Agent/Agent.h"

#include "API/HTTPAPI.h"
#include "Agent/ChatLines.h"
#include "Agent/CompilationManager.h"
#include "Agent/FileHistory.h"
#include "Agent/FileUtils.h"
#include "JsonUtils.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"

FAgent& FAgent::Get()
{
	static FAgent Instance;
	return Instance;
}

FAgent::FAgent()
{
	CompilationFinishedHandle = FCompilationManager::OnCompilationFinishedDelegate.AddRaw(this, &FAgent::OnCompilationFinished);
	FHttpApi& Api = FHttpApi::Get();
	Api.OnStatusMessage.BindLambda([](FString Text, FLinearColor Color, FName FontName, float FontSize)
		{ FKestrinInterface::Get().OnAddStatusMessage(Text, Color, FontName, FontSize); });
	Api.OnRequestFailed.BindRaw(this, &FAgent::RequestCancel);
	Api.OnRequestAccepted.BindLambda([this] { SetState(EAgentState::PollRequest); });
	Api.OnResponseReady.BindRaw(this, &FAgent::HandleServiceResponse);
	Api.OnServiceError.BindLambda([this](const FString& Error) { RequestCancel(FString::Printf(TEXT("Request failed: %s"), *Error)); });
	Api.OnPollSent.BindLambda([this] { ShowProgressLine(bPauseRequested ? TEXT("Pausing request...") : TEXT("Processing request...")); });
}

FAgent::~FAgent()
{
	FCompilationManager::OnCompilationFinishedDelegate.Remove(CompilationFinishedHandle);
	FHttpApi& Api = FHttpApi::Get();
	Api.OnStatusMessage.Unbind();
	Api.OnRequestFailed.Unbind();
	Api.OnRequestAccepted.Unbind();
	Api.OnResponseReady.Unbind();
	Api.OnServiceError.Unbind();
	Api.OnPollSent.Unbind();
}

void FAgent::SetState(EAgentState NewState, const FAgentStateData* Data)
{
	if (NewState == State)
	{
		return;
	}
	State = NewState;
	EnterState(NewState, Data ? Data->Message : FString());
	OnAgentStateChanged.Broadcast();
}

void FAgent::EnterState(EAgentState NewState, const FString& Message)
{
	switch (NewState)
	{
	case EAgentState::None:
	case EAgentState::PollRequest:
	case EAgentState::PollResponse:
	case EAgentState::AwaitingApproval:
	case EAgentState::Approved: break;
	case EAgentState::Indexing:
		FFileUtils::GetSubDirectoryStructureAsJsonObjectAsync(
			FPaths::ProjectDir(), FOnDirectoryStructureReady::CreateLambda([this](const FString&) { SetState(EAgentState::Idle); }));
		break;
	case EAgentState::Idle: EnterIdle(); break;
	case EAgentState::InitialRequest: StartConversation(Message); break;
	case EAgentState::RegularRequest:
		ShowUserLine(FString::Printf(TEXT(" [ User ]\n\n%s\n"), *Message));
		FHttpApi::Get().SendRegularRequest(Message);
		break;
	case EAgentState::Continue: ContinueConversation(Message); break;
	case EAgentState::AwaitingUpdate:
		SetPauseRequested(false);
		bAutoContinue = false;
		break;
	case EAgentState::Pause: ShowUserLine(TEXT(" [ User ]\n\nThe process has been paused.\n")); break;
	case EAgentState::CancelRequest: EnterPassingState(TEXT(" [ Cancelled ]"), Message, TEXT("\n")); break;
	case EAgentState::EndRequest: EnterPassingState(TEXT(" [ User End ]"), Message, TEXT("")); break;
	}
}

void FAgent::EnterIdle()
{
	SetPauseRequested(false);
	bAutoContinue = false;
	ConversationId.Empty();
	FHttpApi::Get().StopPolling();
	FHttpApi::Get().DropCommands();
}

void FAgent::StartConversation(const FString& Message)
{
	ShowUserLine(FString::Printf(TEXT(" [ User Start ]\n\n%s\n"), *Message));
	ConversationId.Empty();
	FGuid::NewGuid().AppendString(ConversationId, EGuidFormats::Digits);
	UndoConversationId = ConversationId;
	ConversationMessages.Empty();
	ToolResults.Empty();
	PendingTools.Empty();
	FFileHistory::Get().ClearAllHistory();
	FHttpApi::Get().SendInitialRequest(Message);
}

void FAgent::ContinueConversation(const FString& Message)
{
	SetPauseRequested(false);
	bAutoContinue = true;

	// A tool may move the machine on, but it adds nothing to the queue; the queue is emptied only after all have been answered.
	const TArray<TSharedPtr<FJsonObject>> Queued = PendingTools;
	const bool bRunQueued = Message.IsEmpty();
	ShowUserLine(
		bRunQueued ? FString(TEXT(" [ User ]\n\nThe process has been resumed.\n")) : FString::Printf(TEXT(" [ User ]\n\n%s\n"), *Message));
	for (const TSharedPtr<FJsonObject>& Block : Queued)
	{
		bRunQueued ? ExecuteTool(Block) : AbortTool(Block);
	}
	PendingTools.Empty();

	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("message"), Message);
	if (!ToolResults.IsEmpty())
	{
		Body->SetArrayField(TEXT("tool_results"), ToolResults);
	}
	// Not what was set above: a queued "finish" has cleared it.
	Body->SetBoolField(TEXT("was_confirmed"), bAutoContinue);
	FHttpApi::Get().SendCommand(ToCondensedJson(Body));
	ClearToolResults();
}

void FAgent::EnterPassingState(const TCHAR* Headline, const FString& Message, const TCHAR* LineEnd)
{
	ShowUserLine(Message.IsEmpty() ? FString(Headline) : FString::Printf(TEXT("%s\n\n%s%s"), Headline, *Message, LineEnd));
	SetState(EAgentState::Idle);
}

void FAgent::SetPauseRequested(bool bRequested)
{
	bPauseRequested = bRequested;
	if (bPauseRequested)
	{
		ShowProgressLine(TEXT("Pausing request..."));
	}
}

void FAgent::RequestCancel(const FString& Message)
{
	const FCancelRequestData Data(Message);
	SetState(EAgentState::CancelRequest, &Data);
}

void FAgent::RequestEnd(const FString& Message)
{
	const FEndRequestData Data(Message);
	SetState(EAgentState::EndRequest, &Data);
}
