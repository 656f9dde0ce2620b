#include "Agent/BlueprintUtils.h"
#include "AssetLookup.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "BlueprintPackage.h"
#include "Engine/Blueprint.h"
#include "Factories/BlueprintFactory.h"
#include "JsonUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "UObject/SavePackage.h"

namespace
{
const TCHAR* const InvalidAsset = TEXT("Provided asset is not a valid Blueprint.");

/** Null unless the asset is a Blueprint that lies in a package of its own and was changed. */
UBlueprint* LoadIfDirty(const FAssetData& Asset)
{
	UBlueprint* const Blueprint = Cast<UBlueprint>(Asset.GetAsset());
	const bool bDirty = Blueprint && Blueprint->IsAsset() && Blueprint->GetOutermost() && Blueprint->GetOutermost()->IsDirty();
	return bDirty ? Blueprint : nullptr;
}

/** Takes an answer of a step over into the Blueprint's entry. @return whether the step failed */
bool AddStep(FJsonObject& Entry, const FString& Answer, const TCHAR* ErrorKey, const TCHAR* SuccessKey)
{
	const TSharedPtr<FJsonObject> Json = ParseJsonObject(Answer);
	if (!Json.IsValid())
	{
		return false;
	}
	FString Error;
	const bool bFailed = Json->TryGetStringField(TEXT("Error"), Error);
	Entry.SetStringField(bFailed ? ErrorKey : SuccessKey, bFailed ? Error : Json->GetStringField(TEXT("Success")));
	return bFailed;
}
}

bool SaveBlueprintPackage(UBlueprint* Blueprint)
{
	UPackage* const Package = Blueprint->GetOutermost();
	const FString FileName = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	Args.SaveFlags = SAVE_NoError;
	Args.Error = GError;
	Args.bForceByteSwapping = true;
	Args.bWarnOfLongFilename = true;
	return UPackage::Save(Package, Blueprint, *FileName, Args).Result == ESavePackageResult::Success;
}

FString FKestrinBlueprintUtils::CreateBlueprintAsset(
	const FString& PackagePath, const FString& BlueprintName, const FString& ParentClassName)
{
	UClass* const ParentClass = GetBlueprintClassFromBlueprintName(ParentClassName);
	if (!ParentClass)
	{
		return FString::Printf(TEXT("Error: Parent class '%s' not found or could not be loaded."), *ParentClassName);
	}
	UBlueprintFactory* const Factory = NewObject<UBlueprintFactory>(GetTransientPackage());
	Factory->ParentClass = ParentClass;
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	if (!AssetTools.CreateAsset(BlueprintName, PackagePath, UBlueprint::StaticClass(), Factory, NAME_None))
	{
		return FString::Printf(TEXT("Error: Failed to create Blueprint '%s' at '%s'. Check if the path is valid and the name is unique."),
			*BlueprintName, *PackagePath);
	}
	return FString::Printf(TEXT("Success: Blueprint '%s' created at '%s'."), *BlueprintName, *PackagePath);
}

FString FKestrinBlueprintUtils::SaveBlueprint(UObject* Object)
{
	UBlueprint* const Blueprint = Cast<UBlueprint>(Object);
	if (!Blueprint)
	{
		return SerializeMessage(TEXT("Error"), InvalidAsset);
	}
	if (!SaveBlueprintPackage(Blueprint))
	{
		return SerializeMessage(TEXT("Error"), FString::Printf(TEXT("Failed to save Blueprint asset: %s"), *Blueprint->GetPathName()));
	}
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
	return SerializeMessage(TEXT("Success"), FString::Printf(TEXT("Blueprint '%s' saved successfully."), *Blueprint->GetPathName()));
}

FString FKestrinBlueprintUtils::CompileBlueprint(UObject* Object)
{
	UBlueprint* const Blueprint = Cast<UBlueprint>(Object);
	if (!Blueprint)
	{
		return SerializeMessage(TEXT("Error"), InvalidAsset);
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::None, nullptr);
	if (Blueprint->Status != BS_UpToDate)
	{
		return SerializeMessage(TEXT("Error"), FString::Printf(TEXT("Failed to compile Blueprint '%s'."), *Blueprint->GetPathName()));
	}
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
	return SerializeMessage(TEXT("Success"), FString::Printf(TEXT("Blueprint '%s' compiled successfully."), *Blueprint->GetPathName()));
}

FString FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints()
{
	bool bAnyFailed = false;
	TArray<TSharedPtr<FJsonValue>> Results;
	for (const FAssetData& Asset : ListAssetsOfClass(UBlueprint::StaticClass()))
	{
		if (UBlueprint* const Blueprint = LoadIfDirty(Asset))
		{
			// What is saved is the state before this compile.
			const TSharedRef<FJsonObject> Entry = MakeShared<FJsonObject>();
			Entry->SetStringField(TEXT("BlueprintPath"), Asset.GetObjectPathString());
			bAnyFailed |= AddStep(*Entry, SaveBlueprint(Blueprint), TEXT("SaveError"), TEXT("SaveResult"));
			bAnyFailed |= AddStep(*Entry, CompileBlueprint(Blueprint), TEXT("CompileError"), TEXT("CompileResult"));
			Results.Add(MakeShared<FJsonValueObject>(Entry));
		}
	}
	const TSharedPtr<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("BlueprintResults"), Results);
	if (bAnyFailed)
	{
		Document->SetStringField(TEXT("Error"), TEXT("Some Blueprints failed to save or compile."));
	}
	else
	{
		Document->SetStringField(TEXT("Success"), TEXT("All dirty Blueprints were processed successfully."));
	}
	return SerializeJson(Document);
}
