#pragma once

// What the tests of packages share.

#include "CoreHost/FileFaults.h"
#include "CoreHost/Project.h"
#include "Misc/PackageName.h"
#include "TestParts.h"
#include "TestSupport.h"
#include "UObject/SavePackage.h"

#include <gtest/gtest.h>

/** A project with an empty Content folder; nothing stays in memory between tests. */
class Packages : public testing::Test
{
protected:
	Packages() { FHostProject::Set(Folder / "Test.uproject"); }
	~Packages() override
	{
		FFileFaults::SetHook({});
		FHostProject::Set(TEXT(""));
		Forget();
	}

	static void Forget() { CollectGarbage(RF_NoFlags); }

	static UTestWhole* MakeAsset(const TCHAR* PackageName)
	{
		return NewObject<UTestWhole>(
			CreatePackage(PackageName), *FPackageName::GetShortName(FString(PackageName)), RF_Public | RF_Standalone);
	}
	static FString GetFilename(const UObject* Asset)
	{
		return FPackageName::LongPackageNameToFilename(Asset->GetPackage()->GetName(), FPackageName::GetAssetPackageExtension());
	}
	static bool Save(UObject* Asset)
	{
		FSavePackageArgs Args;
		Args.TopLevelFlags = RF_Standalone;
		return UPackage::Save(Asset->GetPackage(), Asset, *GetFilename(Asset), Args).IsSuccessful();
	}

	FTestDirectory Folder;
	FLogLines Log;
};
