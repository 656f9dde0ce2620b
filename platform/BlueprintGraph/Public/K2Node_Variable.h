#pragma once

#include "K2Node.h"
#include "K2Node_Variable.generated.h"

/** Reads or writes a variable of the Blueprint, of another object or of the function. */
UCLASS(Abstract)
class BLUEPRINTGRAPH_API UK2Node_Variable : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FMemberReference VariableReference;

	FName GetVarName() const { return VariableReference.GetMemberName(); }
	FString GetVarNameString() const { return GetVarName().ToString(); }
	FText GetVarNameText() const { return FText::FromName(GetVarName()); }
	/** @param OwnerClass of a variable that is another class's */
	void SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass);
	/** Null when there is no such variable, or it has not been compiled yet. */
	FProperty* GetPropertyForVariable() const;
	/** The class that the variable is looked for in. */
	UClass* GetVariableSourceClass() const;
	/** The pin that has the variable's name; null when there is no such variable. */
	UEdGraphPin* GetValuePin() const { return FindPin(GetVarName()); }

	void PostReconstructNode() override { TitleCache.MarkDirty(); }
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

protected:
	/** Null when there is no such variable. */
	UEdGraphPin* CreatePinForVariable(EEdGraphPinDirection Direction, FName PinName);
	void CreatePinForSelf();
	/** "Get Health" */
	FText GetTitle(const TCHAR* Verb) const;

private:
	/** Of the property, or else as the Blueprint or the function declares it. */
	bool FindVariableType(FEdGraphPinType& OutType) const;

	mutable FNodeTitleCache TitleCache;
};
