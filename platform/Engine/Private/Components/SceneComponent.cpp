#include "Components/SceneComponent.h"

USceneComponent::USceneComponent()
{
	bAutoActivate = true;
}

void USceneComponent::SetupAttachment(USceneComponent* InParent, FName InSocketName)
{
	check(InParent != this);
	DetachFromParent();
	AttachParent = InParent;
	AttachSocketName = InSocketName;
	if (InParent)
	{
		InParent->AttachChildren.AddUnique(this);
	}
}

bool USceneComponent::AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules, FName InSocketName)
{
	for (const USceneComponent* Above = InParent; Above; Above = Above->AttachParent)
	{
		if (Above == this)
		{
			return false;
		}
	}
	const FTransform InWorld = GetComponentTransform();
	SetupAttachment(InParent, InSocketName);
	const FTransform Kept = InParent ? InWorld.GetRelativeTransform(InParent->GetComponentTransform()) : InWorld;
	const auto Choose = [](EAttachmentRule Rule, auto& Value, const auto& KeptInWorld, const auto& Snapped)
	{
		if (Rule != EAttachmentRule::KeepRelative)
		{
			Value = Rule == EAttachmentRule::KeepWorld ? KeptInWorld : Snapped;
		}
	};
	Choose(AttachmentRules.LocationRule, RelativeLocation, Kept.GetLocation(), FVector::ZeroVector);
	Choose(AttachmentRules.RotationRule, RelativeRotation, Kept.Rotator(), FRotator::ZeroRotator);
	Choose(AttachmentRules.ScaleRule, RelativeScale3D, Kept.GetScale3D(), FVector::OneVector);
	return true;
}

void USceneComponent::DetachFromParent()
{
	if (AttachParent)
	{
		AttachParent->AttachChildren.Remove(this);
	}
	AttachParent = nullptr;
	AttachSocketName = NAME_None;
}

FTransform USceneComponent::GetComponentTransform() const
{
	FTransform Transform = GetRelativeTransform();
	for (const USceneComponent* Parent = AttachParent; Parent; Parent = Parent->AttachParent)
	{
		Transform = Transform * Parent->GetRelativeTransform();
	}
	return Transform;
}

void USceneComponent::SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeLocationAndRotation(NewLocation, RelativeRotation, bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeLocationAndRotation(RelativeLocation, NewRotation, bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetRelativeRotation(const FQuat& NewRotation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeLocationAndRotation(RelativeLocation, NewRotation, bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetRelativeLocationAndRotation(
	FVector NewLocation, const FQuat& NewRotation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	// The same rotation stays as it was written: through a quaternion its angles could change.
	const bool bSame = NewRotation.Equals(RelativeRotation.Quaternion());
	SetRelativeLocationAndRotation(NewLocation, bSame ? RelativeRotation : NewRotation.Rotator(), bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetRelativeLocationAndRotation(
	FVector NewLocation, FRotator NewRotation, bool, FHitResult* OutSweepHitResult, ETeleportType)
{
	RelativeLocation = NewLocation;
	RelativeRotation = NewRotation;
	if (OutSweepHitResult)
	{
		*OutSweepHitResult = FHitResult();
	}
}

void USceneComponent::SetRelativeScale3D(FVector NewScale3D)
{
	RelativeScale3D = NewScale3D;
}

void USceneComponent::SetRelativeTransform(
	const FTransform& NewTransform, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeLocationAndRotation(NewTransform.GetLocation(), NewTransform.GetRotation(), bSweep, OutSweepHitResult, Teleport);
	SetRelativeScale3D(NewTransform.GetScale3D());
}

void USceneComponent::SetWorldTransform(const FTransform& NewTransform, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	const FTransform Relative = AttachParent ? NewTransform.GetRelativeTransform(AttachParent->GetComponentTransform()) : NewTransform;
	SetRelativeTransform(Relative, bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetVisibility(bool bNewVisibility, bool bPropagateToChildren)
{
	bVisible = bNewVisibility;
	for (USceneComponent* const Child : AttachChildren)
	{
		if (bPropagateToChildren)
		{
			Child->SetVisibility(bNewVisibility, true);
		}
	}
}

void USceneComponent::SetHiddenInGame(bool NewHidden, bool bPropagateToChildren)
{
	bHiddenInGame = NewHidden;
	for (USceneComponent* const Child : AttachChildren)
	{
		if (bPropagateToChildren)
		{
			Child->SetHiddenInGame(NewHidden, true);
		}
	}
}

void USceneComponent::K2_SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport)
{
	SetRelativeLocation(NewLocation, bSweep, &SweepHitResult, bTeleport ? ETeleportType::TeleportPhysics : ETeleportType::None);
}

void USceneComponent::K2_SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport)
{
	SetRelativeRotation(NewRotation, bSweep, &SweepHitResult, bTeleport ? ETeleportType::TeleportPhysics : ETeleportType::None);
}

FVector USceneComponent::GetForwardVector() const
{
	return GetComponentTransform().GetRotation().RotateVector(FVector::ForwardVector);
}
