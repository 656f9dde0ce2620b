#include "Agent/BlueprintUtils.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ModificationSection.h"
#include "UObject/UnrealType.h"

// Event dispatchers.

namespace
{
const FEntrySection DelegateSection = { TEXT("DelegateModifications"), false, TEXT("Delegate entry missing Name field.") };

template <typename PropertyType>
FProperty* CreateParameter(UFunction* Function, FName Name)
{
	return new PropertyType(Function, Name, RF_Public);
}

struct FParameterTypeRow
{
	const TCHAR* Type;
	FProperty* (*Create)(UFunction* Function, FName Name);
};

const FParameterTypeRow ParameterTypeRows[] = {
	{ TEXT("Boolean"), &CreateParameter<FBoolProperty> },
	{ TEXT("Integer"), &CreateParameter<FIntProperty> },
	{ TEXT("Float"), &CreateParameter<FFloatProperty> },
	{ TEXT("String"), &CreateParameter<FStrProperty> },
};

bool HasDelegate(const UBlueprint& Blueprint, FName Name)
{
	if (Blueprint.GeneratedClass)
	{
		for (TFieldIterator<FMulticastDelegateProperty> Property(Blueprint.GeneratedClass); Property; ++Property)
		{
			if (Property->GetFName() == Name)
			{
				return true;
			}
		}
	}
	return false;
}

void AddParameter(UFunction& Function, const FJsonObject& Parameter)
{
	FString Name;
	FString Type;
	if (!Parameter.TryGetStringField(TEXT("Name"), Name) || !Parameter.TryGetStringField(TEXT("Type"), Type))
	{
		return;
	}
	for (const FParameterTypeRow& Row : ParameterTypeRows)
	{
		if (Type.Equals(Row.Type, ESearchCase::IgnoreCase))
		{
			FProperty* const Property = Row.Create(&Function, FName(*Name));
			Property->PropertyFlags |= CPF_Parm;
			Function.AddCppProperty(Property);
			return;
		}
	}
}

/** For the class as it is now: the next compile makes its own of the Blueprint's. */
void AddSignature(UBlueprint& Blueprint, const FString& DelegateName, const FJsonObject& Signature)
{
	UClass* const Class = Blueprint.GeneratedClass;
	const FString FunctionName = FString::Printf(TEXT("%s_Signature"), *DelegateName);
	UFunction* const Function = Class ? NewObject<UFunction>(Class, FName(*FunctionName), RF_Public | RF_Transient) : nullptr;
	if (!Function)
	{
		return;
	}
	ForEachObject(
		Signature, TEXT("InParameters"), [Function](const TSharedPtr<FJsonObject>& Parameter) { AddParameter(*Function, *Parameter); });
	if (FMulticastDelegateProperty* const Property = CastField<FMulticastDelegateProperty>(Class->FindPropertyByName(FName(*DelegateName))))
	{
		Property->SignatureFunction = Function;
	}
}
}

bool FKestrinBlueprintUtils::ModifyBlueprintDelegates(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, DelegateSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		const FName Name(*Entry.Name);
		if (HasDelegate(*Work.Blueprint, Name))
		{
			Work.Say(FString::Printf(TEXT("Delegate already exists: %s"), *Entry.Name));
			return;
		}
		FEdGraphPinType PinType;
		PinType.PinCategory = UEdGraphSchema_K2::PC_Delegate;
		FBlueprintEditorUtils::AddMemberVariable(Work.Blueprint, Name, PinType, FString());
		if (FBPVariableDescription* const Variable = FindVariable(*Work.Blueprint, Name))
		{
			Variable->PropertyFlags |= CPF_BlueprintAssignable | CPF_BlueprintCallable;
		}
		const TSharedPtr<FJsonObject>* Signature = nullptr;
		if (Entry.Json.TryGetObjectField(TEXT("Signature"), Signature))
		{
			AddSignature(*Work.Blueprint, Entry.Name, **Signature);
		}
		Work.bChanged = true;
		Work.Say(FString::Printf(TEXT("Created new delegate: %s"), *Entry.Name));
	});
}
