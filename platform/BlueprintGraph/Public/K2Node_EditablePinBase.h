#pragma once

#include "K2Node.h"
#include "K2Node_EditablePinBase.generated.h"

/** What a user says about a function or custom event. */
USTRUCT()
struct BLUEPRINTGRAPH_API FKismetUserDeclaredFunctionMetadata
{
	GENERATED_BODY()

	UPROPERTY()
	FText ToolTip;

	UPROPERTY()
	FText Category;

	UPROPERTY()
	FText Keywords;

	UPROPERTY()
	FText CompactNodeTitle;

	UPROPERTY()
	bool bCallInEditor = false;
};

/** A pin that a user has made. */
struct FUserPinInfo
{
	FName PinName;
	FEdGraphPinType PinType;
	EEdGraphPinDirection DesiredPinDirection = EGPD_Input;
	FString PinDefaultValue;
};

/** A node to which users add pins: a function's parameters. */
UCLASS(Abstract)
class BLUEPRINTGRAPH_API UK2Node_EditablePinBase : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bIsEditable : 1 = 0;

	/** In the order of their pins, which stand behind the node's other ones. */
	TArray<TSharedPtr<FUserPinInfo>> UserDefinedPins;

	bool IsEditable() const { return bIsEditable; }
	/**
	 * Adds the pin and its description, whether the node is editable or not.
	 * @param bUseUniqueName a name that is taken gets a number
	 */
	UEdGraphPin* CreateUserDefinedPin(
		const FName InPinName, const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, bool bUseUniqueName = true);
	void RemoveUserDefinedPin(TSharedPtr<FUserPinInfo> PinToRemove);
	void RemoveUserDefinedPinByName(const FName PinName);
	bool UserDefinedPinExists(const FName PinName) const;
	/** The function's parameters (or results) as user-defined pins. */
	void CreateUserDefinedPinsForFunctionEntryExit(const UFunction* Function, bool bForFunctionEntry);

	void AllocateDefaultPins() override;
	void Serialize(FArchive& Ar) override;

protected:
	virtual bool IsPinNameTaken(FName Name) const { return FindPin(Name) != nullptr; }

private:
	/** The name, with a number when it is taken. */
	FName CreateUniquePinName(FName SourcePinName) const;
	UEdGraphPin* CreatePinFromUserDefinition(const FUserPinInfo& Info);
};
