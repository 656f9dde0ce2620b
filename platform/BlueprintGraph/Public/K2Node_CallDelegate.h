#pragma once

#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CallDelegate.generated.h"

/** Calls all that is bound to an event dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
