// What changes make of a Blueprint, and what kind it is.

#include "BlueprintCompilationManager.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"

void FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(UBlueprint* Blueprint)
{
	if (Blueprint->Status != BS_BeingCreated && !Blueprint->bBeingCompiled)
	{
		FBlueprintCompilationManager::GenerateSkeleton(Blueprint);
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

UClass* FBlueprintEditorUtils::GetMostUpToDateClass(UClass* FromClass)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(FromClass);
	return Blueprint ? Blueprint->GetSkeletonOrGeneratedClass() : FromClass;
}

bool FBlueprintEditorUtils::IsActorBased(const UBlueprint* Blueprint)
{
	return Blueprint->ParentClass && Blueprint->ParentClass->IsChildOf<AActor>();
}
