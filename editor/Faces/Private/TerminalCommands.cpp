#include "TerminalCommands.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "Dom/JsonValue.h"
#include "KestrinSettings.h"
#include "SettingsField.h"
#include "UObject/Class.h"

namespace
{
FKestrinInterface& Interface()
{
	return FKestrinInterface::Get();
}

void Prompt(const FString& Text)
{
	if (FAgent::Get().GetState() == EAgentState::Idle)
	{
		Interface().InitialRequest(Text);
	}
	else
	{
		Interface().Continue(Text);
	}
}

void SetMode(const FString& Name, const FTerminalStyle& Style)
{
	const bool bImplement = Name == TEXT("implement");
	if (!bImplement && Name != TEXT("explain"))
	{
		Style.PrintNote(TEXT("/mode takes \"explain\" or \"implement\"."));
		return;
	}
	FString Error;
	const FJsonValueString Value(bImplement ? TEXT("ExplainerAndImplementerMode") : TEXT("ExplainerMode"));
	SetSettingsField(TEXT("Mode"), Value, false, Error);
}

void ShowState(const FTerminalStyle& Style)
{
	const FAgent& Agent = FAgent::Get();
	const auto Mode = static_cast<int64>(GetDefault<UKestrinSettings>()->Mode);
	Style.PrintNote(FString::Printf(TEXT("%s, %s, %d tool calls wait%s%s."),
		*StaticEnum<EAgentState>()->GetNameStringByValue(static_cast<int64>(Agent.GetState())),
		*StaticEnum<EKestrinMode>()->GetDisplayNameTextByValue(Mode).ToString(), Agent.GetPendingTools().Num(),
		Interface().CanUndo() ? TEXT(", can undo") : TEXT(""), Interface().CanRedo() ? TEXT(", can redo") : TEXT("")));
}

void ShowHelp(const FTerminalStyle& Style);

bool Always()
{
	return true;
}

bool HasConversation()
{
	return FAgent::Get().GetState() != EAgentState::Idle;
}

bool CanUndo()
{
	return Interface().CanUndo();
}

bool CanRedo()
{
	return Interface().CanRedo();
}

struct FCommand
{
	const TCHAR* Name;
	const TCHAR* Help;
	/** Whether it makes sense only while the agent works. */
	bool bForRunningRequest;
	/** Whether it can be used now. */
	bool (*IsOffered)();
	void (*Run)(const FString& Argument, const FTerminalStyle& Style);
};

const TArray<FCommand> Commands = {
	{ TEXT("/continue"), TEXT("go on; with a text the calls that wait are dropped for it"), false, &HasConversation,
		[](const FString& Argument, const FTerminalStyle&) { Interface().Continue(Argument); } },
	{ TEXT("/approve"), TEXT("run the tool calls that wait"), false, &HasConversation,
		[](const FString&, const FTerminalStyle&) {
			Interface().Approve();
			Interface().Continue(FString());
		} },
	{ TEXT("/pause"), TEXT("pause at the next answer"), true, [] { return !WaitsForUser(); },
		[](const FString&, const FTerminalStyle&) { Interface().PauseRequest(); } },
	{ TEXT("/end"), TEXT("end the conversation"), false, &HasConversation,
		[](const FString& Argument, const FTerminalStyle&) { Interface().EndRequest(Argument); } },
	{ TEXT("/cancel"), TEXT("cancel the conversation; a text says why"), false, &HasConversation,
		[](const FString& Argument, const FTerminalStyle&) { Interface().CancelRequest(Argument); } },
	{ TEXT("/undo"), TEXT("take back the last conversation's changes"), false, &CanUndo,
		[](const FString&, const FTerminalStyle&) { Interface().UndoLastOperation(); } },
	{ TEXT("/redo"), TEXT("bring back what was undone"), false, &CanRedo,
		[](const FString&, const FTerminalStyle&) { Interface().RedoLastOperation(); } },
	{ TEXT("/mode"), TEXT("explain: tool calls wait for you; implement: they run at once"), false, &Always, &SetMode },
	{ TEXT("/state"), TEXT("where the conversation stands"), false, &Always,
		[](const FString&, const FTerminalStyle& Style) { ShowState(Style); } },
	{ TEXT("/help"), TEXT("this list"), false, &Always, [](const FString&, const FTerminalStyle& Style) { ShowHelp(Style); } },
};
const TCHAR* const QuitCommand = TEXT("/quit");

void ShowHelp(const FTerminalStyle& Style)
{
	Style.PrintNote(TEXT("A line is a prompt. Commands:"));
	for (const FCommand& Command : Commands)
	{
		Style.PrintNote(FString::Printf(TEXT("  %-10s %s"), Command.Name, Command.Help));
	}
	Style.PrintNote(FString::Printf(TEXT("  %-10s leave; Ctrl-C asks for a pause, twice ends the conversation"), QuitCommand));
}

/** Null for a prompt and for an unknown command. */
const FCommand* FindCommand(const FString& Line, FString& OutArgument)
{
	FString Name = Line;
	Line.Split(TEXT(" "), &Name, &OutArgument);
	OutArgument.TrimStartAndEndInline();
	return Commands.FindByPredicate([&Name](const FCommand& Command) { return Name == Command.Name; });
}

void RunCommand(const FCommand& Command, const FString& Argument, const FTerminalStyle& Style)
{
	if (Command.IsOffered())
	{
		Command.Run(Argument, Style);
	}
	else
	{
		Style.PrintNote(FString::Printf(TEXT("%s can't be used now; /state tells where the conversation stands."), Command.Name));
	}
}
}

bool WaitsForUser()
{
	switch (FAgent::Get().GetState())
	{
	case EAgentState::Idle:
	case EAgentState::AwaitingApproval:
	case EAgentState::Approved:
	case EAgentState::AwaitingUpdate:
	case EAgentState::Pause: return true;
	default: return false;
	}
}

bool IsForRunningRequest(const FString& Line)
{
	FString Argument;
	const FCommand* const Command = FindCommand(Line, Argument);
	return Command && Command->bForRunningRequest;
}

ETerminalCommand RunTerminalLine(const FString& Line, const FTerminalStyle& Style)
{
	if (Line == QuitCommand)
	{
		return ETerminalCommand::Quit;
	}
	FString Argument;
	if (const FCommand* const Command = FindCommand(Line, Argument))
	{
		RunCommand(*Command, Argument, Style);
	}
	else if (Line.StartsWith(TEXT("/")))
	{
		Style.PrintNote(FString::Printf(TEXT("There is no command %s; /help lists them."), *Line));
	}
	else if (!Line.IsEmpty())
	{
		Prompt(Line);
	}
	return ETerminalCommand::Done;
}
