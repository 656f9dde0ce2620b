#pragma once

#include "K2Node_BaseMCDelegate.h"
#include "K2Node_AddDelegate.generated.h"

/** Binds an event to an event dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AddDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetDelegatePin() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
