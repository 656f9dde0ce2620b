#pragma once

#include "K2Node.h"
#include "K2Node_MakeArray.generated.h"

/** Make Array: an array of its inputs, whose type is that of the first link. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MakeArray : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumInputs = 1;

	/** Adds an input behind the last one. */
	void AddInputPin();
	UEdGraphPin* GetOutputPin() const;

	bool IsNodePure() const override { return true; }
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void PostReconstructNode() override;
	void PinConnectionListChanged(UEdGraphPin* Pin) override;
	bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

private:
	void PropagatePinType();
};
