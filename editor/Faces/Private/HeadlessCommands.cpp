#include "HeadlessCommands.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "HeadlessEvents.h"
#include "JsonLine.h"
#include "PanelCommands.h"
#include "SettingsField.h"
#include "ToolRun.h"
#include "UObject/Class.h"

namespace
{
/** The fields of a command that has been found to be in order. */
struct FArguments
{
	const FJsonObject& Fields;

	FString Text(const TCHAR* Name) const
	{
		FString Value;
		Fields.TryGetStringField(Name, Value);
		return Value;
	}
	bool Flag(const TCHAR* Name) const
	{
		bool bValue = false;
		Fields.TryGetBoolField(Name, bValue);
		return bValue;
	}
	double Number(const TCHAR* Name, double Default) const
	{
		Fields.TryGetNumberField(Name, Default);
		return Default;
	}
};

enum class EField : uint8
{
	Text,
	Flag,
	/** A number that is not below 0. */
	Seconds,
	/** Looked at by the command itself. */
	Any
};

struct FField
{
	const TCHAR* Name;
	EField Type;
	bool bRequired = true;
};

struct FCommand
{
	const TCHAR* Name;
	TArray<FField> Fields;
	void (*Run)(const FArguments& Arguments);
};

FKestrinInterface& Interface()
{
	return FKestrinInterface::Get();
}

void RunToolCommand(const FArguments& Arguments)
{
	const FString Name = Arguments.Text(TEXT("name"));
	const TSharedPtr<FJsonObject>* Input = nullptr;
	Arguments.Fields.TryGetObjectField(TEXT("input"), Input);
	for (const TSharedPtr<FJsonObject>& Result : RunTool(Name, Arguments.Text(TEXT("id")), Input ? *Input : nullptr))
	{
		WriteToolEvent(Name, *Result);
	}
}

/** False, after an error event, when the list names a state that there is none of. */
bool ReadStates(const FJsonObject& Fields, TArray<EAgentState>& OutStates)
{
	const TArray<TSharedPtr<FJsonValue>>* Names = nullptr;
	if (!Fields.TryGetArrayField(TEXT("state"), Names))
	{
		WriteErrorEvent(TEXT("The command 'wait' takes 'state' as an array of names."));
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Name : *Names)
	{
		FString State;
		int64 Value = INDEX_NONE;
		if (Name->TryGetString(State))
		{
			Value = StaticEnum<EAgentState>()->GetValueByNameString(State);
		}
		if (Value == INDEX_NONE)
		{
			WriteErrorEvent(FString::Printf(TEXT("There is no state '%s'."), *State));
			return false;
		}
		OutStates.Add(static_cast<EAgentState>(Value));
	}
	return true;
}

void RunWaitCommand(const FArguments& Arguments)
{
	TArray<EAgentState> States;
	if (!ReadStates(Arguments.Fields, States))
	{
		return;
	}
	const auto IsThere = [&States] { return States.IsEmpty() || States.Contains(FAgent::Get().GetState()); };
	const bool bThere = IsThere() || FMainLoop::RunUntil(IsThere, Arguments.Number(TEXT("timeout"), 30.0));
	WriteWaitedEvent(!bThere);
}

void RunSetCommand(const FArguments& Arguments)
{
	const bool bSave = Arguments.Fields.HasField(TEXT("save")) && Arguments.Fields.GetBoolField(TEXT("save"));
	FString Error;
	if (!SetSettingsField(Arguments.Text(TEXT("name")), *Arguments.Fields.TryGetField(TEXT("value")), bSave, Error))
	{
		WriteErrorEvent(Error);
	}
}

const TCHAR* const Text = TEXT("text");
const FField Prompt = { Text, EField::Text };

const TArray<FCommand> Commands = {
	{ TEXT("start"), { Prompt }, [](const FArguments& Arguments) { Interface().InitialRequest(Arguments.Text(Text)); } },
	{ TEXT("regular"), { Prompt }, [](const FArguments& Arguments) { Interface().RegularRequest(Arguments.Text(Text)); } },
	{ TEXT("continue"), { Prompt }, [](const FArguments& Arguments) { Interface().Continue(Arguments.Text(Text)); } },
	{ TEXT("approve"), {}, [](const FArguments&) { Interface().Approve(); } },
	{ TEXT("pause"), {}, [](const FArguments&) { Interface().PauseRequest(); } },
	{ TEXT("end"), { Prompt }, [](const FArguments& Arguments) { Interface().EndRequest(Arguments.Text(Text)); } },
	{ TEXT("cancel"), { Prompt }, [](const FArguments& Arguments) { Interface().CancelRequest(Arguments.Text(Text)); } },
	{ TEXT("undo"), {}, [](const FArguments&) { Interface().UndoLastOperation(); } },
	{ TEXT("redo"), {}, [](const FArguments&) { Interface().RedoLastOperation(); } },
	{ TEXT("set"), { { TEXT("name"), EField::Text }, { TEXT("value"), EField::Any } }, &RunSetCommand },
	{ TEXT("tool"), { { TEXT("name"), EField::Text }, { TEXT("id"), EField::Text, false } }, &RunToolCommand },
	{ TEXT("wait"), { { TEXT("state"), EField::Any }, { TEXT("timeout"), EField::Seconds, false } }, &RunWaitCommand },
	{ TEXT("tick"), { { TEXT("seconds"), EField::Seconds } },
		[](const FArguments& Arguments) { FMainLoop::RunFor(Arguments.Number(TEXT("seconds"), 0.0)); } },
	{ TEXT("query"), {}, [](const FArguments&) { WriteStateEvent(); } },
	{ TEXT("transactions"), {}, [](const FArguments&) { WriteTransactionsEvent(); } },
	{ TEXT("panel"), {}, [](const FArguments&) { OpenPanel(); } },
	{ TEXT("type"), { Prompt }, [](const FArguments& Arguments) { TypeIntoPanel(Arguments.Text(Text)); } },
	{ TEXT("key"), { { TEXT("key"), EField::Text }, { TEXT("shift"), EField::Flag, false } },
		[](const FArguments& Arguments) { PressKeyInPanel(Arguments.Text(TEXT("key")), Arguments.Flag(TEXT("shift"))); } },
	{ TEXT("click"), { { TEXT("button"), EField::Text } },
		[](const FArguments& Arguments) { ClickInPanel(Arguments.Text(TEXT("button"))); } },
	{ TEXT("scroll"), {}, [](const FArguments&) { ScrollPanel(); } },
	{ TEXT("widgets"), {}, [](const FArguments&) { WritePanelWidgets(); } },
	{ TEXT("command"), { { TEXT("name"), EField::Text } },
		[](const FArguments& Arguments) { FireEditorCommand(Arguments.Text(TEXT("name"))); } },
};

/** What is wrong with a command's field; empty when nothing is. */
FString FindFault(const FJsonObject& Fields, const FField& Field)
{
	if (!Fields.HasField(Field.Name))
	{
		return Field.bRequired ? FString::Printf(TEXT("needs the field '%s'"), Field.Name) : FString();
	}
	FString Ignored;
	double Seconds = 0.0;
	if (Field.Type == EField::Text && !Fields.TryGetStringField(Field.Name, Ignored))
	{
		return FString::Printf(TEXT("takes '%s' as a text"), Field.Name);
	}
	bool bIgnored = false;
	if (Field.Type == EField::Flag && !Fields.TryGetBoolField(Field.Name, bIgnored))
	{
		return FString::Printf(TEXT("takes '%s' as true or false"), Field.Name);
	}
	if (Field.Type == EField::Seconds && !(Fields.TryGetNumberField(Field.Name, Seconds) && Seconds >= 0.0))
	{
		return FString::Printf(TEXT("takes '%s' as a number of seconds"), Field.Name);
	}
	return FString();
}

/** Null, with a message, when the line is no command with all its fields. */
const FCommand* FindCommand(const FString& Name, const FJsonObject& Fields, FString& OutError)
{
	const FCommand* const Command = Commands.FindByPredicate([&Name](const FCommand& Each) { return Name.Equals(Each.Name); });
	if (!Command)
	{
		OutError = FString::Printf(TEXT("There is no command '%s'."), *Name);
		return nullptr;
	}
	for (const FField& Field : Command->Fields)
	{
		const FString Fault = FindFault(Fields, Field);
		if (!Fault.IsEmpty())
		{
			OutError = FString::Printf(TEXT("The command '%s' %s."), *Name, *Fault);
			return nullptr;
		}
	}
	return Command;
}
}

EHeadlessCommand RunHeadlessCommand(const FString& Line)
{
	FString Error;
	const TSharedPtr<FJsonObject> Fields = ReadJsonObject(Line, Error);
	if (!Fields.IsValid())
	{
		WriteErrorEvent(FString::Printf(TEXT("The line is no JSON object: %s"), *Error));
		return EHeadlessCommand::Done;
	}
	const FArguments Arguments{ *Fields };
	const FString Name = Arguments.Text(TEXT("do"));
	if (Name.Equals(TEXT("quit")))
	{
		return EHeadlessCommand::Quit;
	}
	if (const FCommand* const Command = FindCommand(Name, *Fields, Error))
	{
		Command->Run(Arguments);
	}
	else
	{
		WriteErrorEvent(Error);
	}
	return EHeadlessCommand::Done;
}
