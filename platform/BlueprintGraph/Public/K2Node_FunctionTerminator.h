#pragma once

#include "K2Node_EditablePinBase.h"
#include "K2Node_FunctionTerminator.generated.h"

/** The entry or an exit of a function's graph. */
UCLASS(Abstract)
class BLUEPRINTGRAPH_API UK2Node_FunctionTerminator : public UK2Node_EditablePinBase
{
	GENERATED_BODY()

public:
	/** The function that the graph overrides or implements; of a new function its name alone, without a class. */
	UPROPERTY()
	FMemberReference FunctionReference;

	/** The function whose parameters the node shows beside the user's own; null for a new function. */
	UFunction* FindSignatureFunction() const;
	bool CanDuplicateNode() const override { return false; }

protected:
	/** By the entry or an exit, for all pins are parameters of one function. */
	bool IsPinNameTaken(FName Name) const override;
};
