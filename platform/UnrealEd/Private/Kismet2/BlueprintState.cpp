// What changes make of a Blueprint, and what kind it is.

#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"

void FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint)
{
	if (Blueprint->Status != BS_BeingCreated && !Blueprint->bBeingCompiled)
	{
		Blueprint->bSkeletonOutdated = true;
	}
	MarkBlueprintAsModified(Blueprint);
}

void FBlueprintEditorUtils::MarkBlueprintAsModified(UBlueprint* Blueprint, FPropertyChangedEvent*)
{
	if (Blueprint->bBeingCompiled)
	{
		return;
	}
	Blueprint->Status = Blueprint->Status == BS_BeingCreated ? BS_BeingCreated : BS_Dirty;
	Blueprint->MarkPackageDirty();
	Blueprint->BroadcastChanged();
}

UClass* FBlueprintEditorUtils::GetSkeletonClass(const UBlueprint* Blueprint)
{
	Blueprint->GetSkeletonOrGeneratedClass();
	return Blueprint->SkeletonGeneratedClass;
}

UClass* FBlueprintEditorUtils::GetMostUpToDateClass(UClass* FromClass)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(FromClass);
	return Blueprint ? Blueprint->GetSkeletonOrGeneratedClass() : FromClass;
}

bool FBlueprintEditorUtils::IsActorBased(const UBlueprint* Blueprint)
{
	return Blueprint->ParentClass && Blueprint->ParentClass->IsChildOf<AActor>();
}
