#pragma once

#include "Components/PrimitiveComponent.h"
#include "ArrowComponent.generated.h"

/** An arrow in the editor, which shows a direction. */
UCLASS(ClassGroup = Utility,
	hidecategories = (Object, LOD, Physics, Lighting, TextureStreaming, Activation, "Components|Activation", Collision), editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UArrowComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UArrowComponent();

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ArrowComponent)
	FColor ArrowColor = FColor(255, 0, 0, 255);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ArrowComponent)
	float ArrowSize = 1.0f;

	/** In centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ArrowComponent)
	float ArrowLength = 80.0f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ArrowComponent)
	uint8 bIsScreenSizeScaled : 1 = 0;
};
