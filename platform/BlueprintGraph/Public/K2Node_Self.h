#pragma once

#include "K2Node.h"
#include "K2Node_Self.generated.h"

/** The object that the graph runs on. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Self : public UK2Node
{
	GENERATED_BODY()

public:
	bool IsNodePure() const override { return true; }
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
