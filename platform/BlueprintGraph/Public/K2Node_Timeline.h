#pragma once

#include "K2Node.h"
#include "K2Node_Timeline.generated.h"

class UTimelineTemplate;

/** Runs a timeline of the Blueprint: an output for each of its tracks. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Timeline : public UK2Node
{
	GENERATED_BODY()

public:
	/** The timeline's variable. */
	UPROPERTY()
	FName TimelineName;

	UPROPERTY()
	FGuid TimelineGuid;

	// As the template has them.
	UPROPERTY(Transient)
	uint32 bAutoPlay : 1 = 0;

	UPROPERTY(Transient)
	uint32 bLoop : 1 = 0;

	UPROPERTY(Transient)
	uint32 bReplicated : 1 = 0;

	UPROPERTY(Transient)
	uint32 bIgnoreTimeDilation : 1 = 0;

	/** Null when the Blueprint has no timeline of that name. */
	UTimelineTemplate* GetTemplate() const;
	UEdGraphPin* GetPlayPin() const;
	UEdGraphPin* GetUpdatePin() const;
	UEdGraphPin* GetFinishedPin() const;

	void AllocateDefaultPins() override;
	FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	void ValidateNodeDuringCompilation(FCompilerResultsLog& MessageLog) const override;
};
