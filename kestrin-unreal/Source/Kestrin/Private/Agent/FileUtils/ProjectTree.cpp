#include "Agent/FileUtils.h"

#include "Async/TaskGraphInterfaces.h"
#include "Containers/StringView.h"
#include "HAL/FileManager.h"
#include "JsonUtils.h"
#include "KestrinSettings.h"
#include "Misc/Paths.h"
#include "ProfilingDebugging/MiscTrace.h"
#include "UObject/UObjectGlobals.h"

namespace
{
bool IsSlash(TCHAR Char)
{
	return Char == TEXT('/') || Char == TEXT('\\');
}

/** An entry of the settings without blanks around it and one slash at either end. */
FStringView TrimExclusion(FStringView Entry)
{
	Entry = Entry.TrimStartAndEnd();
	if (!Entry.IsEmpty() && IsSlash(Entry[0]))
	{
		Entry.RightChopInline(1);
	}
	if (!Entry.IsEmpty() && IsSlash(Entry[Entry.Len() - 1]))
	{
		Entry.LeftChopInline(1);
	}
	return Entry;
}

bool IsExcludedName(FStringView Name, const TArray<FString>& ExcludedDirectories)
{
	return ExcludedDirectories.ContainsByPredicate(
		[Name](const FString& Entry) { return Name.Equals(TrimExclusion(Entry), ESearchCase::IgnoreCase); });
}

/**
 * Whether a component of the path is an excluded name; whole names are compared. Of a path inside the project only the
 * components below the project directory count: where the project itself lies is not its own doing.
 */
bool IsPathExcluded(const FString& Path, const TArray<FString>& ExcludedDirectories)
{
	const FString Directory = Path.EndsWith(TEXT("/")) ? Path : Path + TEXT("/");
	const FString ProjectDir = FPaths::ProjectDir();
	FStringView Rest = Directory;
	if (Rest.StartsWith(ProjectDir, ESearchCase::CaseSensitive))
	{
		Rest.RightChopInline(ProjectDir.Len());
	}
	while (!Rest.IsEmpty())
	{
		int32 End = 0;
		while (End < Rest.Len() && !IsSlash(Rest[End]))
		{
			++End;
		}
		if (End > 0 && IsExcludedName(Rest.Left(End), ExcludedDirectories))
		{
			return true;
		}
		Rest.RightChopInline(FMath::Min(End + 1, Rest.Len()));
	}
	return false;
}

void FindNames(TArray<FString>& OutNames, const FString& DirectoryPath, bool bFiles, bool bDirectories)
{
	IFileManager::Get().FindFiles(OutNames, *FPaths::Combine(DirectoryPath, TEXT("*")), bFiles, bDirectories);
}

void RunOnGameThreadLater(TUniqueFunction<void()> Task)
{
	FFunctionGraphTask::CreateAndDispatchWhenReady(MoveTemp(Task), TStatId(), nullptr, ENamedThreads::GameThread);
}
}

FString FFileUtils::GetSubDirectoryStructureAsJsonObject(const FString& DirectoryPath)
{
	TArray<FString> Extensions;
	TArray<FString> Exclusions;
	TSet<FName> Patterns;
	if (const UKestrinSettings* const Settings = GetDefault<UKestrinSettings>())
	{
		Exclusions = Settings->ExcludedDirectories;
		Extensions = Settings->SupportedFileExtensions;
		Patterns = Settings->GetEnabledAssetClassPatterns();
	}
	LoadAssetClassCache();
	TRACE_BOOKMARK(TEXT("Kestrin - Start GetSubDirectoryStructure"));
	TSharedPtr<FJsonObject> Tree = BuildJsonTree(FPaths::ConvertRelativePathToFull(DirectoryPath), Extensions, Exclusions, Patterns);
	TRACE_BOOKMARK(TEXT("Kestrin - End GetSubDirectoryStructure"));
	SaveAssetClassCache();

	const FString Text = ToCondensedJson(Tree.ToSharedRef());
	Tree.Reset();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);
	return Text;
}

TSharedPtr<FJsonObject> FFileUtils::BuildJsonTree(const FString& DirectoryPath, const TArray<FString>& SupportedExtensions,
	const TArray<FString>& ExcludedDirectories, const TSet<FName>& AssetClassPatterns)
{
	TRACE_BOOKMARK(TEXT("Kestrin - Start BuildJsonTree"));
	const TSharedRef<FJsonObject> Tree = MakeShared<FJsonObject>();
	if (IsPathExcluded(DirectoryPath, ExcludedDirectories))
	{
		return Tree;
	}
	TArray<FString> Files;
	TArray<FString> Directories;
	FindNames(Files, DirectoryPath, true, false);
	FindNames(Directories, DirectoryPath, false, true);

	// Values don't change: all files may share one.
	static const TSharedRef<FJsonValue> FileMark = MakeShared<FJsonValueString>(TEXT("#"));
	Tree->Values.Reserve(Files.Num());
	for (FString& File : Files)
	{
		FName ClassName;
		if (SupportedExtensions.Contains(FPaths::GetExtension(File)) &&
			FileMatchesAssetClassPatterns(DirectoryPath, File, AssetClassPatterns, ClassName))
		{
			const TSharedPtr<FJsonValue> Mark = ClassName.IsNone() ? FileMark : MakeShared<FJsonValueString>(ClassName.ToString());
			Tree->Values.Add(MoveTemp(File), Mark);
		}
	}
	for (const FString& Directory : Directories)
	{
		const TSharedPtr<FJsonObject> SubTree =
			BuildJsonTree(FPaths::Combine(DirectoryPath, Directory), SupportedExtensions, ExcludedDirectories, AssetClassPatterns);
		if (!SubTree->Values.IsEmpty())
		{
			Tree->SetObjectField(Directory, SubTree);
		}
	}
	TRACE_BOOKMARK(TEXT("Kestrin - End BuildJsonTree"));
	return Tree;
}

void FFileUtils::GetSubDirectoryStructureAsJsonObjectAsync(const FString& DirectoryPath, FOnDirectoryStructureReady Callback)
{
	RunOnGameThreadLater([DirectoryPath, Callback] { AsyncDirectoryWorker(DirectoryPath, Callback); });
}

void FFileUtils::AsyncDirectoryWorker(const FString& DirectoryPath, FOnDirectoryStructureReady Callback)
{
	const FString Text = GetSubDirectoryStructureAsJsonObject(DirectoryPath);
	RunOnGameThreadLater([Text, Callback] { Callback.ExecuteIfBound(Text); });
}
