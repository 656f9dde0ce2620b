// The nodes of event dispatchers.

#include "EdGraphSchema_K2.h"
#include "K2Node_AddDelegate.h"
#include "K2Node_CallDelegate.h"
#include "Kismet2/CompilerResultsLog.h"

namespace
{
const FName DelegatePinName(TEXT("Delegate"));
}

void UK2Node_BaseMCDelegate::SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass)
{
	DelegateReference.SetDirect(Property->GetFName(), FGuid(), bSelfContext ? nullptr : OwnerClass, bSelfContext);
}

FMulticastDelegateProperty* UK2Node_BaseMCDelegate::GetProperty() const
{
	return DelegateReference.ResolveMember<FMulticastDelegateProperty>(GetBlueprintClassFromNode());
}

UFunction* UK2Node_BaseMCDelegate::GetDelegateSignature() const
{
	const FMulticastDelegateProperty* const Property = GetProperty();
	return Property ? Property->SignatureFunction : nullptr;
}

void UK2Node_BaseMCDelegate::AllocateDefaultPins()
{
	CreateExecPins();
	const FMulticastDelegateProperty* const Property = GetProperty();
	CreateTargetPin(DelegateReference.IsSelfContext() || !Property ? nullptr : Property->GetOwnerClass());
}

void UK2Node_BaseMCDelegate::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	if (!GetProperty())
	{
		MessageLog.Error(TEXT("Event Dispatcher not found '@@' for node @@"), GetPropertyName().ToString(), this);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}

FText UK2Node_BaseMCDelegate::GetTitle(const TCHAR* Verb) const
{
	return FText::FromString(FString::Printf(TEXT("%s %s"), Verb, *GetPropertyName().ToString()));
}

void UK2Node_CallDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	const UFunction* const Signature = GetDelegateSignature();
	for (TFieldIterator<FProperty> Parameter(Signature, EFieldIterationFlags::None); Parameter; ++Parameter)
	{
		if (Parameter->HasAnyPropertyFlags(CPF_Parm))
		{
			CreateParameterPin(Signature, *Parameter, EGPD_Input);
		}
	}
}

FText UK2Node_CallDelegate::GetNodeTitle(ENodeTitleType::Type) const
{
	return GetTitle(TEXT("Call"));
}

UEdGraphPin* UK2Node_AddDelegate::GetDelegatePin() const
{
	return FindPin(DelegatePinName, EGPD_Input);
}

void UK2Node_AddDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	FEdGraphPinType Type;
	UEdGraphSchema_K2::ConvertPropertyToPinType(GetProperty(), Type);
	Type.PinCategory = UEdGraphSchema_K2::PC_Delegate;
	Type.bIsReference = true;
	Type.bIsConst = true;
	CreatePin(EGPD_Input, Type, DelegatePinName);
}

FText UK2Node_AddDelegate::GetNodeTitle(ENodeTitleType::Type) const
{
	return GetTitle(TEXT("Bind Event to"));
}
