#pragma once

#include "EdGraph/EdGraphPin.h"
#include "UObject/UObjectGlobals.h"
#include "UserDefinedStruct.generated.h"

UENUM()
enum EUserDefinedStructureStatus : int
{
	UDSS_UpToDate,
	UDSS_Dirty,
	UDSS_Error,
	UDSS_Duplicate,
	UDSS_MAX,
};

/** A struct made in the editor. */
UCLASS()
class ENGINE_API UUserDefinedStruct : public UScriptStruct
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TEnumAsByte<EUserDefinedStructureStatus> Status = UDSS_UpToDate;

	/** Tells two versions of the struct apart. */
	UPROPERTY()
	FGuid Guid;
};
