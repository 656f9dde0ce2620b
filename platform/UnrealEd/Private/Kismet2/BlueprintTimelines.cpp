// The timelines of Blueprints.

#include "Engine/TimelineTemplate.h"
#include "EngineLogs.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectGlobals.h"

UTimelineTemplate* FBlueprintEditorUtils::AddNewTimeline(UBlueprint* Blueprint, const FName& TimelineVarName)
{
	const FName TemplateName(UTimelineTemplate::TimelineVariableNameToTemplateName(TimelineVarName));
	if (!DoesSupportTimelines(Blueprint) || FindTimelineTemplate(Blueprint, TimelineVarName) ||
		StaticFindObjectFast(UObject::StaticClass(), Blueprint->GeneratedClass, TemplateName))
	{
		UE_LOG(LogBlueprint, Warning, TEXT("%s can't have the timeline '%s'"), *Blueprint->GetPathName(), *TimelineVarName.ToString());
		return nullptr;
	}
	Blueprint->Modify();
	auto* const Timeline = NewObject<UTimelineTemplate>(Blueprint->GeneratedClass.Get(), TemplateName, RF_Transactional);
	Blueprint->Timelines.Add(Timeline);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return Timeline;
}

void FBlueprintEditorUtils::RemoveTimeline(UBlueprint* Blueprint, UTimelineTemplate* Timeline, bool bDontRecompile)
{
	Blueprint->Modify();
	Timeline->Modify();
	Blueprint->Timelines.Remove(Timeline);
	Timeline->MarkAsGarbage();
	bDontRecompile ? MarkBlueprintAsModified(Blueprint) : MarkBlueprintAsStructurallyModified(Blueprint);
}

UTimelineTemplate* FBlueprintEditorUtils::FindTimelineTemplate(const UBlueprint* Blueprint, FName TimelineVarName)
{
	return Blueprint->FindTimelineTemplateByVariableName(TimelineVarName);
}

bool FBlueprintEditorUtils::DoesSupportTimelines(const UBlueprint* Blueprint)
{
	return IsActorBased(Blueprint) && Blueprint->GeneratedClass && !Blueprint->UbergraphPages.IsEmpty();
}
