#pragma once

// AssetTools: new assets, with the refusals of an editor in which nobody can be asked, and new places for assets. Left out: copying,
// importing, asset menus, redirectors: all that refers to a renamed asset is written anew.

#include "Factories/Factory.h"
#include "UObject/Interface.h"
#include "UObject/ScriptInterface.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "IAssetTools.generated.h"

/** An asset and its new place. */
USTRUCT(BlueprintType)
struct ASSETTOOLS_API FAssetRenameData
{
	GENERATED_BODY()

	FAssetRenameData() = default;
	FAssetRenameData(const TWeakObjectPtr<UObject>& InAsset, const FString& InNewPackagePath, const FString& InNewName)
		: Asset(InAsset)
		, NewPackagePath(InNewPackagePath)
		, NewName(InNewName)
	{
	}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = AssetRenameData)
	TWeakObjectPtr<UObject> Asset;

	/** The folder, as in "/Game/Doors". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = AssetRenameData)
	FString NewPackagePath;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = AssetRenameData)
	FString NewName;
};

UINTERFACE(BlueprintType, MinimalAPI)
class ASSETTOOLS_API UAssetTools : public UInterface
{
	GENERATED_BODY()
};

/** Game thread. */
class ASSETTOOLS_API IAssetTools
{
	GENERATED_BODY()

public:
	static IAssetTools& Get();

	/**
	 * Makes an asset in a package of its own, which is dirty then and has no file yet. The Asset Registry is told.
	 * @param PackagePath the folder, as in "/Game/Doors"
	 * @param Factory null to make a plain object of the class
	 * @return null, with the reason in the log, for a name or path that can't be, a name that is taken, and when the factory refuses
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset Tools")
	virtual UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;

	/**
	 * Gives assets other names, other folders or both, one after the other. What is on disk follows: the asset's file moves, and the files
	 * that refer to it are loaded and written anew, with what else has changed in them. Undo leaves the asset at its new place.
	 * @return false, with the reason in the log, when one could not be moved; it is where it was then. Also when a file that refers to it
	 * could not be written: the old file stays then, too
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset Tools")
	virtual bool RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames) = 0;
};

/** For scripts. */
UCLASS(Transient)
class ASSETTOOLS_API UAssetToolsHelpers : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, Category = "Editor Scripting | Asset Tools")
	static TScriptInterface<IAssetTools> GetAssetTools();
};
