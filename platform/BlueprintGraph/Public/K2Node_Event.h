#pragma once

#include "K2Node_EditablePinBase.h"
#include "K2Node_Event.generated.h"

/** Where a graph of events begins to run: a function of the class that the graph overrides. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Event : public UK2Node_EditablePinBase
{
	GENERATED_BODY()

public:
	/** The output that is the event itself, for what takes a delegate. */
	static const FName DelegateOutputName;

	/** The function that the event implements, or whose parameters it has. */
	UPROPERTY()
	FMemberReference EventReference;

	/** Whether the event is the function of EventReference itself. */
	UPROPERTY()
	uint32 bOverrideFunction : 1 = 0;

	/** Called by what the compile makes alone, not by a user. */
	UPROPERTY()
	uint32 bInternalEvent : 1 = 0;

	/** The function's name when it overrides none. */
	UPROPERTY()
	FName CustomFunctionName;

	/** EFunctionFlags beside those of the function that is overridden. */
	UPROPERTY()
	uint32 FunctionFlags = 0;

	FName GetFunctionName() const { return bOverrideFunction ? EventReference.GetMemberName() : CustomFunctionName; }
	/** Null for an event whose parameters are the user's own, and for one whose function is gone. */
	UFunction* FindEventSignatureFunction() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
