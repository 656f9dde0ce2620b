#pragma once

#include "K2Node.h"
#include "Templates/SubclassOf.h"
#include "K2Node_DynamicCast.generated.h"

/** Cast To X: the object as an X, if it is one. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_DynamicCast : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<UObject> TargetType;

	/** Gives null in place of going on another way. */
	void SetPurity(bool bNewPurity);
	UEdGraphPin* GetCastSourcePin() const;
	/** "As" and the class's display name. Null without a class. */
	UEdGraphPin* GetCastResultPin() const;
	UEdGraphPin* GetValidCastPin() const;
	UEdGraphPin* GetInvalidCastPin() const;

	bool IsNodePure() const override { return bIsPureCast; }
	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void PostReconstructNode() override;
	/** The source has the type of what is linked to it. */
	void PinConnectionListChanged(UEdGraphPin* Pin) override;
	bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

private:
	FName GetResultPinName() const;

	UPROPERTY()
	bool bIsPureCast = false;
};
