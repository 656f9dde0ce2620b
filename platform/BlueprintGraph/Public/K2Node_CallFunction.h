#pragma once

#include "K2Node.h"
#include "K2Node_CallFunction.generated.h"

/** Calls a function of the Blueprint itself, of another object or of a library. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallFunction : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bIsPureFunc : 1 = 0;

	UPROPERTY()
	uint32 bIsConstFunc : 1 = 0;

	UPROPERTY()
	FMemberReference FunctionReference;

	/** The node's pins are made afterwards, by AllocateDefaultPins or ReconstructNode. */
	virtual void SetFromFunction(const UFunction* Function);
	/** Null when there is no such function. */
	UFunction* GetTargetFunction() const;
	FName GetFunctionName() const { return FunctionReference.GetMemberName(); }
	/** Null when the function has no result. */
	UEdGraphPin* GetReturnValuePin() const;
	UEdGraphPin* GetThenPin() const;
	/** Whether the graph goes on some time later. */
	bool IsLatentFunction() const;
	/** "Print String" for PrintString, or its display name. */
	static FText GetUserFacingFunctionName(const UFunction* Function);

	bool IsNodePure() const override { return bIsPureFunc; }
	void AllocateDefaultPins() override;
	/** The function's name; of another class's function a second line, "Target is Actor". */
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	FText GetTooltipText() const override;
	void PostReconstructNode() override;
	void PinDefaultValueChanged(UEdGraphPin* Pin) override { ConformOutputType(); }
	void PinConnectionListChanged(UEdGraphPin* Pin) override { ConformOutputType(); }
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

protected:
	virtual UEdGraphPin* CreateSelfPin(const UFunction* Function);

private:
	void CreatePinsForFunctionCall(const UFunction* Function);
	/** Of a function that gives an object of the class that it is given. */
	void ConformOutputType();
	FText MakeTitle(const UFunction* Function) const;

	mutable FNodeTitleCache TitleCache;
};
