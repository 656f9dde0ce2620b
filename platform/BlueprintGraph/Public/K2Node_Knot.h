#pragma once

#include "K2Node.h"
#include "K2Node_Knot.generated.h"

/** Reroute Node: leads a link around something. Its type is that of what is linked to it. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Knot : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetInputPin() const;
	UEdGraphPin* GetOutputPin() const;

	bool IsNodePure() const override;
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void PostReconstructNode() override { PropagatePinType(); }
	void PinConnectionListChanged(UEdGraphPin* Pin) override { PropagatePinType(); }

private:
	/** To the knots linked to this one, too. */
	void PropagatePinType();
};
