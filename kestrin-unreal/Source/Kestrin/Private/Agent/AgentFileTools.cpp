#include "Agent/AgentTools.h"

#include "Agent/FileHistory.h"
#include "Agent/FileUtils.h"
#include "Agent/KestrinInterface.h"
#include "HAL/FileManager.h"
#include "Math/NumericLimits.h"
#include "Misc/Paths.h"

// Each handler records what undo needs before it changes anything, so that a failed change leaves a record too.
// A diff is shown only when the change did not fail.

namespace
{
FString GetPath(const FJsonObject& Input)
{
	return Input.GetStringField(TEXT("path"));
}

/** The path of a tool that is given directory and name apart. */
FString GetCppPath(const FJsonObject& Input)
{
	return Input.GetStringField(TEXT("filepath")) / Input.GetStringField(TEXT("filename"));
}

bool FileExists(const FString& Path)
{
	return FPaths::FileExists(FFileUtils::GetFullPath(Path));
}

void ShowDiffUnlessFailed(const FString& Result, const FString& Path, const FString& OldContent, const FString& NewContent)
{
	if (!FFileUtils::IsFailure(Result))
	{
		FKestrinInterface::Get().OnAddDiffMessage(Path, OldContent, NewContent);
	}
}

/** The file's text; false, with an empty text, when it can't be read: an error text is no old content. */
bool ReadContent(const FString& Path, FString& OutContent)
{
	OutContent = FFileUtils::ReadFile(Path);
	if (FFileUtils::IsFailure(OutContent))
	{
		OutContent.Empty();
		return false;
	}
	return true;
}

int32 ToWholeNumber(const FJsonValue& Value)
{
	return static_cast<int32>(FMath::Clamp(Value.AsNumber(), static_cast<double>(MIN_int32), static_cast<double>(MAX_int32)));
}

/** False when there is no range, or one that does not count. */
bool ReadViewRange(const FJsonObject& Input, int32& OutStart, int32& OutEnd)
{
	const TArray<TSharedPtr<FJsonValue>>* Range = nullptr;
	if (!Input.TryGetArrayField(TEXT("view_range"), Range) || Range->Num() != 2)
	{
		return false;
	}
	OutStart = ToWholeNumber(*(*Range)[0]);
	OutEnd = ToWholeNumber(*(*Range)[1]);
	return OutStart >= 1 && (OutEnd > 0 || OutEnd == -1);
}

/** The first file of that name below the project's sources; empty when there is none. */
FString FindSourceFile(const FString& Name)
{
	FString Root = FPaths::Combine(FPaths::ProjectDir(), TEXT("Source"));
	FPaths::NormalizeDirectoryName(Root);
	TArray<FString> Found;
	IFileManager::Get().FindFilesRecursive(Found, *FPaths::ConvertRelativePathToFull(Root), *Name, true, false);
	return Found.IsEmpty() ? FString() : Found[0];
}
}

FString FAgent::ReplaceRecordedFile(const FString& Path, const FString& Contents)
{
	FString Old;
	if (ReadContent(Path, Old))
	{
		FFileHistory::Get().StoreFileVersion(UndoConversationId, Path, Old);
	}
	const FString Result = FFileUtils::ReplaceFile(Path, Contents);
	ShowDiffUnlessFailed(Result, Path, Old, Contents);
	return Result;
}

FString FAgent::CreateRecordedFile(const FString& Path, const FString& Contents)
{
	FFileHistory::Get().StoreFileCreation(UndoConversationId, Path, Contents);
	const FString Result = FFileUtils::CreateNewFileWithContent(Path, Contents);
	ShowDiffUnlessFailed(Result, Path, FString(), Contents);
	return Result;
}

FString FAgent::HandleCreateFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const FString Path = GetPath(*Input);
	const FString Text = Input->GetStringField(TEXT("file_text"));
	if (FileExists(Path))
	{
		return ReplaceRecordedFile(Path, Text);
	}
	if (FPaths::GetCleanFilename(Path).IsEmpty())
	{
		return TEXT("Error: The provided path must include a filename");
	}
	return CreateRecordedFile(Path, Text);
}

FString FAgent::HandleCreateCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return RunTool(FileExists(GetCppPath(*Input)) ? FToolTable::UpdateAndReplaceCppFile : FToolTable::CreateNewCppFile, ToolId, Input);
}

FString FAgent::HandleCreateNewCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return CreateRecordedFile(GetCppPath(*Input), Input->GetStringField(TEXT("contents")));
}

FString FAgent::HandleUpdateAndReplaceCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return ReplaceRecordedFile(GetCppPath(*Input), Input->GetStringField(TEXT("contents")));
}

FString FAgent::HandleUpdateFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const FString Path = GetPath(*Input);
	const FString Old = FFileUtils::ReadFile(Path);
	if (FFileUtils::IsFailure(Old))
	{
		return Old;
	}
	FFileHistory::Get().StoreFileVersion(UndoConversationId, Path, Old);
	FString OldContent;
	FString NewContent;
	const FString Result = FFileUtils::UpdateFile(
		Path, Input->GetStringField(TEXT("old_string")), Input->GetStringField(TEXT("new_string")), OldContent, NewContent);
	ShowDiffUnlessFailed(Result, Path, OldContent, NewContent);
	return Result;
}

FString FAgent::HandleInsertIntoFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const int32 LineNumber = FCString::Atoi(*Input->GetStringField(TEXT("insert_line")));
	if (LineNumber < 0)
	{
		return TEXT("Error: insert_line must be a non-negative integer.");
	}
	const FString Path = GetPath(*Input);
	const FString Old = FFileUtils::ReadFile(Path);
	if (FFileUtils::IsFailure(Old))
	{
		return Old;
	}
	FFileHistory::Get().StoreFileVersion(UndoConversationId, Path, Old);
	const FString Result = FFileUtils::InsertIntoFile(Path, LineNumber, Input->GetStringField(TEXT("new_string")));
	FString New;
	if (!FFileUtils::IsFailure(Result) && ReadContent(Path, New))
	{
		FKestrinInterface::Get().OnAddDiffMessage(Path, Old, New);
	}
	return Result;
}

FString FAgent::HandleDeleteFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const FString Path = GetPath(*Input);
	FString Old;
	if (ReadContent(Path, Old))
	{
		FFileHistory::Get().StoreFileDeletion(UndoConversationId, Path, Old);
	}
	const FString Result = FFileUtils::DeleteFile(Path);
	ShowDiffUnlessFailed(Result, Path, Old, FString());
	return Result;
}

FString FAgent::HandleDeleteCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const TSharedRef<FJsonObject> PathInput = MakeShared<FJsonObject>();
	PathInput->SetStringField(TEXT("path"), GetCppPath(*Input));
	return RunTool(FToolTable::DeleteFile, ToolId, PathInput);
}

FString FAgent::HandleReadFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	FString Target = GetPath(*Input);
	if (!FileExists(Target))
	{
		Target = FindSourceFile(FPaths::GetCleanFilename(Target));
		if (Target.IsEmpty())
		{
			return TEXT("Error: File not found");
		}
	}
	int32 Start;
	int32 End;
	return ReadViewRange(*Input, Start, End) ? FFileUtils::ReadFileLineRange(Target, Start, End) : FFileUtils::ReadFile(Target);
}

FString FAgent::HandleGetFilesystemTree(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const FString Directory = Input->GetStringField(TEXT("dir_path"));
	return FFileUtils::GetSubDirectoryStructureAsJsonObject(FPaths::Combine(FPaths::ProjectDir(), Directory));
}
