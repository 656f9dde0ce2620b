#include "GameFramework/Controller.h"

void AController::Possess(APawn* InPawn)
{
	if (!InPawn || InPawn == Pawn)
	{
		return;
	}
	UnPossess();
	if (InPawn->GetController())
	{
		InPawn->GetController()->UnPossess();
	}
	Pawn = InPawn;
	ControlRotation = InPawn->GetActorRotation();
	InPawn->PossessedBy(this);
	ReceivePossess(InPawn);
}

void AController::UnPossess()
{
	if (APawn* const Old = Pawn)
	{
		Pawn = nullptr;
		Old->UnPossessed();
		ReceiveUnPossess(Old);
	}
}
