#pragma once

// EditorScriptingUtilities: what editor scripts do with assets, as functions that reflection shows. Left out: copying, metadata,
// consolidating, source control.

#include "Kismet/BlueprintFunctionLibrary.h"
#include "EditorAssetLibrary.generated.h"

/**
 * Assets and their folders. An asset is named by its path, "/Game/Folder/Asset", "/Game/Folder/Asset.Asset" or "Class'Path'"; a folder
 * as "/Game/Folder". What fails is logged. Game thread.
 */
UCLASS()
class EDITORSCRIPTINGUTILITIES_API UEditorAssetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** The asset, which is loaded when it is not in memory. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static UObject* LoadAsset(const FString& AssetPath);
	/** The class that a Blueprint makes. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static UClass* LoadBlueprintClass(const FString& AssetPath);
	/** "/Game/Folder/Asset.Asset" */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static FString GetPathNameForLoadedAsset(UObject* LoadedAsset);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool DoesAssetExist(const FString& AssetPath);

	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool SaveAsset(const FString& AssetToSave, bool bOnlyIfIsDirty = true);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty = true);
	/** All assets of a folder that are in memory and changed, or all of them. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool SaveDirectory(const FString& DirectoryPath, bool bOnlyIfIsDirty = true, bool bRecursive = true);

	/** Moves the asset, its file and all references to it. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool RenameAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool RenameLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath);
	/** The asset and its file. Refuses while others refer to it. It can't be undone. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool DeleteAsset(const FString& AssetPathToDelete);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool DeleteLoadedAsset(UObject* AssetToDelete);

	/** The paths of the assets in a folder, or of one asset; those of folders end in "/". */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static TArray<FString> ListAssets(const FString& DirectoryPath, bool bRecursive = true, bool bIncludeFolder = false);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool DoesDirectoryExist(const FString& DirectoryPath);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool DoesDirectoryHaveAssets(const FString& DirectoryPath, bool bRecursive = true);
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset")
	static bool MakeDirectory(const FString& DirectoryPath);
};
