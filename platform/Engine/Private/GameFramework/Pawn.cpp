#include "GameFramework/Pawn.h"

#include "GameFramework/Controller.h"

FRotator APawn::GetControlRotation() const
{
	return Controller ? Controller->GetControlRotation() : FRotator::ZeroRotator;
}

void APawn::AddMovementInput(FVector WorldDirection, float ScaleValue, bool bForce)
{
	if (bForce || !Controller || !Controller->IsMoveInputIgnored())
	{
		ControlInputVector = ControlInputVector + WorldDirection * ScaleValue;
	}
}

FVector APawn::ConsumeMovementInputVector()
{
	return std::exchange(ControlInputVector, FVector::ZeroVector);
}

void APawn::PossessedBy(AController* NewController)
{
	Controller = NewController;
	ReceivePossessed(NewController);
}

void APawn::UnPossessed()
{
	AController* const Old = Controller;
	Controller = nullptr;
	ReceiveUnpossessed(Old);
}
