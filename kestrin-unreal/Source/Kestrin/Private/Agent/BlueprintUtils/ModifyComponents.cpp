#include "Agent/BlueprintUtils.h"
#include "Components/SceneComponent.h"
#include "Engine/Blueprint.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "ModificationSection.h"
#include "UObject/UnrealType.h"

// The components that a Blueprint adds to its actors, by their templates.

namespace
{
const TCHAR* FindMissingScript(const UBlueprint& Blueprint)
{
	return Blueprint.SimpleConstructionScript ? nullptr : TEXT("Blueprint does not have a SimpleConstructionScript.");
}

const FEntrySection ComponentSection = { TEXT("ComponentModifications"), true, TEXT("Component entry missing 'Name' or 'Type' field."),
	&FindMissingScript };

/** A property counts as changed once it is found, whether its text could be read or not. */
bool ApplyProperties(const FJsonObject& Entry, const UClass& Class, UActorComponent& Template)
{
	const TSharedPtr<FJsonObject>* Properties = nullptr;
	if (!Entry.TryGetObjectField(TEXT("Properties"), Properties))
	{
		return false;
	}
	bool bChanged = false;
	for (const TPair<FString, TSharedPtr<FJsonValue>>& Member : (*Properties)->Values)
	{
		FString Text;
		FProperty* const Property = Member.Value->TryGetString(Text) ? Class.FindPropertyByName(FName(*Member.Key)) : nullptr;
		if (Property)
		{
			Property->ImportText_Direct(*Text, Property->ContainerPtrToValuePtr<void>(&Template), &Template, PPF_None, GWarn);
			bChanged = true;
		}
	}
	return bChanged;
}

struct FTransformRow
{
	const TCHAR* Key;
	const TCHAR* Members[3];
	void (*Apply)(USceneComponent& Component, const double (&Numbers)[3]);
};

const FTransformRow TransformRows[] = {
	{ TEXT("Location"), { TEXT("X"), TEXT("Y"), TEXT("Z") },
		[](USceneComponent& Component, const double (&Numbers)[3])
		{
			Component.SetRelativeLocationAndRotation(
				FVector(Numbers[0], Numbers[1], Numbers[2]), Component.GetRelativeRotation().Quaternion());
		} },
	{ TEXT("Rotation"), { TEXT("Pitch"), TEXT("Yaw"), TEXT("Roll") },
		[](USceneComponent& Component, const double (&Numbers)[3])
		{ Component.SetRelativeRotation(FRotator(Numbers[0], Numbers[1], Numbers[2])); } },
	{ TEXT("Scale"), { TEXT("X"), TEXT("Y"), TEXT("Z") },
		[](USceneComponent& Component, const double (&Numbers)[3])
		{ Component.SetRelativeScale3D(FVector(Numbers[0], Numbers[1], Numbers[2])); } },
};

/** A part with a number missing is passed over. */
bool ApplyTransform(const FJsonObject& Entry, USceneComponent& Component)
{
	const TSharedPtr<FJsonObject>* Transform = nullptr;
	if (!Entry.TryGetObjectField(TEXT("Transform"), Transform))
	{
		return false;
	}
	bool bChanged = false;
	for (const FTransformRow& Row : TransformRows)
	{
		const TSharedPtr<FJsonObject>* Part = nullptr;
		double Numbers[3] = {};
		if ((*Transform)->TryGetObjectField(Row.Key, Part) && (*Part)->TryGetNumberField(Row.Members[0], Numbers[0]) &&
			(*Part)->TryGetNumberField(Row.Members[1], Numbers[1]) && (*Part)->TryGetNumberField(Row.Members[2], Numbers[2]))
		{
			Row.Apply(Component, Numbers);
			bChanged = true;
		}
	}
	return bChanged;
}

const TPair<const TCHAR*, EComponentMobility::Type> MobilityRows[] = {
	{ TEXT("Static"), EComponentMobility::Static },
	{ TEXT("Stationary"), EComponentMobility::Stationary },
	{ TEXT("Movable"), EComponentMobility::Movable },
};

/** The key counts as a change, also with a text that means nothing. */
bool ApplyMobility(const FJsonObject& Entry, USceneComponent& Component)
{
	FString Text;
	if (!Entry.TryGetStringField(TEXT("Mobility"), Text))
	{
		return false;
	}
	for (const TPair<const TCHAR*, EComponentMobility::Type>& Row : MobilityRows)
	{
		if (Text.Equals(Row.Key, ESearchCase::IgnoreCase))
		{
			Component.SetMobility(Row.Value);
			break;
		}
	}
	return true;
}

bool ApplyToTemplate(const FJsonObject& Entry, const UClass& Class, UActorComponent& Template)
{
	Template.Modify();
	bool bChanged = ApplyProperties(Entry, Class, Template);
	if (USceneComponent* const SceneComponent = Cast<USceneComponent>(&Template))
	{
		bChanged |= ApplyTransform(Entry, *SceneComponent);
		bChanged |= ApplyMobility(Entry, *SceneComponent);
	}
	return bChanged;
}

USCS_Node* FindNode(const USimpleConstructionScript& Script, FName Name)
{
	for (USCS_Node* const Node : Script.GetAllNodes())
	{
		if (Node && Node->GetVariableName() == Name)
		{
			return Node;
		}
	}
	return nullptr;
}

void CreateComponent(FSectionWork& Work, const FSectionEntry& Entry, UClass* Class)
{
	if (!Class || !Class->IsChildOf(UActorComponent::StaticClass()))
	{
		Work.Say(FString::Printf(TEXT("Invalid component class: %s"), *Entry.Type));
		return;
	}
	USimpleConstructionScript& Script = *Work.Blueprint->SimpleConstructionScript;
	USCS_Node* const Node = Script.CreateNode(Class, FName(*Entry.Name));
	if (!Node)
	{
		Work.Say(FString::Printf(TEXT("Failed to create component: %s"), *Entry.Name));
		return;
	}
	ApplyToTemplate(Entry.Json, *Class, *Node->ComponentTemplate);
	Script.AddNode(Node);
	Work.bChanged = true;
	Work.Say(FString::Printf(TEXT("Created new component: %s of type %s"), *Entry.Name, *Entry.Type));
}
}

bool FKestrinBlueprintUtils::ModifyBlueprintComponents(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, ComponentSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		const USCS_Node* const Node = FindNode(*Work.Blueprint->SimpleConstructionScript, FName(*Entry.Name));
		if (!Node)
		{
			CreateComponent(Work, Entry, GetBlueprintClassFromBlueprintName(Entry.Type));
			return;
		}
		UActorComponent* const Template = Node->ComponentTemplate;
		Work.bChanged |= Template && ApplyToTemplate(Entry.Json, *Template->GetClass(), *Template);
		Work.Say(FString::Printf(TEXT("Modified existing component: %s"), *Entry.Name));
	});
}
