#pragma once

#include "K2Node.h"
#include "K2Node_SpawnActorFromClass.generated.h"

/** Puts a new actor into the level. Has an input for each variable that the actor's class exposes on spawn. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SpawnActorFromClass : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetClassPin() const;
	UEdGraphPin* GetSpawnTransformPin() const;
	UEdGraphPin* GetCollisionHandlingOverridePin() const;
	UEdGraphPin* GetOwnerPin() const;
	UEdGraphPin* GetResultPin() const;
	UEdGraphPin* GetThenPin() const;
	/** The class given, or that of the pin linked; null for none. */
	UClass* GetClassToSpawn() const;
	/** Whether the pin is for a variable of the actor. */
	bool IsSpawnVarPin(const UEdGraphPin* Pin) const;

	void AllocateDefaultPins() override;
	void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	// The pins follow the class.
	void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	void PinConnectionListChanged(UEdGraphPin* Pin) override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;

private:
	void CreatePinsForClass(UClass* Class);
	void ClassHasChanged();
};
