#include "Agent/FileUtils.h"

#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "Serialization/JsonSerializer.h"

// The flat view of the project, with rules of its own that no setting changes.

namespace
{
const TArray<FString> ListedExtensions = { TEXT(".py"), TEXT(".cs"), TEXT(".json"), TEXT(".cpp"), TEXT(".h"), TEXT(".uasset"),
	TEXT(".umap"), TEXT(".ini"), TEXT(".uproject"), TEXT(".csv") };

/** Parts of a directory's name that keep it out of the list. */
const TArray<FString> UnlistedNames = { TEXT("Binaries"), TEXT("Intermediate"), TEXT("Build"), TEXT("DerivedDataCache"), TEXT("Saved"),
	TEXT("Engine"), TEXT("Shared") };

bool IsUnlisted(const FString& Name)
{
	return UnlistedNames.ContainsByPredicate([&Name](const FString& Part) { return Name.Contains(Part); });
}
}

TArray<FString> FFileUtils::GetDirectoryStructureAsList(const FString& DirectoryPath)
{
	TArray<FString> Paths;
	const FString ProjectDir = FPaths::ProjectDir();
	if (!DirectoryPath.StartsWith(ProjectDir))
	{
		return Paths;
	}
	const FString Pattern = FPaths::Combine(DirectoryPath, TEXT("*"));
	TArray<FString> Directories;
	TArray<FString> Files;
	IFileManager::Get().FindFiles(Directories, *Pattern, false, true);
	IFileManager::Get().FindFiles(Files, *Pattern, true, false);

	const FString RelativePath = DirectoryPath.RightChop(ProjectDir.Len());
	for (const FString& File : Files)
	{
		if (ListedExtensions.Contains(FPaths::GetExtension(File, true)))
		{
			FString Path = RelativePath.IsEmpty() ? File : RelativePath / File;
			FPaths::NormalizeFilename(Path);
			Path.RemoveFromStart(TEXT("/"));
			Paths.Add(MoveTemp(Path));
		}
	}
	for (const FString& Directory : Directories)
	{
		if (!IsUnlisted(Directory))
		{
			Paths.Append(GetDirectoryStructureAsList(DirectoryPath / Directory));
		}
	}
	return Paths;
}

FString FFileUtils::GetProjectStructureAsJsonList()
{
	TArray<FString> Paths = GetDirectoryStructureAsList(FPaths::ProjectDir());
	Paths.Sort([](const FString& A, const FString& B) { return A < B; });
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const FString& Path : Paths)
	{
		Values.Add(MakeShared<FJsonValueString>(Path));
	}
	FString Text;
	FJsonSerializer::Serialize(Values, TJsonWriterFactory<TCHAR, TPrettyJsonPrintPolicy<TCHAR>>::Create(&Text));
	return Text;
}
