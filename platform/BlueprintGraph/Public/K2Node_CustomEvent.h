#pragma once

#include "K2Node_Event.h"
#include "K2Node_CustomEvent.generated.h"

/** An event of the user's own, with the user's parameters; it can be called like a function. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CustomEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FKismetUserDeclaredFunctionMetadata MetaData;

	/** The name, and a second line, "Custom Event". */
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
