#pragma once

#include "K2Node_CallFunction.h"
#include "K2Node_CallParentFunction.generated.h"

/** Calls the parent class's function from the one that overrides it. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallParentFunction : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	/** The class is named, so that the call does not end up in the override. */
	void SetFromFunction(const UFunction* Function) override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	UEdGraphPin* CreateSelfPin(const UFunction* Function) override;
};
