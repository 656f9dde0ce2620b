#pragma once

#include "Components/MeshComponent.h"
#include "Templates/SubclassOf.h"
#include "SkeletalMeshComponent.generated.h"

class UAnimInstance;
class UAnimationAsset;
class USkeletalMesh;

UENUM(BlueprintType)
namespace EAnimationMode
{
enum Type : int
{
	AnimationBlueprint,
	AnimationSingleNode,
	AnimationCustomMode,
};
}

/** Shows a mesh that bones move. */
UCLASS(Blueprintable, ClassGroup = (Rendering, Common), hidecategories = Object, config = Engine, editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API USkeletalMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	USkeletalMeshComponent();

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Mesh)
	TObjectPtr<USkeletalMesh> SkeletalMeshAsset;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Animation)
	TEnumAsByte<EAnimationMode::Type> AnimationMode = EAnimationMode::AnimationBlueprint;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Animation)
	TSubclassOf<UAnimInstance> AnimClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Animation)
	float GlobalAnimRateScale = 1.0f;

	UFUNCTION(BlueprintCallable, Category = "Components|SkeletalMesh", meta = (Keywords = "AnimBlueprint"))
	void SetAnimInstanceClass(UClass* NewClass);
};
