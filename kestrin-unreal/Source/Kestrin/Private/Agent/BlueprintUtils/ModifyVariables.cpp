#include "Agent/BlueprintUtils.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"

namespace
{
struct FReplicationRow
{
	const TCHAR* Value;
	uint64 PropertyFlags;
};

const FReplicationRow ReplicationRows[] = {
	{ TEXT("Replicated"), CPF_Net },
	{ TEXT("RepNotify"), CPF_Net | CPF_RepNotify },
};

struct FFlagRow
{
	const TCHAR* Key;
	uint64 PropertyFlag;
};

const FFlagRow FlagRows[] = {
	{ TEXT("ExposeOnSpawn"), CPF_ExposeOnSpawn },
	{ TEXT("Private"), CPF_DisableEditOnInstance },
	{ TEXT("SaveGame"), CPF_SaveGame },
};

/** Null, with a message, when there is no such type or the engine refuses the variable. */
FBPVariableDescription* CreateVariable(FSectionWork& Work, const FString& Name, const FEdGraphPinType& PinType)
{
	if (PinType.PinCategory.IsNone())
	{
		Work.Say(FString::Printf(TEXT("Invalid variable type for variable: %s"), *Name));
		return nullptr;
	}
	FBlueprintEditorUtils::AddMemberVariable(Work.Blueprint, FName(*Name), PinType, FString());
	FBPVariableDescription* const Variable = FindVariable(*Work.Blueprint, FName(*Name));
	if (!Variable)
	{
		Work.Say(FString::Printf(TEXT("Failed to create variable: %s"), *Name));
		return nullptr;
	}
	Variable->PropertyFlags |= CPF_Edit | CPF_BlueprintVisible;
	Work.bChanged = true;
	Work.Say(FString::Printf(TEXT("Created new variable: %s"), *Name));
	return Variable;
}

/** @return whether the entry asks for replication; to switch it off doesn't count as a change */
bool ApplyReplication(const FJsonObject& Entry, FBPVariableDescription& Variable)
{
	FString Text;
	if (!Entry.TryGetStringField(TEXT("Replication"), Text))
	{
		return false;
	}
	Variable.PropertyFlags &= ~(CPF_Net | CPF_RepNotify);
	for (const FReplicationRow& Row : ReplicationRows)
	{
		if (Text.Equals(Row.Value, ESearchCase::IgnoreCase))
		{
			Variable.PropertyFlags |= Row.PropertyFlags;
			return true;
		}
	}
	return false;
}

/** A key that is given counts as a change, whatever the flag was. */
bool ApplyFlags(const FJsonObject& Entry, FBPVariableDescription& Variable)
{
	bool bChanged = false;
	for (const FFlagRow& Row : FlagRows)
	{
		bool bSet = false;
		if (Entry.TryGetBoolField(Row.Key, bSet))
		{
			Variable.PropertyFlags = bSet ? Variable.PropertyFlags | Row.PropertyFlag : Variable.PropertyFlags & ~Row.PropertyFlag;
			bChanged = true;
		}
	}
	return bChanged;
}

bool ApplyTexts(const FJsonObject& Entry, FBPVariableDescription& Variable)
{
	bool bChanged = false;
	FString Text;
	if (Entry.TryGetStringField(TEXT("Category"), Text))
	{
		Variable.Category = FText::FromString(Text);
		bChanged = true;
	}
	if (Entry.TryGetStringField(TEXT("Tooltip"), Text))
	{
		Variable.SetMetaData(TEXT("Tooltip"), Text);
		bChanged = true;
	}
	// Of any JSON type, unlike every other key.
	if (const TSharedPtr<FJsonValue> Value = Entry.TryGetField(TEXT("Value")))
	{
		Variable.DefaultValue = Value->AsString();
		bChanged = true;
	}
	return bChanged;
}
}

bool FKestrinBlueprintUtils::ModifyBlueprintVariables(UBlueprint* Blueprint, const FJsonObject& Section, TSharedPtr<FJsonObject>& Result)
{
	const auto ApplyEntry = [](FSectionWork& Work, const FString& Name, const TSharedPtr<FJsonObject>& Entry)
	{
		FBPVariableDescription* Variable = FindVariable(*Work.Blueprint, FName(*Name));
		if (!Variable)
		{
			Variable = CreateVariable(Work, Name, ConvertJsonToEdGraphPinType(Entry));
		}
		if (!Variable)
		{
			return;
		}
		if (ApplyReplication(*Entry, *Variable))
		{
			Work.bChanged = true;
			if (Variable->PropertyFlags & CPF_RepNotify)
			{
				const FString NotifyFunction = FString::Printf(TEXT("OnRep_%s"), *Name);
				CreateRepNotifyFunction(Work.Blueprint, NotifyFunction);
				Variable->RepNotifyFunc = FName(*NotifyFunction);
			}
		}
		Work.bChanged |= ApplyTexts(*Entry, *Variable);
		Work.bChanged |= ApplyFlags(*Entry, *Variable);
	};
	const auto Walk = [&](FSectionWork& Work)
	{
		for (const TPair<FString, TSharedPtr<FJsonValue>>& Member : Section.Values)
		{
			const TSharedPtr<FJsonObject>* Entry = nullptr;
			if (Member.Value->TryGetObject(Entry))
			{
				ApplyEntry(Work, Member.Key, *Entry);
			}
			else
			{
				Work.Say(FString::Printf(TEXT("Invalid JSON format for variable: %s"), *Member.Key));
			}
		}
	};
	return ApplySection(Blueprint, *Result, TEXT("VariableModifications"), Walk);
}
