#include "K2Node_CallFunction.h"

#include "ClassRelations.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_CallParentFunction.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Parameters.h"

namespace
{
/** Of a pin that the compile fills in. */
void HideFilledInPin(const UFunction* Function, UEdGraphPin& Pin)
{
	for (const TCHAR* const Key :
		{ TEXT("WorldContext"), TEXT("DefaultToSelf"), TEXT("LatentInfo"), TEXT("HidePin"), TEXT("InternalUseParam") })
	{
		if (NamesParameter(Function, Key, Pin.PinName))
		{
			Pin.bHidden = true;
		}
	}
}
}

void UK2Node_CallFunction::SetFromFunction(const UFunction* Function)
{
	bIsPureFunc = Function->HasAnyFunctionFlags(FUNC_BlueprintPure);
	bIsConstFunc = Function->HasAnyFunctionFlags(FUNC_Const);
	FunctionReference.SetFromField(Function, IsOwnClass(Function->GetOwnerClass()));
	TitleCache.MarkDirty();
}

UFunction* UK2Node_CallFunction::GetTargetFunction() const
{
	return ResolveFunction(FunctionReference, *this);
}

UEdGraphPin* UK2Node_CallFunction::GetReturnValuePin() const
{
	return FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output);
}

UEdGraphPin* UK2Node_CallFunction::GetThenPin() const
{
	return FindPin(UEdGraphSchema_K2::PN_Then, EGPD_Output);
}

bool UK2Node_CallFunction::IsLatentFunction() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function && Function->HasMetaData(TEXT("Latent"));
}

FText UK2Node_CallFunction::GetUserFacingFunctionName(const UFunction* Function)
{
	return UEdGraphSchema_K2::GetFriendlySignatureName(Function);
}

void UK2Node_CallFunction::AllocateDefaultPins()
{
	if (const UFunction* const Function = GetTargetFunction())
	{
		bIsPureFunc = Function->HasAnyFunctionFlags(FUNC_BlueprintPure);
		bIsConstFunc = Function->HasAnyFunctionFlags(FUNC_Const);
		CreatePinsForFunctionCall(Function);
	}
}

UEdGraphPin* UK2Node_CallFunction::CreateSelfPin(const UFunction* Function)
{
	UClass* const Class = Function->GetOwnerClass();
	UEdGraphPin* const Pin = CreateTargetPin(Class->ClassGeneratedBy && Class->ClassGeneratedBy == GetBlueprint() ? nullptr : Class);
	if (Function->HasAnyFunctionFlags(FUNC_Static))
	{
		// A library's own object takes the place of the target.
		Pin->DefaultObject = IsOwnClass(Class) ? nullptr : UEdGraphSchema_K2::GetAuthoritativeClass(Class)->GetDefaultObject();
		Pin->bHidden = true;
		return Pin;
	}
	Pin->bHidden = Function->HasMetaData(TEXT("HideSelfPin")) || (IsOwnClass(Class) && bIsPureFunc && !bIsConstFunc);
	return Pin;
}

void UK2Node_CallFunction::CreatePinsForFunctionCall(const UFunction* Function)
{
	if (!bIsPureFunc)
	{
		CreateExecPins();
		GetThenPin()->PinFriendlyName = Function->HasMetaData(TEXT("Latent")) ? FText::FromName(UEdGraphSchema_K2::PN_Completed) : FText();
	}
	CreateSelfPin(Function);
	for (TFieldIterator<FProperty> Parameter(Function, EFieldIterationFlags::None); Parameter; ++Parameter)
	{
		const EEdGraphPinDirection Direction = IsInput(*Parameter) ? EGPD_Input : EGPD_Output;
		const bool bParameter = Parameter->HasAnyPropertyFlags(CPF_Parm);
		UEdGraphPin* const Pin = bParameter ? CreateParameterPin(Function, *Parameter, Direction) : nullptr;
		if (Pin)
		{
			Pin->PinFriendlyName = Parameter->HasMetaData(TEXT("DisplayName")) ? Parameter->GetDisplayNameText() : FText();
			Pin->bAdvancedView = Parameter->HasAnyPropertyFlags(CPF_AdvancedDisplay);
			Pin->bDefaultValueIsIgnored = Pin->PinType.bIsReference && Pin->PinType.bIsConst &&
				(Pin->PinType.IsContainer() || !NamesParameter(Function, TEXT("AutoCreateRefTerm"), Pin->PinName));
			HideFilledInPin(Function, *Pin);
		}
	}
}

FText UK2Node_CallFunction::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	if (TitleType != ENodeTitleType::FullTitle)
	{
		const UFunction* const Function = GetTargetFunction();
		return Function ? GetUserFacingFunctionName(Function) : FText::FromName(GetFunctionName());
	}
	if (const FText* const Kept = TitleCache.Find(FunctionReference))
	{
		return *Kept;
	}
	const UFunction* const Function = GetTargetFunction();
	return Function ? TitleCache.Set(FunctionReference, MakeTitle(Function)) : FText::FromName(GetFunctionName());
}

FText UK2Node_CallFunction::MakeTitle(const UFunction* Function) const
{
	const FText Name = GetUserFacingFunctionName(Function);
	const UClass* const Class = Function->GetOwnerClass();
	if (!Class || (Class->ClassGeneratedBy && Class->ClassGeneratedBy == GetBlueprint()))
	{
		return Name;
	}
	return FText::FromString(
		FString::Printf(TEXT("%s\nTarget is %s"), *Name.ToString(), *UEdGraphSchema_K2::GetFriendlyClassName(Class).ToString()));
}

FText UK2Node_CallFunction::GetTooltipText() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function ? Function->GetToolTipText() : Super::GetTooltipText();
}

void UK2Node_CallFunction::PostReconstructNode()
{
	TitleCache.MarkDirty();
	ConformOutputType();
}

void UK2Node_CallFunction::ConformOutputType()
{
	const UFunction* const Function = GetTargetFunction();
	if (!Function || !Function->HasMetaData(TEXT("DeterminesOutputType")))
	{
		return;
	}
	const UEdGraphPin* const ClassPin = FindPin(Function->GetMetaData(TEXT("DeterminesOutputType")), EGPD_Input);
	const FString& OutputName = Function->GetMetaData(TEXT("DynamicOutputParam"));
	UEdGraphPin* const Output = OutputName.IsEmpty() ? GetReturnValuePin() : FindPin(OutputName, EGPD_Output);
	if (ClassPin && Output)
	{
		UObject* const Class = GetClassOfPin(ClassPin);
		Output->PinType.PinSubCategoryObject = Class ? Class : ClassPin->PinType.PinSubCategoryObject.Get();
	}
}

void UK2Node_CallFunction::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	if (!GetTargetFunction())
	{
		const UClass* const Class = FunctionReference.GetMemberParentClass(GetBlueprintClassFromNode());
		MessageLog.Error(TEXT("Could not find a function named \"@@\" in '@@'.\nMake sure '@@' has been compiled for @@"),
			GetFunctionName().ToString(), Class, Class, this);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}

void UK2Node_CallParentFunction::SetFromFunction(const UFunction* Function)
{
	Super::SetFromFunction(Function);
	FunctionReference.SetFromField(Function, false);
}

FText UK2Node_CallParentFunction::GetNodeTitle(ENodeTitleType::Type) const
{
	const UFunction* const Function = GetTargetFunction();
	return FText::FromString(TEXT("Parent: ") + (Function ? GetUserFacingFunctionName(Function).ToString() : GetFunctionName().ToString()));
}

UEdGraphPin* UK2Node_CallParentFunction::CreateSelfPin(const UFunction* Function)
{
	UEdGraphPin* const Pin = Super::CreateSelfPin(Function);
	Pin->bHidden = true;
	return Pin;
}
