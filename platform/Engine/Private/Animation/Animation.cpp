#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "GameFramework/Pawn.h"

UClass* UAnimBlueprint::GetBlueprintClass() const
{
	return UAnimBlueprintGeneratedClass::StaticClass();
}

AActor* UAnimInstance::GetOwningActor() const
{
	return GetTypedOuter<AActor>();
}

APawn* UAnimInstance::TryGetPawnOwner() const
{
	return GetTypedOuter<APawn>();
}
