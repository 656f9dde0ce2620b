#pragma once

#include "UObject/UObjectGlobals.h"
#include "Texture2D.generated.h"

UCLASS(abstract, BlueprintType)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Texture, meta = (DisplayName = "sRGB"))
	uint8 SRGB : 1 = 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = LevelOfDetail, meta = (DisplayName = "LOD Bias"))
	int32 LODBias = 0;
};

/** An asset of a picture. Here it is a name with its settings; there are no pixels. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UTexture2D : public UTexture
{
	GENERATED_BODY()
};
