#include "Factories/BlueprintFactory.h"

#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/FeedbackContext.h"

UBlueprintFactory::UBlueprintFactory()
{
	bCreateNew = true;
	SupportedClass = UBlueprint::StaticClass();
	ParentClass = AActor::StaticClass();
}

UObject* UBlueprintFactory::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn)
{
	return FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn, NAME_None);
}

UObject* UBlueprintFactory::FactoryCreateNew(
	UClass*, UObject* InParent, FName InName, EObjectFlags, UObject*, FFeedbackContext* Warn, FName CallingContext)
{
	if (!FKismetEditorUtilities::CanCreateBlueprintOfClass(ParentClass))
	{
		Warn->Logf(ELogVerbosity::Error, TEXT("Cannot create a Blueprint based on the class '%s'."), *GetNameSafe(ParentClass));
		return nullptr;
	}
	const bool bAnimation = ParentClass->IsChildOf<UAnimInstance>();
	return FKismetEditorUtilities::CreateBlueprint(ParentClass, InParent, InName, BlueprintType,
		bAnimation ? UAnimBlueprint::StaticClass() : UBlueprint::StaticClass(),
		bAnimation ? UAnimBlueprintGeneratedClass::StaticClass() : UBlueprintGeneratedClass::StaticClass(), CallingContext);
}
