#include "Engine/BlueprintGeneratedClass.h"

#include "Engine/Blueprint.h"
#include "Engine/TimelineTemplate.h"

bool UBlueprintGeneratedClass::GetGeneratedClassesHierarchy(const UClass* InClass, TArray<const UBlueprintGeneratedClass*>& OutBPGClasses)
{
	bool bNoErrors = true;
	for (; const auto* const Generated = Cast<UBlueprintGeneratedClass>(InClass); InClass = InClass->GetSuperClass())
	{
		OutBPGClasses.Add(Generated);
		const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Generated);
		bNoErrors &= !Blueprint || Blueprint->Status != BS_Error;
	}
	return bNoErrors;
}

UTimelineTemplate* UBlueprintGeneratedClass::FindTimelineTemplateByVariableName(FName TimelineName) const
{
	const auto* const Found = Timelines.FindByPredicate(
		[TimelineName](const UTimelineTemplate* Timeline) { return Timeline && Timeline->GetVariableName() == TimelineName; });
	return Found ? Found->Get() : nullptr;
}
