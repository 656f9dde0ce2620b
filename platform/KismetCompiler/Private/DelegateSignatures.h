#pragma once

#include "ClassMembers.h"

/** The functions that tell what an event dispatcher's parameters are: "<Variable>__DelegateSignature". */
class FDelegateSignatures
{
public:
	FDelegateSignatures(FClassMembers& InMembers, const UClass* InPrevious)
		: Members(InMembers)
		, Previous(InPrevious)
	{
	}

	/** Gives a delegate the signature that its type does not name; does nothing for other properties. */
	void Complete(FProperty& Property);

	static FName GetName(FName VariableName);

private:
	/** The one from the signature graph, or a new one with the parameters of what was there before. */
	UFunction* FindOrMake(FName VariableName);
	/** A function "<Variable>_Signature" that was put into the class, or the signature of the last compile. */
	const UFunction* FindModel(FName VariableName) const;

	FClassMembers& Members;
	const UClass* Previous;
};
