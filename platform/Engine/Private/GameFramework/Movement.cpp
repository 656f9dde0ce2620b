#include "GameFramework/CharacterMovementComponent.h"

UMovementComponent::UMovementComponent()
{
	bAutoActivate = true;
	PrimaryComponentTick.bCanEverTick = true;
}

float UCharacterMovementComponent::GetMaxSpeed() const
{
	switch (MovementMode)
	{
	case MOVE_Walking:
	case MOVE_NavWalking:
	case MOVE_Falling: return MaxWalkSpeed;
	case MOVE_Swimming: return MaxSwimSpeed;
	case MOVE_Flying: return MaxFlySpeed;
	case MOVE_None:
	case MOVE_Custom:
	case MOVE_MAX: return 0.0f;
	}
	return 0.0f;
}
