#pragma once

#include "Engine/Blueprint.h"
#include "K2Node_FunctionTerminator.h"
#include "K2Node_FunctionEntry.generated.h"

/** Where a function begins. Its output pins are the function's inputs. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FunctionEntry : public UK2Node_FunctionTerminator
{
	GENERATED_BODY()

public:
	/** What the compile calls the function, in place of the graph's name; NAME_None for that. */
	UPROPERTY()
	FName CustomGeneratedFunctionName;

	UPROPERTY()
	FKismetUserDeclaredFunctionMetadata MetaData;

	UPROPERTY()
	TArray<FBPVariableDescription> LocalVariables;

	/** EFunctionFlags; FUNC_Native is never among them. */
	void SetExtraFlags(int32 NewFlags) { ExtraFlags = NewFlags & ~FUNC_Native; }
	void AddExtraFlags(int32 NewFlags) { SetExtraFlags(ExtraFlags | NewFlags); }
	void ClearExtraFlags(int32 FlagsToClear) { ExtraFlags &= ~FlagsToClear; }
	int32 GetExtraFlags() const { return ExtraFlags; }
	/** With those of the function that is overridden. */
	int32 GetFunctionFlags() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	bool CanUserDeleteNode() const override { return false; }

private:
	UPROPERTY()
	int32 ExtraFlags = 0;
};
