#include "Agent/FileUtils.h"

#include "Agent/FileUtils/FileRewrite.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

// Every operation but UpdateFile, whose search has a file of its own. Which path a message shows is fixed for each message. Whether
// source control could be told of a change is in the log and changes nothing here.

namespace
{
bool FileExists(const FString& FullPath)
{
	return FPlatformFileManager::Get().GetPlatformFile().FileExists(*FullPath);
}

bool SaveLines(const TArray<FString>& Lines, const FString& FullPath)
{
	return FFileHelper::SaveStringArrayToFile(Lines, *FullPath, FFileHelper::EEncodingOptions::AutoDetect);
}
}

bool FFileUtils::IsFailure(const FString& Result)
{
	return Result.StartsWith(TEXT("Error:"), ESearchCase::IgnoreCase);
}

FString FFileUtils::GetFullPath(const FString& FilePath)
{
	return FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), FilePath);
}

FString FFileUtils::ReadFile(const FString& FilePath)
{
	const FString FullPath = GetFullPath(FilePath);
	if (!FileExists(FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist: %s"), *FullPath);
	}
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *FullPath))
	{
		return FString::Printf(TEXT("Error: Failed to read file: %s"), *FullPath);
	}
	return Text;
}

FString FFileUtils::ReadFileLineRange(const FString& FilePath, int32 StartLine, int32 EndLine)
{
	const FString FullPath = GetFullPath(FilePath);
	if (!FileExists(FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist: %s"), *FullPath);
	}
	TArray<FString> Lines;
	if (!FFileHelper::LoadFileToStringArray(Lines, *FullPath))
	{
		return FString::Printf(TEXT("Error: Failed to read file: %s"), *FullPath);
	}
	const int32 StartIndex = FMath::Max(StartLine, 1) - 1;
	const int32 Last = EndLine == -1 ? Lines.Num() : EndLine;
	const int32 EndIndex = FMath::Min(Last, Lines.Num()) - 1;
	if (StartIndex > EndIndex || StartIndex >= Lines.Num())
	{
		return FString::Printf(TEXT("Error: Invalid line range for file: %s (StartLine: %d, EndLine: %d, Total Lines: %d)"), *FilePath,
			StartIndex + 1, EndIndex + 1, Lines.Num());
	}
	FString Text = Lines[StartIndex];
	for (int32 Index = StartIndex + 1; Index <= EndIndex; ++Index)
	{
		Text += TEXT("\n");
		Text += Lines[Index];
	}
	return Text;
}

FString FFileUtils::CreateNewFileWithContent(const FString& FilePath, const FString& Content)
{
	const FString FullPath = GetFullPath(FilePath);
	const FString Directory = FPaths::GetPath(FullPath);
	if (!FPaths::DirectoryExists(Directory) && !FPlatformFileManager::Get().GetPlatformFile().CreateDirectoryTree(*Directory))
	{
		return FString::Printf(TEXT("Error: Failed to create directory: %s"), *Directory);
	}
	if (!FFileHelper::SaveStringToFile(Content, *FullPath, FFileHelper::EEncodingOptions::AutoDetect))
	{
		return FString::Printf(TEXT("Error: Failed to create file: %s"), *FilePath);
	}
	AddNewFileToSourceControl(FullPath);
	return FString::Printf(TEXT("File created successfully: %s"), *FilePath);
}

FString FFileUtils::ReplaceFile(const FString& FilePath, const FString& NewContent)
{
	const FString FullPath = GetFullPath(FilePath);
	if (!FileExists(FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist: %s"), *FullPath);
	}
	CheckoutFileFromSourceControl(FullPath);
	const EFileRewrite Rewrite = RewriteFile(
		FullPath, [&] { return FFileHelper::SaveStringToFile(NewContent, *FullPath, FFileHelper::EEncodingOptions::ForceUTF8); });
	switch (Rewrite)
	{
	case EFileRewrite::DeleteFailed: return FString::Printf(TEXT("Error: Failed to delete existing file: %s"), *FullPath);
	case EFileRewrite::WriteFailed: return FString::Printf(TEXT("Error: Failed to write new content to file: %s"), *FullPath);
	default: return FString::Printf(TEXT("Successfully replaced file: %s"), *FilePath);
	}
}

FString FFileUtils::DeleteFile(const FString& FilePath)
{
	const FString FullPath = GetFullPath(FilePath);
	// A file that is gone may still be known to source control.
	RemoveFileFromSourceControl(FullPath, false);
	if (!FileExists(FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist at path: %s"), *FilePath);
	}
	return FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*FullPath)
		? FString::Printf(TEXT("Successfully deleted file: %s"), *FilePath)
		: FString::Printf(TEXT("Error: Failed to delete file: %s"), *FilePath);
}

FString FFileUtils::InsertIntoFile(const FString& FilePath, int32 LineNumber, const FString& Text)
{
	const FString FullPath = GetFullPath(FilePath);
	if (!FileExists(FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist: %s"), *FilePath);
	}
	TArray<FString> Lines;
	if (!FFileHelper::LoadFileToStringArray(Lines, *FullPath))
	{
		return FString::Printf(TEXT("Error: Failed to read file: %s"), *FilePath);
	}
	const int32 Index = FMath::Clamp(LineNumber, 0, Lines.Num());
	Lines.Insert(Text, Index);
	CheckoutFileFromSourceControl(FullPath);
	switch (RewriteFile(FullPath, [&] { return SaveLines(Lines, FullPath); }))
	{
	case EFileRewrite::DeleteFailed: return FString::Printf(TEXT("Error: Failed to delete existing file: %s"), *FilePath);
	case EFileRewrite::WriteFailed: return FString::Printf(TEXT("Error: Failed to write modified content to file: %s"), *FilePath);
	default: return FString::Printf(TEXT("Successfully inserted text at line %d in file: %s"), Index, *FilePath);
	}
}

void FFileUtils::ReplaceLineInFile(const FString& FilePath, int32 LineNumber, const FString& NewLine)
{
	const FString FullPath = GetFullPath(FilePath);
	const int32 Index = LineNumber - 1;
	TArray<FString> Lines;
	if (!FileExists(FullPath) || !FFileHelper::LoadFileToStringArray(Lines, *FullPath) || !Lines.IsValidIndex(Index))
	{
		return;
	}
	Lines[Index] = NewLine;
	CheckoutFileFromSourceControl(FullPath);
	// The operation reports nothing; a line that could not be replaced stays as it was.
	RewriteFile(FullPath, [&] { return SaveLines(Lines, FullPath); });
}
