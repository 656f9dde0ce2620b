#include "Engine/TimelineTemplate.h"

UTimelineTemplate::UTimelineTemplate()
	: TimelineGuid(HasAnyFlags(RF_ClassDefaultObject) ? FGuid() : FGuid::NewGuid())
{
}

FName UTimelineTemplate::TimelineTemplateNameToVariableName(FName Name)
{
	const FString Text = Name.ToString();
	const FString Suffix = TEXT("_Template");
	return Text.EndsWith(Suffix) ? FName(Text.LeftChop(Suffix.Len())) : Name;
}

FName UTimelineTemplate::GetDirectionPropertyName() const
{
	return FName(GetVariableName().ToString() + TEXT("__Direction_") + TimelineGuid.ToString());
}

FName UTimelineTemplate::GetUpdateFunctionName() const
{
	return FName(GetVariableName().ToString() + TEXT("__UpdateFunc"));
}

FName UTimelineTemplate::GetFinishedFunctionName() const
{
	return FName(GetVariableName().ToString() + TEXT("__FinishedFunc"));
}

void FTTEventTrack::SetTrackName(FName NewTrackName, UTimelineTemplate* OwningTimeline)
{
	Super::SetTrackName(NewTrackName, OwningTimeline);
	FunctionName =
		FName(FString::Printf(TEXT("%s__%s__EventFunc"), *OwningTimeline->GetVariableName().ToString(), *NewTrackName.ToString()));
}

void FTTPropertyTrack::SetTrackName(FName NewTrackName, UTimelineTemplate* OwningTimeline)
{
	Super::SetTrackName(NewTrackName, OwningTimeline);
	PropertyName = FName(FString::Printf(TEXT("%s_%s_%s"), *OwningTimeline->GetVariableName().ToString(), *NewTrackName.ToString(),
		*OwningTimeline->TimelineGuid.ToString()));
}
