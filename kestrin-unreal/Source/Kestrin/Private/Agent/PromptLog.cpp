#include "Agent/KestrinInterface.h"

#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "KestrinSettings.h"
#include "Misc/DateTime.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

// The prompt log: what the chat shows, one file a day, in the plug-in's folder of the project.

void FKestrinInterface::PrepareLogs()
{
	LogDirectory = FPaths::Combine(FPaths::ProjectPluginsDir(), TEXT("kestrin-unreal"), TEXT("Logs"));
	EnsureLogDirectoryExists();
	const UKestrinSettings* const Settings = GetDefault<UKestrinSettings>();
	if (!Settings)
	{
		return;
	}
	switch (Settings->LogRetentionPolicy)
	{
	case EKestrinLogDeletionPolicy::DeleteAllOnStart: DeleteAllLogs(); break;
	case EKestrinLogDeletionPolicy::KeepLast30Days: DeleteOldLogs(30); break;
	case EKestrinLogDeletionPolicy::KeepAll: break;
	}
}

FString FKestrinInterface::GetPromptLogFilePath()
{
	const FString Date = FDateTime::Now().ToString(TEXT("%Y-%m-%d"));
	return FPaths::Combine(LogDirectory, FString::Printf(TEXT("KestrinPrompts_%s.log"), *Date));
}

void FKestrinInterface::KestrinInterfaceLogString(const FString& Text, const FString& FilePath, bool bAddTimestamp) const
{
	EnsureLogDirectoryExists();
	const FString Record = bAddTimestamp ? FString::Printf(TEXT("\n[%s] %s\n\n"), *FDateTime::Now().ToString(TEXT("%H:%M:%S")), *Text)
										 : FString::Printf(TEXT("%s\n"), *Text);
	FFileHelper::SaveStringToFile(
		Record, *FilePath, FFileHelper::EEncodingOptions::ForceUTF8, &IFileManager::Get(), EFileWrite::FILEWRITE_Append);
}

void FKestrinInterface::EnsureLogDirectoryExists() const
{
	IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
	if (!PlatformFile.DirectoryExists(*LogDirectory))
	{
		PlatformFile.CreateDirectoryTree(*LogDirectory);
	}
}

TArray<FString> FKestrinInterface::GetAllLogFiles()
{
	TArray<FString> Files;
	IPlatformFile& PlatformFile = FPlatformFileManager::Get().GetPlatformFile();
	if (PlatformFile.DirectoryExists(*LogDirectory))
	{
		PlatformFile.FindFiles(Files, *LogDirectory, TEXT(".log"));
	}
	return Files;
}

void FKestrinInterface::DeleteAllLogs()
{
	for (const FString& File : GetAllLogFiles())
	{
		FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*File);
	}
}

void FKestrinInterface::DeleteOldLogs(int32 Days)
{
	for (const FString& File : GetAllLogFiles())
	{
		if (IsLogFileOlderThanDays(File, Days))
		{
			FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*File);
		}
	}
}

bool FKestrinInterface::IsLogFileOlderThanDays(const FString& FilePath, int32 Days) const
{
	// The stamp is in UTC and the clock here is local: some hours more or less do not matter in a rule of days.
	const FDateTime Stamp = FPlatformFileManager::Get().GetPlatformFile().GetTimeStamp(*FilePath);
	return (FDateTime::Now() - Stamp).GetTotalDays() > Days;
}
