#pragma once

#include "AssetRegistry/AssetData.h"

/** Every asset of exactly that class, in the order of the Asset Registry. */
TArray<FAssetData> ListAssetsOfClass(const UClass* Class);
