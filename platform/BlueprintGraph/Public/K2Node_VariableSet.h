#pragma once

#include "K2Node_Variable.h"
#include "K2Node_VariableSet.generated.h"

/** Gives a variable a value. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_VariableSet : public UK2Node_Variable
{
	GENERATED_BODY()

public:
	/** The output on which the new value can be read. */
	static const FName OutputPinName;

	FName GetVariableOutputPinName() const { return OutputPinName; }
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
