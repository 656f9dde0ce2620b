#pragma once

// AssetTools: new assets, with the refusals of an editor in which nobody can be asked. Left out: copying, renaming, importing,
// asset menus, redirectors.

#include "UObject/Object.h"

class UFactory;

class ASSETTOOLS_API IAssetTools
{
public:
	static IAssetTools& Get();
	virtual ~IAssetTools() = default;

	/**
	 * Makes an asset in a package of its own, which is dirty then and has no file yet. The Asset Registry is told.
	 * @param PackagePath the folder, as in "/Game/Doors"
	 * @param Factory null to make a plain object of the class
	 * @return null, with the reason in the log, for a name or path that can't be, a name that is taken, and when the factory refuses
	 */
	virtual UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;
};
