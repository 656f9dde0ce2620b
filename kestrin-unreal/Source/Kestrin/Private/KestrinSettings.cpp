#include "KestrinSettings.h"

#include "Misc/ConfigCacheIni.h"
#include "UObject/UnrealType.h"

UKestrinSettings::UKestrinSettings()
{
	ResetAssetGroups();
	ResetSupportedFileExtensions();
	ResetExcludedDirectories();
}

void UKestrinSettings::ResetSupportedFileExtensions()
{
	SupportedFileExtensions = { TEXT("py"), TEXT("cs"), TEXT("json"), TEXT("cpp"), TEXT("h"), TEXT("uasset"), TEXT("umap"), TEXT("ini"),
		TEXT("uproject"), TEXT("csv") };
}

void UKestrinSettings::ResetExcludedDirectories()
{
	ExcludedDirectories = { TEXT("__ExternalObjects__"), TEXT("__ExternalActors__"), TEXT("Binaries"), TEXT("Intermediate"), TEXT("Saved"),
		TEXT("Build"), TEXT("DerivedDataCache"), TEXT("Engine"), TEXT("Shared"), TEXT(".git") };
}

void UKestrinSettings::ResetAssetGroups() {}

TSet<FName> UKestrinSettings::GetEnabledAssetClassPatterns() const
{
	return TSet<FName>();
}

#if WITH_EDITOR
void UKestrinSettings::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);

	const FName PropertyName = PropertyChangedEvent.GetPropertyName();
	if (PropertyName == GET_MEMBER_NAME_CHECKED(UKestrinSettings, bResetSupportedFileExtensions) && bResetSupportedFileExtensions)
	{
		ResetSupportedFileExtensions();
		bResetSupportedFileExtensions = false;
		SaveConfig(CPF_Config, nullptr, GConfig, true);
	}
	else if (PropertyName == GET_MEMBER_NAME_CHECKED(UKestrinSettings, bResetExcludedDirectories) && bResetExcludedDirectories)
	{
		ResetExcludedDirectories();
		bResetExcludedDirectories = false;
		SaveConfig(CPF_Config, nullptr, GConfig, true);
	}
}
#endif
