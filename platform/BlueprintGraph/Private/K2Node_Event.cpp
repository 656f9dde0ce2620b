#include "K2Node_Event.h"

#include "ClassRelations.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/CompilerResultsLog.h"

const FName UK2Node_Event::DelegateOutputName(TEXT("OutputDelegate"));

UFunction* UK2Node_Event::FindEventSignatureFunction() const
{
	return ResolveFunction(EventReference, *this);
}

void UK2Node_Event::AllocateDefaultPins()
{
	UEdGraphPin* const Delegate = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Delegate, DelegateOutputName);
	const UBlueprint* const Blueprint = GetBlueprint();
	Delegate->PinType.PinSubCategoryMemberReference.MemberName = GetFunctionName();
	Delegate->PinType.PinSubCategoryMemberReference.MemberParent = Blueprint ? Blueprint->GeneratedClass.Get() : nullptr;
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Then);
	if (const UFunction* const Function = FindEventSignatureFunction())
	{
		CreatePinsForFunctionEntryExit(Function, true);
	}
	Super::AllocateDefaultPins();
}

FText UK2Node_Event::GetNodeTitle(ENodeTitleType::Type) const
{
	const UFunction* const Function = bOverrideFunction ? FindEventSignatureFunction() : nullptr;
	const FString Name = Function ? UEdGraphSchema_K2::GetFriendlySignatureName(Function).ToString() : GetFunctionName().ToString();
	return FText::FromString(TEXT("Event ") + Name);
}

void UK2Node_Event::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	const UFunction* const Function = FindEventSignatureFunction();
	if (bOverrideFunction && !Function)
	{
		MessageLog.Error(TEXT("Could not find the function '@@' that @@ implements"), EventReference.GetMemberName().ToString(), this);
	}
	else if (bOverrideFunction && !Function->HasAnyFunctionFlags(FUNC_BlueprintEvent))
	{
		MessageLog.Error(TEXT("The function '@@' can't be implemented by a graph, as @@ does"), Function, this);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}

FText UK2Node_CustomEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FString Name = CustomFunctionName.ToString();
	return FText::FromString(TitleType == ENodeTitleType::FullTitle ? Name + TEXT("\nCustom Event") : Name);
}

void UK2Node_CustomEvent::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	const UBlueprint* const Blueprint = GetBlueprint();
	const UClass* const Parent = Blueprint ? Blueprint->ParentClass.Get() : nullptr;
	if (CustomFunctionName.IsNone())
	{
		MessageLog.Error(TEXT("@@ has no name"), this);
	}
	else if (Parent && Parent->FindFunctionByName(CustomFunctionName))
	{
		MessageLog.Error(TEXT("@@ has the name of a function of the parent class '@@'"), this, Parent);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}

void UK2Node_ComponentBoundEvent::InitializeComponentBoundEventParams(
	const FObjectProperty* InComponentProperty, const FMulticastDelegateProperty* InDelegateProperty)
{
	ComponentPropertyName = InComponentProperty->GetFName();
	DelegatePropertyName = InDelegateProperty->GetFName();
	DelegateOwnerClass = InDelegateProperty->GetOwnerClass();
	EventReference.SetFromField(InDelegateProperty->SignatureFunction, false);
	// Unique in the class, for the node's name is in its graph.
	CustomFunctionName = FName(FString::Printf(TEXT("BndEvt__%s_%s_%s_%s"), *GetNameSafe(GetBlueprint()), *ComponentPropertyName.ToString(),
		*GetName(), *InDelegateProperty->SignatureFunction->GetName()));
	bOverrideFunction = false;
	bInternalEvent = true;
}

FMulticastDelegateProperty* UK2Node_ComponentBoundEvent::GetTargetDelegateProperty() const
{
	return DelegateOwnerClass ? FindFProperty<FMulticastDelegateProperty>(DelegateOwnerClass, DelegatePropertyName) : nullptr;
}

FText UK2Node_ComponentBoundEvent::GetNodeTitle(ENodeTitleType::Type) const
{
	const FMulticastDelegateProperty* const Delegate = GetTargetDelegateProperty();
	const FString Name = Delegate ? Delegate->GetDisplayNameText().ToString() : DelegatePropertyName.ToString();
	return FText::FromString(FString::Printf(TEXT("%s (%s)"), *Name, *ComponentPropertyName.ToString()));
}

void UK2Node_ComponentBoundEvent::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	const UClass* const Class = GetBlueprintClassFromNode();
	if (!GetTargetDelegateProperty())
	{
		MessageLog.Error(TEXT("Could not find the event dispatcher '@@' of @@"), DelegatePropertyName.ToString(), this);
	}
	else if (Class && !FindFProperty<FObjectPropertyBase>(Class, ComponentPropertyName))
	{
		MessageLog.Error(TEXT("Could not find the component '@@' of @@"), ComponentPropertyName.ToString(), this);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}
