#include "Agent/KestrinFindUtils.h"

#include "Agent/FindUtils/FileSearch.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

namespace
{
TArray<FString> ListCppFiles()
{
	TArray<FString> Files;
	for (const TCHAR* const Folder : { TEXT("Source"), TEXT("Plugins") })
	{
		FString Start = FPaths::Combine(FPaths::ProjectDir(), Folder);
		FPaths::NormalizeDirectoryName(Start);
		Start = FPaths::ConvertRelativePathToFull(Start);
		for (const TCHAR* const Pattern : { TEXT("*.cpp"), TEXT("*.h") })
		{
			IFileManager::Get().FindFilesRecursive(Files, *Start, Pattern, true, false, /*bClearFileNames*/ false);
		}
	}
	return Files;
}
}

FString FKestrinFindUtils::FindInAllFiles(const FString& Reference)
{
	TSharedPtr<FJsonObject> Result = MakeShared<FJsonObject>();
	Result->SetStringField(TEXT("reference_string"), Reference);
	FindInAllCppFiles(Reference, Result);
	FindInAllBlueprintFiles(Reference, Result);
	FString Text;
	FJsonSerializer::Serialize(Result.ToSharedRef(), TJsonWriterFactory<>::Create(&Text));
	return Text;
}

void FKestrinFindUtils::FindInAllCppFiles(const FString& Reference, TSharedPtr<FJsonObject>& Result)
{
	TArray<TSharedPtr<FJsonValue>> Records;
	if (!Reference.IsEmpty())
	{
		FFileSearch Search(Reference);
		for (const FString& File : ListCppFiles())
		{
			if (Search.Finds(File))
			{
				const TSharedRef<FJsonObject> Record = MakeShared<FJsonObject>();
				Record->SetStringField(TEXT("Type"), TEXT("cpp or h File"));
				Record->SetStringField(TEXT("Name"), FPaths::GetCleanFilename(File));
				Record->SetStringField(TEXT("Path"), File);
				Records.Add(MakeShared<FJsonValueObject>(Record));
			}
		}
	}
	Result->SetArrayField(TEXT("cpp_references"), Records);
}
