#pragma once

#include "UObject/Object.h"
#include "LiveCodingSettings.generated.h"

UCLASS(config = EditorPerProjectUserSettings)
class ULiveCodingSettings : public UObject
{
	GENERATED_BODY()

public:
	/** Whether C++ is compiled by Live Coding; otherwise it is by Hot Reload. */
	UPROPERTY(config, EditAnywhere, Category = "General", meta = (DisplayName = "Enable Live Coding"))
	bool bEnabled = true;
};
