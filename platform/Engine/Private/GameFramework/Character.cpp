#include "GameFramework/Character.h"

#include "Components/ArrowComponent.h"
#include "Components/CapsuleComponent.h"
#include "Components/SkeletalMeshComponent.h"
#include "GameFramework/CharacterMovementComponent.h"

const FName ACharacter::MeshComponentName(TEXT("CharacterMesh0"));
const FName ACharacter::CapsuleComponentName(TEXT("CollisionCylinder"));
const FName ACharacter::CharacterMovementComponentName(TEXT("CharMoveComp"));

ACharacter::ACharacter()
{
	PrimaryActorTick.bCanEverTick = true;
	bUseControllerRotationYaw = true;

	CapsuleComponent = CreateDefaultSubobject<UCapsuleComponent>(CapsuleComponentName);
	CapsuleComponent->InitCapsuleSize(34.0f, 88.0f);
	CapsuleComponent->SetCollisionProfileName(FName(TEXT("Pawn")));
	RootComponent = CapsuleComponent;

	ArrowComponent = CreateDefaultSubobject<UArrowComponent>(FName(TEXT("Arrow")));
	ArrowComponent->ArrowColor = FColor(150, 200, 255);
	ArrowComponent->bIsScreenSizeScaled = true;
	ArrowComponent->SetupAttachment(CapsuleComponent);

	CharacterMovement = CreateDefaultSubobject<UCharacterMovementComponent>(CharacterMovementComponentName);
	CharacterMovement->UpdatedComponent = CapsuleComponent;

	Mesh = CreateDefaultSubobject<USkeletalMeshComponent>(MeshComponentName);
	Mesh->SetupAttachment(CapsuleComponent);
}
