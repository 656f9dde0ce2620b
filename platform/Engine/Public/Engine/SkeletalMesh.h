#pragma once

#include "UObject/UObjectGlobals.h"
#include "SkeletalMesh.generated.h"

class USkeleton;

/** An asset of triangles that bones move. Here it is a name with its skeleton; nothing draws it. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API USkeletalMesh : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Category = Mesh, AssetRegistrySearchable, VisibleAnywhere, BlueprintReadOnly)
	TObjectPtr<USkeleton> Skeleton;
};
