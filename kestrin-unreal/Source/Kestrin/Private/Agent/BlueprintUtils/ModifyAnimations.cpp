#include "Agent/BlueprintUtils.h"
#include "Animation/AnimBlueprint.h"
#include "Animation/AnimSequence.h"
#include "EdGraphSchema_K2.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"
#include "UObject/UnrealType.h"

// An animation Blueprint's references to sequences.

namespace
{
const TCHAR* FindOtherBlueprint(const UBlueprint& Blueprint)
{
	return Cast<UAnimBlueprint>(&Blueprint) ? nullptr : TEXT("Blueprint is not an Animation Blueprint.");
}

const FEntrySection AnimationSection = { TEXT("AnimationModifications"), true, TEXT("Animation entry missing 'Name' or 'Type' field."),
	&FindOtherBlueprint };

/** How the sequence is to be played; without members when the entry does not say. */
const FJsonObject& GetProperties(const FSectionEntry& Entry)
{
	static const FJsonObject None;
	const TSharedPtr<FJsonObject>* Properties = nullptr;
	return Entry.Json.TryGetObjectField(TEXT("Properties"), Properties) ? **Properties : None;
}

/** What the class's default object has in a property of that name, if it is a sequence. */
UAnimSequence* FindSequence(const UBlueprint& Blueprint, FName Name)
{
	UClass* const Class = Blueprint.GeneratedClass;
	if (Class)
	{
		for (TFieldIterator<FObjectProperty> Property(Class); Property; ++Property)
		{
			if (Property->GetFName() == Name)
			{
				UObject* const Value = Property->GetObjectPropertyValue_InContainer(Class->GetDefaultObject());
				if (UAnimSequence* const Sequence = Cast<UAnimSequence>(Value))
				{
					return Sequence;
				}
			}
		}
	}
	return nullptr;
}

void ModifySequence(FSectionWork& Work, const FSectionEntry& Entry, UAnimSequence& Sequence)
{
	const FJsonObject& Properties = GetProperties(Entry);
	Sequence.Modify();
	if (Properties.TryGetBoolField(TEXT("bLooping"), Sequence.bLoop))
	{
		Work.bChanged = true;
	}
	double PlayRate = 0.0;
	if (Properties.TryGetNumberField(TEXT("PlayRate"), PlayRate))
	{
		Sequence.RateScale = static_cast<float>(PlayRate);
		Work.bChanged = true;
	}
	// Also after a change by an earlier entry.
	if (Work.bChanged)
	{
		Work.Say(FString::Printf(TEXT("Modified existing animation sequence: %s"), *Entry.Name));
	}
}

void CreateReference(FSectionWork& Work, const FSectionEntry& Entry)
{
	const FName Name(*Entry.Name);
	FEdGraphPinType PinType;
	PinType.PinCategory = UEdGraphSchema_K2::PC_Object;
	PinType.PinSubCategoryObject = UAnimSequence::StaticClass();
	FBlueprintEditorUtils::AddMemberVariable(Work.Blueprint, Name, PinType, FString());
	if (FBPVariableDescription* const Variable = FindVariable(*Work.Blueprint, Name))
	{
		Variable->PropertyFlags |= CPF_Edit | CPF_BlueprintVisible;
	}
	const auto SetMetaData = [&](const TCHAR* Key, const FString& Value)
	{ FBlueprintEditorUtils::SetBlueprintVariableMetaData(Work.Blueprint, Name, nullptr, Key, Value); };
	const FJsonObject& Properties = GetProperties(Entry);
	bool bLooping = false;
	if (Properties.TryGetBoolField(TEXT("bLooping"), bLooping))
	{
		SetMetaData(TEXT("bLooping"), bLooping ? TEXT("true") : TEXT("false"));
	}
	double PlayRate = 0.0;
	if (Properties.TryGetNumberField(TEXT("PlayRate"), PlayRate))
	{
		SetMetaData(TEXT("PlayRate"), FString::Printf(TEXT("%f"), PlayRate));
	}
	Work.bChanged = true;
	Work.Say(FString::Printf(TEXT("Created new animation sequence reference: %s"), *Entry.Name));
}

void ApplySequence(FSectionWork& Work, const FSectionEntry& Entry)
{
	if (UAnimSequence* const Sequence = FindSequence(*Work.Blueprint, FName(*Entry.Name)))
	{
		ModifySequence(Work, Entry, *Sequence);
	}
	else
	{
		CreateReference(Work, Entry);
	}
}

struct FAnimationTypeRow
{
	const TCHAR* Type;
	void (*Apply)(FSectionWork& Work, const FSectionEntry& Entry);
};

const FAnimationTypeRow AnimationTypeRows[] = {
	{ TEXT("AnimationSequence"), &ApplySequence },
	{ TEXT("BlendSpace"),
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{ Work.Say(FString::Printf(TEXT("BlendSpace modification not implemented: %s"), *Entry.Name)); } },
	{ TEXT("AnimMontage"),
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{ Work.Say(FString::Printf(TEXT("AnimMontage modification not implemented: %s"), *Entry.Name)); } },
};
}

bool FKestrinBlueprintUtils::ModifyBlueprintAnimations(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, AnimationSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		for (const FAnimationTypeRow& Row : AnimationTypeRows)
		{
			if (Entry.Type.Equals(Row.Type, ESearchCase::IgnoreCase))
			{
				Row.Apply(Work, Entry);
			}
		}
	});
}
