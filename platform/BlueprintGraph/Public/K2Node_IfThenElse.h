#pragma once

#include "K2Node.h"
#include "K2Node_IfThenElse.generated.h"

/** Branch: goes on one way or the other. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_IfThenElse : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetThenPin() const;
	UEdGraphPin* GetElsePin() const;
	UEdGraphPin* GetConditionPin() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};
