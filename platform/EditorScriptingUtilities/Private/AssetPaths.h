#pragma once

#include "AssetRegistry/AssetData.h"

// The ways in which scripts name assets and folders.

namespace AssetPaths
{
/** @return an invalid one, with the reason, when there is none */
FAssetData FindAsset(const FString& Path, FString& OutError);
/** "/Game/Doors/" is "/Game/Doors". */
FString GetFolder(const FString& Path);
/** Where the folder lies, without "/" at the end; empty for what is no folder for assets. */
FString GetFolderOnDisk(const FString& Folder);

void LogFailure(const TCHAR* Function, const FString& Reason);
}
