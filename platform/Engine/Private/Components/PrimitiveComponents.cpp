// What the constructors and setters of components with a shape do.

#include "Components/ArrowComponent.h"
#include "Components/CapsuleComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "Components/StaticMeshComponent.h"

#include "Animation/AnimInstance.h"

UPrimitiveComponent::UPrimitiveComponent()
{
	bAutoActivate = false;
	bGenerateOverlapEvents = false;
	CastShadow = false;
	BodyInstance.CollisionProfileName = FName(TEXT("BlockAllDynamic"));
}

UShapeComponent::UShapeComponent()
{
	bHiddenInGame = true;
	SetGenerateOverlapEvents(true);
	BodyInstance.CollisionProfileName = FName(TEXT("OverlapAllDynamic"));
}

UArrowComponent::UArrowComponent()
{
	bHiddenInGame = true;
	BodyInstance.CollisionProfileName = FName(TEXT("NoCollision"));
}

void UCapsuleComponent::SetCapsuleSize(float InRadius, float InHalfHeight, bool)
{
	CapsuleRadius = FMath::Max(0.0f, InRadius);
	CapsuleHalfHeight = FMath::Max(CapsuleRadius, InHalfHeight);
}

UMeshComponent::UMeshComponent()
{
	CastShadow = true;
}

UMaterialInterface* UMeshComponent::GetMaterial(int32 ElementIndex) const
{
	return OverrideMaterials.IsValidIndex(ElementIndex) ? OverrideMaterials[ElementIndex].Get() : nullptr;
}

void UMeshComponent::SetMaterial(int32 ElementIndex, UMaterialInterface* Material)
{
	constexpr int32 MostMaterials = 1024;
	if (ElementIndex < 0 || ElementIndex >= MostMaterials)
	{
		return;
	}
	if (!OverrideMaterials.IsValidIndex(ElementIndex))
	{
		OverrideMaterials.SetNum(ElementIndex + 1);
	}
	OverrideMaterials[ElementIndex] = Material;
}

UStaticMeshComponent::UStaticMeshComponent()
{
	SetGenerateOverlapEvents(true);
}

bool UStaticMeshComponent::SetStaticMesh(UStaticMesh* NewMesh)
{
	const bool bChanges = StaticMesh != NewMesh;
	StaticMesh = NewMesh;
	return bChanges;
}

USkeletalMeshComponent::USkeletalMeshComponent()
{
	bAutoActivate = true;
	PrimaryComponentTick.bCanEverTick = true;
	BodyInstance.CollisionProfileName = FName(TEXT("CharacterMesh"));
}

void USkeletalMeshComponent::SetAnimInstanceClass(UClass* NewClass)
{
	AnimationMode = EAnimationMode::AnimationBlueprint;
	AnimClass = NewClass;
}
