#pragma once

#include "CoreMinimal.h"

class UPackage;

/**
 * Names of packages ("/Game/Folder/Asset"), of objects in them ("/Game/Folder/Asset.Asset:Part") and of files. "/Game/" is the project's
 * Content folder, "/Engine/" that of the editor's own state; "/Script/" packages have no files.
 */
class COREUOBJECT_API FPackageName
{
public:
	/** ".uasset" */
	static const FString& GetAssetPackageExtension();
	/** ".umap" */
	static const FString& GetMapPackageExtension();

	/** The name must be one that TryConvertLongPackageNameToFilename takes. */
	static FString LongPackageNameToFilename(const FString& LongPackageName, const FString& Extension = FString());
	/** @param Extension appended; with its dot */
	static bool TryConvertLongPackageNameToFilename(
		const FString& LongPackageName, FString& OutFilename, const FString& Extension = FString());
	/** Empty for a file outside the content folders. */
	static FString FilenameToLongPackageName(const FString& Filename);
	/** The extension is dropped. A package's name stays as it is. */
	static bool TryConvertFilenameToLongPackageName(const FString& Filename, FString& OutPackageName, FString* OutFailureReason = nullptr);

	/** Whether a package can have the name. @param bIncludeReadOnlyRoots also "/Script/" */
	static bool IsValidLongPackageName(const FString& LongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	static bool IsScriptPackage(const FString& PackageName) { return PackageName.StartsWith(TEXT("/Script/")); }
	/** Whether there is a file for the package. */
	static bool DoesPackageExist(const FString& LongPackageName, FString* OutFilename = nullptr);

	/** "Asset" of "/Game/Folder/Asset" */
	static FString GetShortName(const FString& LongName);
	static FString GetShortName(const UPackage* Package);
	/** The same. */
	static FString GetLongPackageAssetName(const FString& LongPackageName) { return GetShortName(LongPackageName); }
	/** "/Game/Folder" of "/Game/Folder/Asset" */
	static FString GetLongPackagePath(const FString& LongPackageName);
	/** "/Game/Folder/Asset" of "/Game/Folder/Asset.Asset:Part" */
	static FString ObjectPathToPackageName(const FString& ObjectPath);
	/** "Part" of "/Game/Folder/Asset.Asset:Part" */
	static FString ObjectPathToObjectName(const FString& ObjectPath);
	/** "/Game/Folder/Asset.Asset" of "Class'/Game/Folder/Asset.Asset'"; any other text stays as it is. */
	static FString ExportTextPathToObjectPath(const FString& ExportTextPath);
};
