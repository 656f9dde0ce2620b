#pragma once

#include "K2Node.h"
#include "K2Node_ExecutionSequence.generated.h"

/** Sequence: goes on several ways, one after the other. Two at first. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ExecutionSequence : public UK2Node
{
	GENERATED_BODY()

public:
	/** Adds a way behind the last one. */
	void AddInputPin();
	/** Removes a way; those behind it move up. Two stay. */
	void RemovePinFromExecutionNode(UEdGraphPin* TargetPin);
	/** Null when there are fewer. */
	UEdGraphPin* GetThenPinGivenIndex(int32 Index) const;

	void AllocateDefaultPins() override;
	void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

private:
	void CreatePins(int32 Count);
};
