#pragma once

#include "UObject/UObjectGlobals.h"
#include "StaticMesh.generated.h"

class UMaterialInterface;

/** A slot of a mesh, and what it is painted with. */
USTRUCT(BlueprintType)
struct ENGINE_API FStaticMaterial
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = StaticMesh)
	TObjectPtr<UMaterialInterface> MaterialInterface;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = StaticMesh)
	FName MaterialSlotName;
};

/** An asset of triangles. Here it is a name with its materials; nothing draws it. */
UCLASS(hidecategories = Object, MinimalAPI, BlueprintType, config = Engine)
class ENGINE_API UStaticMesh : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = StaticMesh)
	TArray<FStaticMaterial> StaticMaterials;

	UPROPERTY(EditAnywhere, Category = StaticMesh)
	int32 LightMapResolution = 4;
};
