#pragma once

#include "K2Node.h"
#include "K2Node_SwitchEnum.generated.h"

/** Switch on X: a way for each enumerator. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SwitchEnum : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UEnum> Enum;

	/** Those that had a way when the pins were made. */
	UPROPERTY()
	TArray<FName> EnumEntries;

	/** The node's pins are made afterwards. */
	void SetEnum(UEnum* InEnum);
	UEdGraphPin* GetSelectionPin() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
