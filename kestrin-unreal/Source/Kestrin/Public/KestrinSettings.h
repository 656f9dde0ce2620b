#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "KestrinSettings.generated.h"

/** How the assistant's tool calls are carried out. */
UENUM()
enum class EKestrinMode : uint8
{
	/** Tool calls wait for the user, unless the service was told to go on. */
	ExplainerMode UMETA(DisplayName = "Explainer Mode"),
	/** Tool calls run at once. */
	ExplainerAndImplementerMode UMETA(DisplayName = "Explainer And Implementer Mode"),
};

/** Enum defining filtering options for Blueprint content usage */
UENUM()
enum class EKestrinBlueprintContentFilter : uint8
{
	UseAllContent UMETA(DisplayName = "Use All Content"),
	UseOnlyBlueprintVisibleContent UMETA(DisplayName = "Use Only Blueprint Visible Content"),
	UseOnlyBlueprintClassContent UMETA(DisplayName = "Use Only Blueprint Class Content"),
};

/** Defines the log file retention policy for the Kestrin plugin */
UENUM()
enum class EKestrinLogDeletionPolicy : uint8
{
	/** Clears all logs when the plugin initializes */
	DeleteAllOnStart UMETA(DisplayName = "Always Delete All Logs"),
	/** Maintains a rolling 30-day log history */
	KeepLast30Days UMETA(DisplayName = "Keep Last 30 Days"),
	/** Preserves all log files indefinitely */
	KeepAll UMETA(DisplayName = "Keep All Logs"),
};

/** Asset group categories for filtering in file tree */
UENUM(BlueprintType)
enum class EAssetGroupCategory : uint8
{
	CoreEngine UMETA(DisplayName = "Core Engine Assets"),
	Rendering UMETA(DisplayName = "Rendering Assets"),
	Textures UMETA(DisplayName = "Texture Assets"),
	Mesh UMETA(DisplayName = "Mesh Assets"),
	Animation UMETA(DisplayName = "Animation Assets"),
	Physics UMETA(DisplayName = "Physics Assets"),
	Blueprint UMETA(DisplayName = "Blueprint Assets"),
	Sound UMETA(DisplayName = "Sound Assets"),
	Media UMETA(DisplayName = "Media Assets"),
	FX UMETA(DisplayName = "FX Assets"),
	Data UMETA(DisplayName = "Data Assets"),
	AI UMETA(DisplayName = "AI Assets"),
	Gameplay UMETA(DisplayName = "Gameplay Assets"),
	UI UMETA(DisplayName = "User Interface Assets"),
	Landscape UMETA(DisplayName = "Landscape and Foliage Assets"),
	Cinematics UMETA(DisplayName = "Cinematics and Sequencer Assets"),
	Paper2D UMETA(DisplayName = "Paper 2D Assets"),
	Networking UMETA(DisplayName = "Networking Assets"),
	Development UMETA(DisplayName = "Development & Tools Assets"),
	VR_AR UMETA(DisplayName = "VR/AR Assets"),
	PhysicsSimulation UMETA(DisplayName = "Physics Simulation Assets"),
	Miscellaneous UMETA(DisplayName = "Miscellaneous Assets"),
	Custom UMETA(DisplayName = "Custom Assets"),
};

/**
 * Configuration settings class for the Kestrin plugin
 * Handles persistent storage and configuration of plugin settings including
 * API authentication, file change display preferences, log management policies and file handling during conversations.
 *
 * Everybody reads the class default object. Fields that are Transient live in memory alone, with their defaults at each start.
 */
UCLASS(Config = EditorPerUserSettings, DefaultConfig)
class KESTRIN_API UKestrinSettings : public UObject
{
	GENERATED_BODY()

public:
	UKestrinSettings();

	/** Authentication key required to access Kestrin AI services */
	UPROPERTY(Config, EditAnywhere, Category = "Kestrin|Authentication", meta = (DisplayName = "API Key"))
	FString ApiKey;

	UPROPERTY(Transient)
	EKestrinMode Mode = EKestrinMode::ExplainerMode;

	/** Enables or disables the display of file modifications, creations, and deletions in the chat interface */
	UPROPERTY(Config, EditAnywhere, Category = "Kestrin|Interface", meta = (DisplayName = "Display File Changes In Chat"))
	bool bDisplayFileChangesInChat = true;

	/** Reset Supported File Extensions */
	UPROPERTY(EditAnywhere, Category = "Kestrin|Filtering|File|Extensions")
	bool bResetSupportedFileExtensions = false;

	/** Additional file extensions beyond UE4's default types (py, cs, json, cpp, h, uasset, umap, ini, uproject, csv) */
	UPROPERTY(Config, EditAnywhere, Category = "Kestrin|Filtering|File|Extensions", meta = (DisplayName = "Supported File Extensions"))
	TArray<FString> SupportedFileExtensions;

	/** Reset Excluded Directories */
	UPROPERTY(EditAnywhere, Category = "Kestrin|Filtering|File|Directories")
	bool bResetExcludedDirectories = false;

	/** Directories to exclude from the file tree */
	UPROPERTY(Config, EditAnywhere, Category = "Kestrin|Filtering|File|Directories", meta = (DisplayName = "Excluded Directories"))
	TArray<FString> ExcludedDirectories;

	UPROPERTY(Transient)
	EKestrinBlueprintContentFilter BlueprintContentFilter = EKestrinBlueprintContentFilter::UseOnlyBlueprintVisibleContent;

	/** Defines how long log files should be kept before automatic deletion */
	UPROPERTY(Config, EditAnywhere, Category = "Kestrin|Logs", meta = (DisplayName = "Log Retention Policy"))
	EKestrinLogDeletionPolicy LogRetentionPolicy = EKestrinLogDeletionPolicy::KeepLast30Days;

	UPROPERTY(Transient)
	float AutoScrollPauseSeconds = 10.0f;

	/** Sets the default list, without dots, dropping what was there. */
	void ResetSupportedFileExtensions();
	/** Sets the default list, dropping what was there. */
	void ResetExcludedDirectories();
	/** There are no asset groups yet: does nothing. */
	void ResetAssetGroups();

	/** The asset classes that the project tree keeps. Empty, which means no filter at all. */
	TSet<FName> GetEnabledAssetClassPatterns() const;

#if WITH_EDITOR
	/** The two reset boxes act as buttons: ticked, they restore their list, clear themselves and save the config. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif
};
