// The variables of Blueprints.

#include "EdGraphSchema_K2.h"
#include "EditorNames.h"
#include "Engine/SimpleConstructionScript.h"
#include "EngineLogs.h"
#include "GameFramework/Actor.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
using FUtils = FBlueprintEditorUtils;
using FSchema = UEdGraphSchema_K2;

/** Actors are in levels, which a default can't refer to. */
bool IsActorType(const FEdGraphPinType& Type)
{
	const UClass* const Class = Cast<UClass>(Type.PinSubCategoryObject.Get());
	return Type.PinCategory == FSchema::PC_Object && Class && Class->IsChildOf<AActor>();
}

uint64 GetInitialFlags(const FEdGraphPinType& Type)
{
	uint64 Flags = CPF_Edit | CPF_BlueprintVisible | CPF_DisableEditOnInstance;
	if (Type.PinCategory == FSchema::PC_Delegate || Type.PinCategory == FSchema::PC_MCDelegate)
	{
		Flags |= CPF_BlueprintAssignable | CPF_BlueprintCallable;
	}
	return IsActorType(Type) ? Flags | CPF_DisableEditOnTemplate : Flags;
}

bool IsVariableNameTaken(const UBlueprint* Blueprint, FName Name)
{
	const USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	const UClass* const Parent = Blueprint->ParentClass;
	return FUtils::FindNewVariableIndex(Blueprint, Name) != INDEX_NONE || (Script && Script->FindSCSNode(Name)) ||
		FUtils::FindTimelineTemplate(Blueprint, Name) || (Parent && Parent->FindPropertyByName(Name));
}

bool CanHaveVariable(const UBlueprint* Blueprint, FName Name)
{
	const TCHAR* const Fault = !IsUsableName(Name) ? TEXT("it can't be a name")
		: IsVariableNameTaken(Blueprint, Name)     ? TEXT("the name is taken")
												   : nullptr;
	if (Fault)
	{
		UE_LOG(LogBlueprint, Warning, TEXT("%s can't have the variable '%s': %s"), *Blueprint->GetPathName(), *Name.ToString().Left(100),
			Fault);
	}
	return !Fault;
}

/** A member's description, or a local variable's of the function. The node or Blueprint that has it is recorded when it is to change. */
FBPVariableDescription* FindDescription(UBlueprint* Blueprint, FName Name, const UStruct* LocalScope, bool bModify)
{
	const auto Find = [Name](TArray<FBPVariableDescription>& Variables)
	{ return Variables.FindByPredicate([Name](const FBPVariableDescription& Each) { return Each.VarName == Name; }); };
	UObject* Holder = Blueprint;
	FBPVariableDescription* Found = LocalScope ? nullptr : Find(Blueprint->NewVariables);
	TArray<UK2Node_FunctionEntry*> Entries;
	FUtils::GetAllNodesOfClass(Blueprint, Entries);
	for (UK2Node_FunctionEntry* const Entry : Entries)
	{
		if (LocalScope && !Found && Entry->GetGraph()->GetFName() == LocalScope->GetFName())
		{
			Holder = Entry;
			Found = Find(Entry->LocalVariables);
		}
	}
	if (Found && bModify)
	{
		Holder->Modify();
	}
	return Found;
}

void SetFlag(UBlueprint* Blueprint, FName Name, uint64 Flag, bool bSet)
{
	if (FBPVariableDescription* const Variable = FindDescription(Blueprint, Name, nullptr, true))
	{
		Variable->PropertyFlags = bSet ? Variable->PropertyFlags | Flag : Variable->PropertyFlags & ~Flag;
		FUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

/** The nodes that read or write the Blueprint's own variable. */
TArray<UK2Node_Variable*> FindNodes(const UBlueprint* Blueprint, FName Name)
{
	TArray<UK2Node_Variable*> Nodes;
	FUtils::GetAllNodesOfClass(Blueprint, Nodes);
	Nodes.RemoveAll(
		[=](const UK2Node_Variable* Node)
		{
		const FMemberReference& Reference = Node->VariableReference;
		const bool bOwn = Reference.IsSelfContext() || Reference.GetMemberParentClass() == Blueprint->GeneratedClass;
		return Reference.IsLocalScope() || !bOwn || Reference.GetMemberName() != Name;
	});
	return Nodes;
}

/** The value that the class default object has now becomes the text that the next compile begins with. */
void KeepDefaultValue(const UBlueprint* Blueprint, FBPVariableDescription& Variable)
{
	const UClass* const Class = Blueprint->GeneratedClass;
	UObject* const Defaults = Class ? Class->GetDefaultObject(false) : nullptr;
	const FProperty* const Property = Defaults ? Class->FindPropertyByName(Variable.VarName) : nullptr;
	if (Property)
	{
		Variable.DefaultValue.Empty();
		Property->ExportTextItem_InContainer(Variable.DefaultValue, Defaults, nullptr, Defaults, PPF_None);
	}
}
}

bool FBlueprintEditorUtils::AddMemberVariable(
	UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue)
{
	if (!CanHaveVariable(Blueprint, NewVarName))
	{
		return false;
	}
	Blueprint->Modify();
	FBPVariableDescription& Variable = Blueprint->NewVariables.AddDefaulted_GetRef();
	Variable.VarName = NewVarName;
	Variable.VarGuid = FGuid::NewGuid();
	Variable.FriendlyName =
		FFieldMetaData().GetDisplayName(NewVarName.ToString(), NewVarType.PinCategory == FSchema::PC_Boolean).ToString();
	Variable.VarType = NewVarType;
	Variable.VarType.bIsConst = false;
	Variable.VarType.bIsWeakPointer = false;
	Variable.VarType.bIsReference = false;
	Variable.Category = FSchema::VR_DefaultCategory;
	Variable.PropertyFlags = GetInitialFlags(Variable.VarType);
	Variable.DefaultValue = DefaultValue;
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::RemoveMemberVariable(UBlueprint* Blueprint, FName VarName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VarName);
	if (Index == INDEX_NONE)
	{
		return;
	}
	Blueprint->Modify();
	Blueprint->NewVariables.RemoveAt(Index);
	for (UK2Node_Variable* const Node : FindNodes(Blueprint, VarName))
	{
		Node->Modify();
		Node->DestroyNode();
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::RenameMemberVariable(UBlueprint* Blueprint, FName OldName, FName NewName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, OldName);
	const bool bSpellingOnly = OldName == NewName;
	if (Index == INDEX_NONE || (!bSpellingOnly && !CanHaveVariable(Blueprint, NewName)))
	{
		return;
	}
	Blueprint->Modify();
	FBPVariableDescription& Variable = Blueprint->NewVariables[Index];
	KeepDefaultValue(Blueprint, Variable);
	Variable.VarName = NewName;
	Variable.FriendlyName =
		FFieldMetaData().GetDisplayName(NewName.ToString(), Variable.VarType.PinCategory == FSchema::PC_Boolean).ToString();
	const TArray<UK2Node_Variable*> Nodes = FindNodes(Blueprint, OldName);
	MarkBlueprintAsStructurallyModified(Blueprint);
	for (UK2Node_Variable* const Node : Nodes)
	{
		Node->Modify();
		for (UEdGraphPin* const Pin : Node->Pins)
		{
			// Links and defaults go by name.
			Pin->PinName = Pin->PinName == OldName ? NewName : Pin->PinName;
		}
		Node->VariableReference.SetSelfMember(NewName);
		Node->ReconstructNode();
	}
}

void FBlueprintEditorUtils::ChangeMemberVariableType(UBlueprint* Blueprint, FName VariableName, const FEdGraphPinType& NewPinType)
{
	FBPVariableDescription* const Variable = FindDescription(Blueprint, VariableName, nullptr, true);
	if (!Variable || Variable->VarType == NewPinType)
	{
		return;
	}
	Variable->VarType = NewPinType;
	Variable->DefaultValue.Empty();
	Variable->PropertyFlags &= ~static_cast<uint64>(CPF_DisableEditOnTemplate | CPF_BlueprintAssignable | CPF_BlueprintCallable);
	Variable->PropertyFlags |= GetInitialFlags(NewPinType) & (CPF_DisableEditOnTemplate | CPF_BlueprintAssignable | CPF_BlueprintCallable);
	MarkBlueprintAsStructurallyModified(Blueprint);
	for (UK2Node_Variable* const Node : FindNodes(Blueprint, VariableName))
	{
		Node->Modify();
		Node->ReconstructNode();
	}
}

int32 FBlueprintEditorUtils::FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName)
{
	return Blueprint->NewVariables.IndexOfByPredicate([&InName](const FBPVariableDescription& Each) { return Each.VarName == InName; });
}

uint64* FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName)
{
	FBPVariableDescription* const Variable = FindDescription(Blueprint, VarName, nullptr, false);
	return Variable ? &Variable->PropertyFlags : nullptr;
}

void FBlueprintEditorUtils::SetVariableSaveGameFlag(UBlueprint* Blueprint, const FName& VarName, bool bInSaveGame)
{
	SetFlag(Blueprint, VarName, CPF_SaveGame, bInSaveGame);
}

void FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(UBlueprint* Blueprint, const FName& VarName, bool bNewBlueprintOnly)
{
	SetFlag(Blueprint, VarName, CPF_DisableEditOnInstance, bNewBlueprintOnly);
}

void FBlueprintEditorUtils::SetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName, const FName& RepNotifyFunc)
{
	if (FBPVariableDescription* const Variable = FindDescription(Blueprint, VarName, nullptr, true))
	{
		Variable->RepNotifyFunc = RepNotifyFunc;
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::SetBlueprintVariableCategory(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile)
{
	if (FBPVariableDescription* const Variable = FindDescription(Blueprint, VarName, InLocalVarScope, true))
	{
		Variable->Category = NewCategory;
		bDontRecompile ? MarkBlueprintAsModified(Blueprint) : MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::SetBlueprintVariableMetaData(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, const FString& MetaDataValue)
{
	if (FBPVariableDescription* const Variable = FindDescription(Blueprint, VarName, InLocalVarScope, true))
	{
		Variable->SetMetaData(MetaDataKey, MetaDataValue);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

bool FBlueprintEditorUtils::GetBlueprintVariableMetaData(
	const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, FString& OutMetaDataValue)
{
	const FBPVariableDescription* const Variable = FindDescription(const_cast<UBlueprint*>(Blueprint), VarName, InLocalVarScope, false);
	const bool bThere = Variable && Variable->HasMetaData(MetaDataKey);
	OutMetaDataValue = bThere ? Variable->GetMetaData(MetaDataKey) : FString();
	return bThere;
}

void FBlueprintEditorUtils::RemoveBlueprintVariableMetaData(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey)
{
	if (FBPVariableDescription* const Variable = FindDescription(Blueprint, VarName, InLocalVarScope, true))
	{
		Variable->RemoveMetaData(MetaDataKey);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

FName FBlueprintEditorUtils::FindUniqueKismetName(const UBlueprint* InBlueprint, const FString& InBaseName)
{
	FString Name = InBaseName;
	for (int32 Number = 0;
		 IsVariableNameTaken(InBlueprint, FName(Name)) || !IsGraphNameUnique(const_cast<UBlueprint*>(InBlueprint), FName(Name)); ++Number)
	{
		Name = FString::Printf(TEXT("%s_%d"), *InBaseName, Number);
	}
	return FName(Name);
}
