#include "Agent/BlueprintUtils.h"
#include "Curves/CurveFloat.h"
#include "Engine/Blueprint.h"
#include "Engine/TimelineTemplate.h"
#include "ModificationSection.h"

// Timelines with float curves.

namespace
{
const FEntrySection TimelineSection = { TEXT("TimelineModifications"), false, TEXT("Timeline entry missing 'Name' field.") };

/** A point lacks nothing or is passed over. */
void AddPoints(const FJsonObject& CurveEntry, FRichCurve& Curve)
{
	ForEachObject(CurveEntry, TEXT("Points"),
		[&Curve](const TSharedPtr<FJsonObject>& Point)
		{
		double Time = 0.0;
		double Value = 0.0;
		if (Point->TryGetNumberField(TEXT("Time"), Time) && Point->TryGetNumberField(TEXT("Value"), Value))
		{
			Curve.AddKey(static_cast<float>(Time), static_cast<float>(Value), false, FKeyHandle());
		}
	});
}

void AddCurves(FSectionWork& Work, const FSectionEntry& Entry, UTimelineTemplate& Timeline)
{
	ForEachObject(Entry.Json, TEXT("Curves"),
		[&](const TSharedPtr<FJsonObject>& CurveEntry)
		{
		FString Name;
		FString Type;
		if (!CurveEntry->TryGetStringField(TEXT("Name"), Name) || !CurveEntry->TryGetStringField(TEXT("Type"), Type) ||
			!Type.Equals(TEXT("FloatCurve"), ESearchCase::IgnoreCase))
		{
			return;
		}
		FTTFloatTrack Track;
		Track.CurveFloat = NewObject<UCurveFloat>(GetTransientPackage());
		AddPoints(*CurveEntry, Track.CurveFloat->FloatCurve);
		Track.SetTrackName(FName(*Name), &Timeline);
		Timeline.FloatTracks.Add(Track);
		Work.bChanged = true;
		Work.Say(FString::Printf(TEXT("Added curve %s to timeline %s"), *Name, *Entry.Name));
	});
}
}

bool FKestrinBlueprintUtils::ModifyBlueprintTimelines(
	UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Section, TSharedPtr<FJsonObject>& Result)
{
	return ApplyEntries(Blueprint, Section, *Result, TimelineSection,
		[](FSectionWork& Work, const FSectionEntry& Entry)
		{
		if (UTimelineTemplate* const Existing = FindByNameText(Work.Blueprint->Timelines, Entry.Name))
		{
			Existing->Modify();
			AddCurves(Work, Entry, *Existing);
			Work.Say(FString::Printf(TEXT("Modified existing timeline: %s"), *Entry.Name));
			return;
		}
		UTimelineTemplate* const Timeline = NewObject<UTimelineTemplate>(Work.Blueprint);
		Timeline->SetFlags(RF_Transactional);
		Timeline->Rename(*Entry.Name, Work.Blueprint, REN_None);
		Work.Blueprint->Timelines.Add(Timeline);
		AddCurves(Work, Entry, *Timeline);
		Work.bChanged = true;
		Work.Say(FString::Printf(TEXT("Created new timeline: %s"), *Entry.Name));
	});
}
