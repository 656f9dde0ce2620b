#pragma once

#include "Containers/UnrealString.h"

/** Where things are, and paths as text. Directories of the project and the engine are absolute and end in "/". */
class CORE_API FPaths
{
public:
	static FString ProjectDir();
	static FString ProjectContentDir();
	static FString ProjectPluginsDir();
	static FString ProjectConfigDir();
	static FString ProjectSavedDir();
	static FString ProjectIntermediateDir() { return ProjectDir() + TEXT("Intermediate/"); }
	static FString ProjectLogDir();
	/** The .uproject file; empty while no project is open. */
	static FString GetProjectFilePath();
	static bool IsProjectFilePathSet() { return !GetProjectFilePath().IsEmpty(); }
	/** The editor's own state; editors that run side by side have one each. */
	static FString EngineDir();
	static FString EngineContentDir() { return EngineDir() + TEXT("Content/"); }

	static bool FileExists(const FString& InPath);
	static bool DirectoryExists(const FString& InPath);

	/** What follows the last "." of the file's name; empty when it has none. */
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** The part behind the last separator. */
	static FString GetCleanFilename(const FString& InPath);
	/** The path without the extension, and without the directories unless they are to stay. */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** The part before the last separator; empty when there is none. */
	static FString GetPath(const FString& InPath);
	/** False for what begins with "/", "\\" or a drive letter. */
	static bool IsRelative(const FString& InPath);

	/** Turns every "\" into "/". */
	static void NormalizeFilename(FString& InPath);
	/** The same, and drops one "/" at the end unless it follows "/" or ":" or is all there is. */
	static void NormalizeDirectoryName(FString& InPath);
	static void RemoveDuplicateSlashes(FString& InPath);
	/**
	 * Resolves "." and "..", and drops doubled slashes; a "/" at the end stays. Nothing lies above the root: "/../a" is "/a". A relative
	 * path keeps those ".." at its front that lead out of it.
	 */
	static void CollapseRelativeDirectories(FString& InPath);
	/** Absolute, normalised and collapsed; relative paths are taken from FPlatformProcess::BaseDir. */
	static FString ConvertRelativePathToFull(const FString& InPath);
	/** The same for relative paths taken from BasePath, which is not made absolute itself. */
	static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);

	/** Joins parts, FStrings and TCHAR strings, with one "/" between two; nothing is normalised. */
	template <typename... PathTypes>
	static FString Combine(const PathTypes&... InPaths)
	{
		const TCHAR* const Parts[] = { Text(InPaths)... };
		FString Result;
		CombineInternal(Result, Parts, sizeof...(InPaths));
		return Result;
	}
	/** Path/PrefixGUIDExtension that nothing has yet; the file is not made. */
	static FString CreateTempFilename(const TCHAR* Path, const TCHAR* Prefix = TEXT(""), const TCHAR* Extension = TEXT(".tmp"));

private:
	static const TCHAR* Text(const FString& Path) { return *Path; }
	static const TCHAR* Text(const TCHAR* Path) { return Path; }
	static void CombineInternal(FString& OutPath, const TCHAR* const* InPaths, int32 NumPaths);
};
