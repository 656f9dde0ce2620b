#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "HAL/CriticalSection.h"

DECLARE_DELEGATE_OneParam(FOnDirectoryStructureReady, const FString&);

/**
 * What the assistant does to the project's text files, and how it sees the project's folders.
 *
 * A path is relative to the project directory or absolute; nothing confines it to the project. The file operations answer with a
 * text for the service: one that begins with "Error:" reports a failure. A changed file is deleted and written anew; should the
 * writing fail, its old bytes are put back. Source control is told of every change. Game thread.
 */
class KESTRIN_API FFileUtils
{
public:
	/** Whether a result text reports a failure. So does the content of a file that begins that way. */
	static bool IsFailure(const FString& Result);
	static FString GetFullPath(const FString& FilePath);

	/** @return the whole text, or an error text */
	static FString ReadFile(const FString& FilePath);
	/** Lines StartLine to EndLine, both counted from 1 and included; an EndLine of -1 is the last one. @return them, joined by "\n" */
	static FString ReadFileLineRange(const FString& FilePath, int32 StartLine, int32 EndLine);
	/** Makes the directories that are missing. Overwrites a file that is there. */
	static FString CreateNewFileWithContent(const FString& FilePath, const FString& Content);
	static FString ReplaceFile(const FString& FilePath, const FString& NewContent);
	static FString DeleteFile(const FString& FilePath);
	/**
	 * Replaces every occurrence of OldString. When it is not in the file as given, it is tried with the file's line ends and
	 * its kind of indentation. The out texts are the file's before and after; both may be set when the call ends in an error.
	 */
	static FString UpdateFile(
		const FString& FilePath, const FString& OldString, const FString& NewString, FString& OutOldContent, FString& OutNewContent);
	/** Inserts Text as one line before the line of that index, counted from 0 and clamped to the file. */
	static FString InsertIntoFile(const FString& FilePath, int32 LineNumber, const FString& Text);
	/** Replaces a line, counted from 1. Does nothing when that can't be done. */
	static void ReplaceLineInFile(const FString& FilePath, int32 LineNumber, const FString& NewLine);

	// What source control is told of a file, by its full path; game thread. The log says what came of it.
	/** @return whether the file is marked for add */
	static bool AddNewFileToSourceControl(const FString& FilePath);
	/** @return whether this call has checked the file out; false where it was already, and where that isn't needed, as in git */
	static bool CheckoutFileFromSourceControl(const FString& FilePath);
	/**
	 * Takes back the addition of a file that is marked for add, or marks a file that is controlled for deletion.
	 * @param bDeleteFromDisk also delete the file, when that has worked or source control does not know it
	 * @return whether source control did what the file's state asks for
	 */
	static bool RemoveFileFromSourceControl(const FString& FilePath, bool bDeleteFromDisk);

	/** @return the tree of a directory as condensed JSON: a file name maps to "#", a directory name to an object */
	static FString GetSubDirectoryStructureAsJsonObject(const FString& DirectoryPath);
	/** The same in a later task of the game thread; the callback runs in another one after that. */
	static void GetSubDirectoryStructureAsJsonObjectAsync(const FString& DirectoryPath, FOnDirectoryStructureReady Callback);
	/**
	 * Files first, then directories; directories without a file are left out, excluded ones are not looked into. With class patterns
	 * only assets of those classes stay, and their names map to the class's.
	 * Extensions are without dots. Every entry of the lists is compared ignoring case.
	 */
	static TSharedPtr<FJsonObject> BuildJsonTree(const FString& DirectoryPath, const TArray<FString>& SupportedExtensions,
		const TArray<FString>& ExcludedDirectories, const TSet<FName>& AssetClassPatterns);

	/** Paths below a directory of the project, relative to the project, by fixed lists of extensions and directories. */
	static TArray<FString> GetDirectoryStructureAsList(const FString& DirectoryPath);
	/** The whole project's list, sorted, as a JSON array. */
	static FString GetProjectStructureAsJsonList();

	/** Class names by asset path (/Game/Folder/Name); none for an asset that could not be loaded. */
	static TMap<FString, FName> AssetClassCache;
	static FCriticalSection AssetClassCacheLock;

	/** @return the path of the cache's file, its name included */
	static FString GetAssetClassCacheSaveDirectory();
	/** Reads the cache's file, once in a run; lines of assets that are gone are dropped. */
	static void LoadAssetClassCache();
	static void SaveAssetClassCache();
	static void ClearAssetClassCache();
	/**
	 * Whether a file of a directory stays in the tree: an asset does when its C++ class is one of the patterns. It is loaded to find
	 * out, unless the cache knows it. Anything stays when there are no patterns.
	 * @param OutClassName the class; written only for an asset that stays because of it
	 */
	static bool FileMatchesAssetClassPatterns(
		const FString& DirectoryPath, const FString& FileName, const TSet<FName>& AssetClassPatterns, FName& OutClassName);

private:
	static FString AssetClassSaveDirectory;

	static void AsyncDirectoryWorker(const FString& DirectoryPath, FOnDirectoryStructureReady Callback);
};
