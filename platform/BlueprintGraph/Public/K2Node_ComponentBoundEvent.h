#pragma once

#include "K2Node_Event.h"
#include "K2Node_ComponentBoundEvent.generated.h"

/** Runs when a component's event dispatcher calls: "On Component Begin Overlap (Trigger)". */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ComponentBoundEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName DelegatePropertyName;

	/** The class that has the dispatcher: the component's or one that it derives from. */
	UPROPERTY()
	TObjectPtr<UClass> DelegateOwnerClass;

	/** The variable that holds the component. */
	UPROPERTY()
	FName ComponentPropertyName;

	/** To be called once the node is in its graph. */
	void InitializeComponentBoundEventParams(
		const FObjectProperty* InComponentProperty, const FMulticastDelegateProperty* InDelegateProperty);
	/** Null when the dispatcher is gone. */
	FMulticastDelegateProperty* GetTargetDelegateProperty() const;

	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
