#include "HeadlessEvents.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "ChatLook.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "EditorFaces.h"
#include "JsonLine.h"
#include "SlateHost/WidgetDriver.h"
#include "SlateHost/WidgetTree.h"
#include "UObject/Class.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
TSharedRef<FJsonObject> MakeEvent(const TCHAR* Name)
{
	const TSharedRef<FJsonObject> Event = MakeShared<FJsonObject>();
	Event->SetStringField(TEXT("event"), Name);
	return Event;
}

TArray<TSharedPtr<FJsonValue>> ToArray(const FLinearColor& Color)
{
	TArray<TSharedPtr<FJsonValue>> Channels;
	for (const float Channel : { Color.R, Color.G, Color.B, Color.A })
	{
		Channels.Add(MakeShared<FJsonValueNumber>(Channel));
	}
	return Channels;
}

FString GetStateName()
{
	return StaticEnum<EAgentState>()->GetNameStringByValue(static_cast<int64>(FAgent::Get().GetState()));
}

TArray<TSharedPtr<FJsonValue>> GetPendingToolNames()
{
	TArray<TSharedPtr<FJsonValue>> Names;
	for (const TSharedPtr<FJsonObject>& Block : FAgent::Get().GetPendingTools())
	{
		FString Name;
		Block->TryGetStringField(TEXT("name"), Name);
		Names.Add(MakeShared<FJsonValueString>(Name));
	}
	return Names;
}
}

void WriteReadyEvent(const FFaceOptions& Options)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("ready"));
	Event->SetStringField(TEXT("project"), Options.Project);
	Event->SetStringField(TEXT("version"), Options.Version);
	Event->SetStringField(TEXT("plugin"), Options.PluginFolder);
	WriteJsonLine(Event);
}

void WriteStatusEvent(const FString& Text, const FLinearColor& Color, const FName& FontName, float FontSize)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("status"));
	Event->SetStringField(TEXT("text"), Text);
	Event->SetStringField(TEXT("look"), GetChatLook(FontName));
	Event->SetArrayField(TEXT("color"), ToArray(Color));
	Event->SetStringField(TEXT("font"), FontName.ToString());
	Event->SetNumberField(TEXT("size"), FontSize);
	WriteJsonLine(Event);
}

void WriteDiffEvent(const FString& Path, const FString& OldContent, const FString& NewContent)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("diff"));
	Event->SetStringField(TEXT("path"), Path);
	Event->SetStringField(TEXT("old"), OldContent);
	Event->SetStringField(TEXT("new"), NewContent);
	WriteJsonLine(Event);
}

void WriteStateEvent()
{
	FAgent& Agent = FAgent::Get();
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("state"));
	Event->SetStringField(TEXT("state"), GetStateName());
	Event->SetStringField(TEXT("conversation_id"), Agent.GetConversationId());
	Event->SetStringField(TEXT("undo_conversation_id"), Agent.GetUndoConversationId());
	Event->SetStringField(TEXT("redo_conversation_id"), Agent.GetRedoConversationId());
	Event->SetBoolField(TEXT("pause_requested"), Agent.IsPauseRequested());
	Event->SetBoolField(TEXT("auto_continue"), Agent.GetAutoContinue());
	Event->SetBoolField(TEXT("can_undo"), FKestrinInterface::Get().CanUndo());
	Event->SetBoolField(TEXT("can_redo"), FKestrinInterface::Get().CanRedo());
	Event->SetArrayField(TEXT("pending_tools"), GetPendingToolNames());
	Event->SetNumberField(TEXT("tool_results"), Agent.GetToolResults().Num());
	WriteJsonLine(Event);
}

void WriteToolEvent(const FString& Name, const FJsonObject& Result)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("tool"));
	Event->SetStringField(TEXT("name"), Name);
	Event->SetStringField(TEXT("id"), Result.GetStringField(TEXT("tool_use_id")));
	Event->SetStringField(TEXT("content"), Result.GetStringField(TEXT("content")));
	Event->SetBoolField(TEXT("is_error"), Result.GetBoolField(TEXT("is_error")));
	WriteJsonLine(Event);
}

void WriteWaitedEvent(bool bTimedOut)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("waited"));
	Event->SetStringField(TEXT("state"), GetStateName());
	Event->SetBoolField(TEXT("timed_out"), bTimedOut);
	WriteJsonLine(Event);
}

void WriteTransactionsEvent()
{
	const UTransactor& Buffer = *GEditor->Trans;
	TArray<TSharedPtr<FJsonValue>> Titles;
	for (int32 Index = 0; Index < Buffer.GetQueueLength(); ++Index)
	{
		Titles.Add(MakeShared<FJsonValueString>(Buffer.GetTransaction(Index)->GetTitle().ToString()));
	}
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("transactions"));
	Event->SetArrayField(TEXT("titles"), Titles);
	Event->SetNumberField(TEXT("undone"), Buffer.GetUndoCount());
	WriteJsonLine(Event);
}

void WriteWidgetsEvent(const FWidgetDriver& Panel)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("widgets"));
	Event->SetObjectField(TEXT("root"), DescribeWidgetTree(Panel.GetRoot()));
	if (const TSharedPtr<SWidget> Focus = Panel.GetFocus())
	{
		TArray<TSharedPtr<FJsonValue>> Path;
		for (const int32 Index : Panel.GetPath(Focus.ToSharedRef()))
		{
			Path.Add(MakeShared<FJsonValueNumber>(Index));
		}
		Event->SetArrayField(TEXT("focus"), Path);
	}
	else
	{
		Event->SetField(TEXT("focus"), MakeShared<FJsonValueNull>());
	}
	const TSharedPtr<SScrollBox> Chat = Panel.FindScrollBox();
	Event->SetBoolField(TEXT("at_end"), Chat.IsValid() && Chat->IsAtEnd());
	WriteJsonLine(Event);
}

void WriteErrorEvent(const FString& Message)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("error"));
	Event->SetStringField(TEXT("message"), Message);
	WriteJsonLine(Event);
}
