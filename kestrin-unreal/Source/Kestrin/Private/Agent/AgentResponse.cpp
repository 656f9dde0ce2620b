#include "Agent/AgentTools.h"

#include "API/HTTPAPI.h"
#include "Agent/ChatLines.h"
#include "Agent/FileUtils.h"
#include "JsonUtils.h"
#include "KestrinSettings.h"

namespace
{
using FJsonArray = TArray<TSharedPtr<FJsonValue>>;

FString GetOptionalString(const FJsonObject& Object, const TCHAR* Field)
{
	FString Value;
	Object.TryGetStringField(Field, Value);
	return Value;
}

/** Null when the value is no object. */
TSharedPtr<FJsonObject> AsOptionalObject(const TSharedPtr<FJsonValue>& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	return Value.IsValid() && Value->TryGetObject(Object) ? *Object : nullptr;
}

/** The part that every answer to a "tool_use" block begins with. */
TSharedRef<FJsonObject> MakeToolResult(const FString& ToolUseId, const FString& Content)
{
	const TSharedRef<FJsonObject> Result = MakeShared<FJsonObject>();
	Result->SetStringField(TEXT("type"), TEXT("tool_result"));
	Result->SetStringField(TEXT("tool_use_id"), ToolUseId);
	Result->SetStringField(TEXT("content"), Content);
	return Result;
}

bool IsExplainerMode()
{
	return GetDefault<UKestrinSettings>()->Mode == EKestrinMode::ExplainerMode;
}
}

bool FAgent::RunsToolsAtOnce() const
{
	return !IsExplainerMode() || bAutoContinue;
}

void FAgent::HandleServiceResponse(TSharedPtr<FJsonObject> Response)
{
	if (!Response.IsValid())
	{
		RequestCancel(TEXT("Failed to parse API response"));
		return;
	}
	SetState(EAgentState::PollResponse);
	LastResponse = Response;
	bAutoContinue = false;
	Response->TryGetBoolField(TEXT("auto_continue"), bAutoContinue);

	const FJsonArray* Messages = nullptr;
	if (Response->TryGetArrayField(TEXT("messages"), Messages))
	{
		ConversationMessages.Append(
			Messages->FilterByPredicate([](const TSharedPtr<FJsonValue>& Message) { return AsOptionalObject(Message).IsValid(); }));
	}
	const FJsonArray* Blocks = nullptr;
	if (!Response->TryGetArrayField(TEXT("response"), Blocks))
	{
		return;
	}
	RecordAnswer(*Blocks);
	for (const TSharedPtr<FJsonValue>& Element : *Blocks)
	{
		if (const TSharedPtr<FJsonObject> Block = AsOptionalObject(Element))
		{
			HandleBlock(Block);
		}
	}
	if (ToolResults.IsEmpty())
	{
		SetState(StateAfterAnswer());
	}
	else
	{
		SendToolResults();
	}
}

void FAgent::RecordAnswer(const FJsonArray& Blocks)
{
	const TSharedRef<FJsonObject> Message = MakeShared<FJsonObject>();
	Message->SetStringField(TEXT("role"), TEXT("assistant"));
	Message->SetArrayField(TEXT("content"), Blocks);
	AddConversationMessage(MakeShared<FJsonValueObject>(Message));
}

void FAgent::HandleBlock(const TSharedPtr<FJsonObject>& Block)
{
	const FString Type = GetOptionalString(*Block, TEXT("type"));
	FString Text;
	if (Type.Equals(TEXT("text"), ESearchCase::IgnoreCase) && Block->TryGetStringField(TEXT("text"), Text))
	{
		ShowAssistantLine(FString::Printf(TEXT(" [ Kestrin ] \n\n%s\n"), *Text));
	}
	else if (Type.Equals(TEXT("tool_use"), ESearchCase::IgnoreCase))
	{
		// Looked at block by block: a "finish" clears what let the calls before it run.
		if (!bPauseRequested && RunsToolsAtOnce())
		{
			ExecuteTool(Block);
		}
		else
		{
			PendingTools.Add(Block);
		}
	}
}

EAgentState FAgent::StateAfterAnswer() const
{
	if (bPauseRequested)
	{
		return EAgentState::Pause;
	}
	return RunsToolsAtOnce() ? EAgentState::AwaitingUpdate : EAgentState::AwaitingApproval;
}

void FAgent::SendToolResults()
{
	const TSharedRef<FJsonObject> Body = MakeShared<FJsonObject>();
	Body->SetArrayField(TEXT("tool_results"), ToolResults);
	if (IsExplainerMode())
	{
		Body->SetBoolField(TEXT("was_confirmed"), bAutoContinue);
	}
	FHttpApi::Get().SendCommand(ToCondensedJson(Body));
	ClearToolResults();
}

void FAgent::ExecuteTool(TSharedPtr<FJsonObject> Block)
{
	const FString Name = GetOptionalString(*Block, TEXT("name"));
	const FString Id = GetOptionalString(*Block, TEXT("id"));
	const FString Content = RunTool(Name, Id, AsOptionalObject(Block->TryGetField(TEXT("input"))));
	if (Name.Equals(CompileToolName, ESearchCase::IgnoreCase))
	{
		return; // also without input: that call is never answered
	}
	const TSharedRef<FJsonObject> Result = MakeToolResult(Id, Content);
	Result->SetBoolField(TEXT("is_error"), FFileUtils::IsFailure(Content));
	AddToolResult(MakeShared<FJsonValueObject>(Result));
}

void FAgent::AbortTool(TSharedPtr<FJsonObject> Block)
{
	const TSharedRef<FJsonObject> Result = MakeToolResult(GetOptionalString(*Block, TEXT("id")), TEXT("Abort: User added new input"));
	Result->SetBoolField(TEXT("is_abort"), true);
	AddToolResult(MakeShared<FJsonValueObject>(Result));
}

void FAgent::OnCompilationFinished(const TArray<TSharedPtr<FJsonObject>>& Messages, FString ToolId, FString Output, bool bSuccess)
{
	const TSharedRef<FJsonObject> Result = MakeToolResult(ToolId, Output);
	Result->SetBoolField(TEXT("is_error"), !bSuccess);
	AddToolResult(MakeShared<FJsonValueObject>(Result));

	const TSharedRef<FJsonObject> Message = MakeShared<FJsonObject>();
	Message->SetStringField(TEXT("role"), TEXT("user"));
	Message->SetArrayField(TEXT("content"), ToolResults);
	AddConversationMessage(MakeShared<FJsonValueObject>(Message));
	ShowProgressLine(bSuccess ? TEXT("Compilation successful!") : TEXT("Compilation failed, processing error..."));
}
