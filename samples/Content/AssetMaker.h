#pragma once

#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

// What all assets of the sample game are made with.

constexpr EObjectFlags AssetFlags = RF_Public | RF_Standalone | RF_Transactional;

/** The package of an asset: "/Game/Moths/BT_Moth" for the path "Moths/BT_Moth". */
UPackage* MakePackage(const FString& Path);

/** An asset that is nothing but an object of its class. */
template <typename T>
T* MakeAsset(const TCHAR* Path)
{
	UPackage* const Package = MakePackage(Path);
	return NewObject<T>(Package, FName(FPackageName::GetShortName(Package->GetName())), AssetFlags);
}

/** Sets a property from its text, as an editor's field does. Ends the program when there is no such property, or the text is none. */
void SetProperty(UObject* Object, const TCHAR* Name, const FString& Text);
/** Writes the asset's file, .umap for a world. Ends the program when that fails. */
void SaveAsset(UObject* Asset);
