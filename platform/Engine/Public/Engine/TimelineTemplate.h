#pragma once

#include "Curves/CurveFloat.h"
#include "Engine/Blueprint.h"
#include "TimelineTemplate.generated.h"

class UCurveLinearColor;
class UCurveVector;
class UTimelineTemplate;

UENUM()
enum ETimelineLengthMode : int
{
	TL_TimelineLength,
	/** As long as the last key of any track. */
	TL_LastKeyFrame,
};

/** What all tracks of a timeline have. */
USTRUCT()
struct ENGINE_API FTTTrackBase
{
	GENERATED_BODY()

	virtual ~FTTTrackBase() = default;

	/** Made from a curve asset, not with the timeline. */
	UPROPERTY()
	bool bIsExternalCurve = false;

	FName GetTrackName() const { return TrackName; }
	/** Names what the compile makes of the track after it and its timeline, too. */
	virtual void SetTrackName(FName NewTrackName, UTimelineTemplate* OwningTimeline) { TrackName = NewTrackName; }

private:
	UPROPERTY()
	FName TrackName;
};

/** Calls an event at each key. */
USTRUCT()
struct ENGINE_API FTTEventTrack : public FTTTrackBase
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveFloat> CurveKeys;

	FName GetFunctionName() const { return FunctionName; }
	void SetTrackName(FName NewTrackName, UTimelineTemplate* OwningTimeline) override;

private:
	UPROPERTY()
	FName FunctionName;
};

/** Sets a variable of the class to the curve's value. */
USTRUCT()
struct ENGINE_API FTTPropertyTrack : public FTTTrackBase
{
	GENERATED_BODY()

	FName GetPropertyName() const { return PropertyName; }
	void SetTrackName(FName NewTrackName, UTimelineTemplate* OwningTimeline) override;

private:
	UPROPERTY()
	FName PropertyName;
};

USTRUCT()
struct ENGINE_API FTTFloatTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveFloat> CurveFloat;
};

USTRUCT()
struct ENGINE_API FTTVectorTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveVector> CurveVector;
};

USTRUCT()
struct ENGINE_API FTTLinearColorTrack : public FTTPropertyTrack
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UCurveLinearColor> CurveLinearColor;
};

/** A timeline of a Blueprint: curves that run over time and set variables. */
UCLASS()
class ENGINE_API UTimelineTemplate : public UObject
{
	GENERATED_BODY()

public:
	UTimelineTemplate();

	/** In seconds. */
	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	float TimelineLength = 5.0f;

	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	TEnumAsByte<ETimelineLengthMode> LengthMode = TL_TimelineLength;

	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	uint8 bAutoPlay : 1 = 0;

	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	uint8 bLoop : 1 = 0;

	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	uint8 bReplicated : 1 = 0;

	UPROPERTY(EditAnywhere, Category = TimelineTemplate)
	uint8 bIgnoreTimeDilation : 1 = 0;

	UPROPERTY()
	TArray<FTTEventTrack> EventTracks;

	UPROPERTY()
	TArray<FTTFloatTrack> FloatTracks;

	UPROPERTY()
	TArray<FTTVectorTrack> VectorTracks;

	UPROPERTY()
	TArray<FTTLinearColorTrack> LinearColorTracks;

	UPROPERTY(EditAnywhere, Category = BPVariableDescription)
	TArray<FBPVariableMetaDataEntry> MetaDataArray;

	UPROPERTY(DuplicateTransient)
	FGuid TimelineGuid;

	/** The variable that holds the timeline, in the class that the compile makes. */
	FName GetVariableName() const { return TimelineTemplateNameToVariableName(GetFName()); }
	/** The variable that holds the direction. */
	FName GetDirectionPropertyName() const;
	FName GetUpdateFunctionName() const;
	FName GetFinishedFunctionName() const;
	/** "Door" and "Door_Template". A template may as well bear the variable's name alone. */
	static FString TimelineVariableNameToTemplateName(FName Name) { return Name.ToString() + TEXT("_Template"); }
	static FName TimelineTemplateNameToVariableName(FName Name);
};
