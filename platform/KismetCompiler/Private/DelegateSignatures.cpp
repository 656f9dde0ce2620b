#include "DelegateSignatures.h"

#include "UObject/ClassReplacement.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

FName FDelegateSignatures::GetName(FName VariableName)
{
	return FName(VariableName.ToString() + TEXT("__DelegateSignature"));
}

void FDelegateSignatures::Complete(FProperty& Property)
{
	auto* const Single = CastField<FDelegateProperty>(&Property);
	auto* const Multicast = CastField<FMulticastDelegateProperty>(&Property);
	if (Single && !Single->SignatureFunction)
	{
		Single->SignatureFunction = FindOrMake(Property.GetFName());
	}
	if (Multicast && !Multicast->SignatureFunction)
	{
		Multicast->SignatureFunction = FindOrMake(Property.GetFName());
	}
}

UFunction* FDelegateSignatures::FindOrMake(FName VariableName)
{
	const FName Name = GetName(VariableName);
	if (UFunction* const FromGraph = Members.Class.FindFunctionByName(Name, false))
	{
		return FromGraph;
	}
	const UFunction* const Model = FindModel(VariableName);
	UFunction* const Made = Members.AddFunction(Name, FUNC_Public | FUNC_Delegate | FUNC_MulticastDelegate);
	if (Made && Model)
	{
		CopyOwnProperties(Model, Made);
	}
	if (Made)
	{
		Made->StaticLink();
	}
	return Made;
}

const UFunction* FDelegateSignatures::FindModel(FName VariableName) const
{
	const FName Given(VariableName.ToString() + TEXT("_Signature"));
	if (const auto* const Function = Cast<UFunction>(StaticFindObjectFast(UFunction::StaticClass(), &Members.Class, Given)))
	{
		return Function;
	}
	return Previous ? Previous->FindFunctionByName(GetName(VariableName), false) : nullptr;
}
