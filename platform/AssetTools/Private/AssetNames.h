#pragma once

#include "CoreMinimal.h"

class UPackage;

/** "/Game//Doors/" and "Door" make "/Game/Doors/Door". */
FString JoinPackageName(const FString& PackagePath, const FString& AssetName);
/** The package for a new asset, empty as it must be; null with a reason. */
UPackage* MakePackage(const FString& PackageName, const FString& AssetName, FString& OutReason);
