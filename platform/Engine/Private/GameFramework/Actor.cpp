#include "GameFramework/Actor.h"

#include "Components/SceneComponent.h"
#include "Engine/World.h"

FTransform AActor::GetActorTransform() const
{
	return RootComponent ? RootComponent->GetComponentTransform() : FTransform::Identity;
}

FVector AActor::GetActorLocation() const
{
	return GetActorTransform().GetLocation();
}

FRotator AActor::GetActorRotation() const
{
	return GetActorTransform().Rotator();
}

FVector AActor::GetActorScale3D() const
{
	return GetActorTransform().GetScale3D();
}

FVector AActor::GetActorForwardVector() const
{
	return RootComponent ? RootComponent->GetForwardVector() : FVector::ForwardVector;
}

float AActor::GetDistanceTo(const AActor* OtherActor) const
{
	return OtherActor ? static_cast<float>(FVector::Dist(GetActorLocation(), OtherActor->GetActorLocation())) : 0.0f;
}

bool AActor::SetActorLocation(const FVector& NewLocation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	if (RootComponent)
	{
		const FTransform Moved(GetActorRotation(), NewLocation, GetActorScale3D());
		RootComponent->SetWorldTransform(Moved, bSweep, OutSweepHitResult, Teleport);
	}
	return RootComponent != nullptr;
}

bool AActor::SetActorRotation(FRotator NewRotation, ETeleportType Teleport)
{
	if (RootComponent)
	{
		RootComponent->SetWorldTransform(FTransform(NewRotation, GetActorLocation(), GetActorScale3D()), false, nullptr, Teleport);
	}
	return RootComponent != nullptr;
}

void AActor::SetActorScale3D(FVector NewScale3D)
{
	if (RootComponent)
	{
		RootComponent->SetWorldTransform(FTransform(GetActorRotation(), GetActorLocation(), NewScale3D));
	}
}

bool AActor::K2_SetActorLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport)
{
	return SetActorLocation(NewLocation, bSweep, &SweepHitResult, bTeleport ? ETeleportType::TeleportPhysics : ETeleportType::None);
}

bool AActor::K2_SetActorRotation(FRotator NewRotation, bool bTeleportPhysics)
{
	return SetActorRotation(NewRotation, bTeleportPhysics ? ETeleportType::TeleportPhysics : ETeleportType::None);
}

void AActor::SetActorTickEnabled(bool bEnabled)
{
	PrimaryActorTick.bStartWithTickEnabled = bEnabled && PrimaryActorTick.bCanEverTick;
}

bool AActor::ActorHasTag(FName Tag) const
{
	return !Tag.IsNone() && Tags.Contains(Tag);
}

UWorld* AActor::GetWorld() const
{
	return GetTypedOuter<UWorld>();
}

void AActor::K2_DestroyActor()
{
	if (ULevel* const Level = Cast<ULevel>(GetOuter()))
	{
		Level->Modify();
		Level->Actors.Remove(this);
	}
	for (UActorComponent* const Component : GetComponents())
	{
		Component->MarkAsGarbage();
	}
	MarkAsGarbage();
}
