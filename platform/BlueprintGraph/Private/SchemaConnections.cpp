#include "EdGraphSchema_K2.h"

#include "ClassRelations.h"
#include "K2Node.h"

namespace
{
using FSchema = UEdGraphSchema_K2;

UClass* GetClass(const FEdGraphPinType& Type, const UClass* CallingContext)
{
	return Type.PinSubCategory == FSchema::PSC_Self ? const_cast<UClass*>(CallingContext) : Cast<UClass>(Type.PinSubCategoryObject.Get());
}

bool AreClassesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	const UClass* const From = GetClass(Output, CallingContext);
	const UClass* const To = GetClass(Input, CallingContext);
	const bool bUnknownSelf = !CallingContext && (Output.PinSubCategory == FSchema::PSC_Self || Input.PinSubCategory == FSchema::PSC_Self);
	if (bUnknownSelf)
	{
		return true;
	}
	if (Input.PinCategory == FSchema::PC_Interface)
	{
		return HasInterface(From, To);
	}
	// An interface's object is some object, of a class that nobody knows.
	const bool bFromInterface = Output.PinCategory == FSchema::PC_Interface;
	return bFromInterface ? To == UObject::StaticClass() : From && To && DerivesFrom(From, To);
}

bool AreStructsCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass*)
{
	const UStruct* const From = Cast<UStruct>(Output.PinSubCategoryObject.Get());
	const UStruct* const To = Cast<UStruct>(Input.PinSubCategoryObject.Get());
	return From && To && From->IsChildOf(To);
}

/** An enum is a number as well, but not the other way round. */
bool AreBytesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass*)
{
	const UObject* const To = Input.PinSubCategoryObject.Get();
	return !To || To == Output.PinSubCategoryObject.Get();
}

bool AreSignaturesCompatible(const UFunction* A, const UFunction* B)
{
	TFieldIterator<FProperty> OfA(A, EFieldIterationFlags::None);
	TFieldIterator<FProperty> OfB(B, EFieldIterationFlags::None);
	for (; OfA && OfB; ++OfA, ++OfB)
	{
		FEdGraphPinType TypeA;
		FEdGraphPinType TypeB;
		FSchema::ConvertPropertyToPinType(*OfA, TypeA);
		FSchema::ConvertPropertyToPinType(*OfB, TypeB);
		// Whether a parameter comes by reference does not matter to the one that is called.
		TypeA.bIsReference = TypeB.bIsReference;
		TypeA.bIsConst = TypeB.bIsConst;
		if (TypeA != TypeB)
		{
			return false;
		}
	}
	return !OfA && !OfB;
}

bool AreDelegatesCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	UClass* const Scope = const_cast<UClass*>(CallingContext);
	const UFunction* const From = FSchema::FindDelegateSignature(Output, Scope);
	const UFunction* const To = FSchema::FindDelegateSignature(Input, Scope);
	// An event that has not been compiled yet is judged when it is.
	return !From || !To || AreSignaturesCompatible(From, To);
}

/** Element for element; the container is another matter. */
bool AreTerminalsCompatible(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext)
{
	struct FRule
	{
		FName From;
		FName To;
		bool (*IsCompatible)(const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext);
	};
	static const FRule Rules[] = {
		{ FSchema::PC_Object, FSchema::PC_Object, AreClassesCompatible },
		{ FSchema::PC_Object, FSchema::PC_Interface, AreClassesCompatible },
		{ FSchema::PC_Interface, FSchema::PC_Interface, AreClassesCompatible },
		{ FSchema::PC_Interface, FSchema::PC_Object, AreClassesCompatible },
		{ FSchema::PC_Class, FSchema::PC_Class, AreClassesCompatible },
		{ FSchema::PC_SoftObject, FSchema::PC_SoftObject, AreClassesCompatible },
		{ FSchema::PC_SoftClass, FSchema::PC_SoftClass, AreClassesCompatible },
		{ FSchema::PC_Struct, FSchema::PC_Struct, AreStructsCompatible },
		{ FSchema::PC_Byte, FSchema::PC_Byte, AreBytesCompatible },
		{ FSchema::PC_Delegate, FSchema::PC_Delegate, AreDelegatesCompatible },
		{ FSchema::PC_MCDelegate, FSchema::PC_MCDelegate, AreDelegatesCompatible },
	};
	for (const FRule& Rule : Rules)
	{
		if (Rule.From == Output.PinCategory && Rule.To == Input.PinCategory)
		{
			return Rule.IsCompatible(Output, Input, CallingContext);
		}
	}
	return Output.PinCategory == Input.PinCategory;
}

FEdGraphPinType ValueTypeOf(const FEdGraphPinType& Map)
{
	const FEdGraphTerminalType& Value = Map.PinValueType;
	return FEdGraphPinType(
		Value.TerminalCategory, Value.TerminalSubCategory, Value.TerminalSubCategoryObject.Get(), EPinContainerType::None, false, {});
}

FPinConnectionResponse Disallow(const FString& Reason)
{
	return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, Reason);
}

bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason)
{
	const UK2Node* const Node = Cast<UK2Node>(MyPin->GetOwningNode());
	return Node && Node->IsConnectionDisallowed(MyPin, OtherPin, OutReason);
}

/** An execution output leads one way, a data input has one source; other pins take any number of links. */
bool TakesOneLink(const UEdGraphPin* Pin)
{
	return FSchema::IsExecPin(*Pin) == (Pin->Direction == EGPD_Output);
}
}

UEdGraphPin* UEdGraphSchema_K2::FindExecutionPin(const UEdGraphNode& Node, EEdGraphPinDirection PinDirection)
{
	UEdGraphPin* const* const Found =
		Node.Pins.FindByPredicate([=](const UEdGraphPin* Pin) { return Pin->Direction == PinDirection && IsExecPin(*Pin); });
	return Found ? *Found : nullptr;
}

bool UEdGraphSchema_K2::ArePinTypesCompatible(
	const FEdGraphPinType& Output, const FEdGraphPinType& Input, const UClass* CallingContext) const
{
	const auto IsAnything = [](const FEdGraphPinType& Type) { return Type.PinCategory == PC_Wildcard && !Type.IsContainer(); };
	if (IsAnything(Output) || IsAnything(Input))
	{
		return true;
	}
	if (Output.ContainerType != Input.ContainerType)
	{
		return false;
	}
	if (Output.PinCategory == PC_Wildcard || Input.PinCategory == PC_Wildcard)
	{
		return true;
	}
	return AreTerminalsCompatible(Output, Input, CallingContext) &&
		(!Output.IsMap() || AreTerminalsCompatible(ValueTypeOf(Output), ValueTypeOf(Input), CallingContext));
}

bool UEdGraphSchema_K2::ArePinsCompatible(const UEdGraphPin* PinA, const UEdGraphPin* PinB, const UClass* CallingContext) const
{
	if (PinA->Direction == PinB->Direction)
	{
		return false;
	}
	const bool bFromA = PinA->Direction == EGPD_Output;
	return ArePinTypesCompatible((bFromA ? PinA : PinB)->PinType, (bFromA ? PinB : PinA)->PinType, CallingContext);
}

FPinConnectionResponse UEdGraphSchema_K2::CanCreateConnection(const UEdGraphPin* A, const UEdGraphPin* B) const
{
	const FPinConnectionResponse General = Super::CanCreateConnection(A, B);
	if (!General.CanSafeConnect())
	{
		return General;
	}
	for (const UEdGraphPin* const Pin : { A, B })
	{
		if (Pin->bOrphanedPin)
		{
			return Disallow(FString::Printf(TEXT("Cannot make new connections to orphaned pin: %s"), *Pin->GetName()));
		}
		if (Pin->bNotConnectable)
		{
			return Disallow(FString::Printf(TEXT("%s cannot be connected"), *Pin->GetName()));
		}
	}
	FString Reason;
	if (IsConnectionDisallowed(A, B, Reason) || IsConnectionDisallowed(B, A, Reason))
	{
		return Disallow(Reason);
	}
	const UK2Node* const Node = Cast<UK2Node>(A->GetOwningNode());
	if (!ArePinsCompatible(A, B, Node ? Node->GetBlueprintClassFromNode() : nullptr))
	{
		return IsExecPin(*A) || IsExecPin(*B) ? Disallow(TEXT("Exec pins are only compatible with other exec pins"))
											  : Disallow(FString::Printf(TEXT("%s is not compatible with %s."),
													*TypeToText(A->PinType).ToString(), *TypeToText(B->PinType).ToString()));
	}
	const bool bBreakA = TakesOneLink(A) && A->HasAnyConnections();
	const bool bBreakB = TakesOneLink(B) && B->HasAnyConnections();
	if (bBreakA || bBreakB)
	{
		return FPinConnectionResponse(
			bBreakA ? CONNECT_RESPONSE_BREAK_OTHERS_A : CONNECT_RESPONSE_BREAK_OTHERS_B, FString(TEXT("Replace existing connections")));
	}
	return General;
}
