#pragma once

#include "K2Node_FunctionTerminator.h"
#include "K2Node_FunctionResult.generated.h"

/** Where a function ends. Its input pins are the function's outputs. A graph may have several; all have the same pins. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FunctionResult : public UK2Node_FunctionTerminator
{
	GENERATED_BODY()

public:
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	/** Takes over what function the graph is, and the pins of the exits that are there. */
	void PostPlacedNewNode() override;
	bool CanDuplicateNode() const override { return true; }
};
