#include "K2Node_DynamicCast.h"

#include "ClassRelations.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/CompilerResultsLog.h"

namespace
{
const FName SuccessPinName(TEXT("bSuccess"));

const UClass* GetSourceClass(const UEdGraphPin& Source, const UClass* Own)
{
	const bool bSelf = Source.PinType.PinSubCategory == UEdGraphSchema_K2::PSC_Self;
	return bSelf ? Own : Cast<UClass>(Source.PinType.PinSubCategoryObject.Get());
}
}

FName UK2Node_DynamicCast::GetResultPinName() const
{
	return FName(UEdGraphSchema_K2::PN_CastedValuePrefix + UEdGraphSchema_K2::GetFriendlyClassName(TargetType).ToString());
}

void UK2Node_DynamicCast::SetPurity(bool bNewPurity)
{
	if (bIsPureCast != bNewPurity)
	{
		bIsPureCast = bNewPurity;
		ReconstructNode();
	}
}

UEdGraphPin* UK2Node_DynamicCast::GetCastSourcePin() const
{
	return FindPin(UEdGraphSchema_K2::PN_ObjectToCast, EGPD_Input);
}

UEdGraphPin* UK2Node_DynamicCast::GetCastResultPin() const
{
	return TargetType ? FindPin(GetResultPinName(), EGPD_Output) : nullptr;
}

UEdGraphPin* UK2Node_DynamicCast::GetValidCastPin() const
{
	return FindPin(UEdGraphSchema_K2::PN_CastSucceeded);
}

UEdGraphPin* UK2Node_DynamicCast::GetInvalidCastPin() const
{
	return FindPin(UEdGraphSchema_K2::PN_CastFailed);
}

void UK2Node_DynamicCast::AllocateDefaultPins()
{
	using FSchema = UEdGraphSchema_K2;
	if (!bIsPureCast)
	{
		CreateExecPins();
		CreatePin(EGPD_Output, FSchema::PC_Exec, FSchema::PN_CastFailed)->PinFriendlyName =
			NSLOCTEXT("K2Node", "CastFailed", "Cast Failed");
	}
	CreatePin(EGPD_Input, FSchema::PC_Wildcard, UObject::StaticClass(), FSchema::PN_ObjectToCast);
	if (TargetType)
	{
		const bool bInterface = TargetType->HasAnyClassFlags(CLASS_Interface);
		CreatePin(EGPD_Output, bInterface ? FSchema::PC_Interface : FSchema::PC_Object, TargetType.Get(), GetResultPinName());
	}
	CreatePin(EGPD_Output, FSchema::PC_Boolean, SuccessPinName)->bHidden = !bIsPureCast;
}

FText UK2Node_DynamicCast::GetNodeTitle(ENodeTitleType::Type) const
{
	if (!TargetType)
	{
		return NSLOCTEXT("K2Node", "BadCast", "Bad cast node");
	}
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(TargetType);
	return FText::FromString(TEXT("Cast To ") + (Blueprint ? Blueprint->GetName() : TargetType->GetName()));
}

void UK2Node_DynamicCast::PostReconstructNode()
{
	PinConnectionListChanged(GetCastSourcePin());
}

void UK2Node_DynamicCast::PinConnectionListChanged(UEdGraphPin* Pin)
{
	if (!Pin || Pin != GetCastSourcePin())
	{
		return;
	}
	FEdGraphPinType Type(UEdGraphSchema_K2::PC_Wildcard, {}, UObject::StaticClass(), EPinContainerType::None, false, {});
	if (Pin->HasAnyConnections())
	{
		Type = Pin->LinkedTo[0]->PinType;
		Type.bIsReference = false;
		Type.bIsConst = false;
	}
	Pin->PinType = Type;
}

bool UK2Node_DynamicCast::IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const
{
	const FEdGraphPinType& Type = OtherPin->PinType;
	const bool bObject = Type.PinCategory == UEdGraphSchema_K2::PC_Object || Type.PinCategory == UEdGraphSchema_K2::PC_Interface ||
		Type.PinCategory == UEdGraphSchema_K2::PC_Wildcard;
	if (MyPin != GetCastSourcePin() || (bObject && !Type.IsContainer()))
	{
		return false;
	}
	OutReason = TEXT("Only object references can be cast");
	return true;
}

void UK2Node_DynamicCast::ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const
{
	const UEdGraphPin* const Source = GetCastSourcePin();
	const UClass* const SourceClass = Source ? GetSourceClass(*Source, GetBlueprintClassFromNode()) : nullptr;
	if (!TargetType)
	{
		MessageLog.Error(TEXT("Node @@ has an invalid target type, please delete and recreate it"), this);
	}
	else if (!Source || !Source->HasAnyConnections())
	{
		MessageLog.Warning(TEXT("@@ has no object to cast"), this);
	}
	else if (SourceClass && DerivesFrom(SourceClass, TargetType))
	{
		MessageLog.Note(TEXT("'@@' is already a '@@', so you don't need @@."), SourceClass, TargetType.Get(), this);
	}
	else if (SourceClass && !TargetType->HasAnyClassFlags(CLASS_Interface) && !SourceClass->HasAnyClassFlags(CLASS_Interface) &&
		!DerivesFrom(TargetType, SourceClass))
	{
		MessageLog.Warning(TEXT("'@@' does not inherit from '@@' (@@ would always fail)."), TargetType.Get(), SourceClass, this);
	}
	Super::ValidateNodeDuringCompilation(MessageLog);
}
