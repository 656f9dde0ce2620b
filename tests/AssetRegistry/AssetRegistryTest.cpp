#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "CoreHost/Project.h"
#include "Misc/PackageName.h"
#include "TestParts.h"
#include "TestSupport.h"
#include "UObject/SavePackage.h"

#include <gtest/gtest.h>

namespace
{
/** A project with a content folder; nothing of it stays in memory after a test. */
class AssetRegistry : public testing::Test
{
protected:
	AssetRegistry()
	{
		FHostProject::Set(Directory / "Game.uproject");
		FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	}
	~AssetRegistry() override
	{
		FHostProject::Set(FString());
		CollectGarbage(RF_NoFlags);
	}

	template <typename T>
	static T* Save(const TCHAR* Path)
	{
		UPackage* const Package = CreatePackage(*(TEXT("/Game/") + FString(Path)));
		T* const Asset = NewObject<T>(Package, FName(FPackageName::GetShortName(Package->GetName())), RF_Public | RF_Standalone);
		const FString File = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
		EXPECT_TRUE(UPackage::Save(Package, Asset, *File, FSavePackageArgs()).IsSuccessful());
		return Asset;
	}
	static void Forget() { CollectGarbage(RF_NoFlags); }

	static TArray<FString> List(const UClass* Class = UTestPart::StaticClass(), bool bSubClasses = false)
	{
		TArray<FAssetData> Assets;
		IAssetRegistry::GetChecked().GetAssetsByClass(Class->GetStructPathName(), Assets, bSubClasses);
		TArray<FString> Paths;
		for (const FAssetData& Asset : Assets)
		{
			Paths.Add(Asset.GetObjectPathString());
		}
		return Paths;
	}

	FTestDirectory Directory;
};
using Paths = TArray<FString>;

int32 CountLines(const FLogLines& Log, const TCHAR* Part)
{
	return Log.Lines.FilterByPredicate([Part](const FString& Line) { return Line.Contains(Part); }).Num();
}
}

TEST_F(AssetRegistry, ListsFilesByClassInOrderWithoutLoadingThem)
{
	Save<UTestPart>(TEXT("b/Second"));
	Save<UTestPart>(TEXT("A/first"));
	Save<UTestWhole>(TEXT("A/Whole"));
	Save<UTestDerivedWhole>(TEXT("A/Derived"));
	Directory.Write("Content/A/Readme.txt", "no package");
	Forget();
	EXPECT_EQ(List(), (Paths{ TEXT("/Game/A/first.first"), TEXT("/Game/b/Second.Second") }));
	EXPECT_EQ(List(UTestWhole::StaticClass()), Paths{ TEXT("/Game/A/Whole.Whole") });
	EXPECT_EQ(List(UTestWhole::StaticClass(), true), (Paths{ TEXT("/Game/A/Derived.Derived"), TEXT("/Game/A/Whole.Whole") }));
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/A/first")), nullptr);

	const FAssetData Found = IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/A/first.first")));
	EXPECT_EQ(Found.AssetName, FName("first"));
	EXPECT_EQ(Found.PackagePath, FName("/Game/A"));
	EXPECT_TRUE(Found.GetAsset()->IsA<UTestPart>());
}

TEST_F(AssetRegistry, FollowsTheFolderWhileItChanges)
{
	Save<UTestPart>(TEXT("Stays"));
	Save<UTestPart>(TEXT("Goes"));
	Save<UTestPart>(TEXT("Breaks"));
	Forget();
	ASSERT_EQ(List().Num(), 3);
	Paths Removed;
	const FDelegateHandle Handle = IAssetRegistry::GetChecked().OnAssetRemoved().AddLambda(
		[&Removed](const FAssetData& Asset) { Removed.Add(Asset.AssetName.ToString()); });
	std::filesystem::remove(Directory.Native("Content/Goes.uasset"));
	Directory.Write("Content/Breaks.uasset", "overwritten by something else entirely, and long enough to be looked at");
	FLogLines Log;
	EXPECT_EQ(List(), Paths{ TEXT("/Game/Stays.Stays") });
	EXPECT_EQ(List(), Paths{ TEXT("/Game/Stays.Stays") });
	EXPECT_EQ(CountLines(Log, TEXT("Breaks.uasset")), 1) << "once, though it was looked at twice";
	Removed.Sort();
	EXPECT_EQ(Removed, (Paths{ TEXT("Breaks"), TEXT("Goes") }));
	Save<UTestPart>(TEXT("Comes"));
	EXPECT_EQ(List(), (Paths{ TEXT("/Game/Comes.Comes"), TEXT("/Game/Stays.Stays") }));
	IAssetRegistry::GetChecked().OnAssetRemoved().Remove(Handle);
}

TEST_F(AssetRegistry, KnowsWhatIsOnlyInMemoryAndPrefersIt)
{
	IAssetTools& Tools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	UObject* const Made = Tools.CreateAsset(TEXT("New"), TEXT("/Game//Doors/"), UTestPart::StaticClass(), nullptr);
	ASSERT_NE(Made, nullptr);
	EXPECT_EQ(Made->GetPathName(), TEXT("/Game/Doors/New.New"));
	EXPECT_TRUE(Made->GetOutermost()->IsDirty());
	EXPECT_EQ(List(), Paths{ TEXT("/Game/Doors/New.New") });
	TArray<FAssetData> OnDisk;
	EXPECT_FALSE(IAssetRegistry::GetChecked().GetAllAssets(OnDisk, true));
	Made->MarkAsGarbage();
	EXPECT_EQ(List(), Paths());
}

TEST_F(AssetRegistry, KeepsWhatWasNotSavedWhenItsFileGoes)
{
	UTestPart* const Changed = Save<UTestPart>(TEXT("Changed"));
	UTestPart* const Unchanged = Save<UTestPart>(TEXT("Unchanged"));
	ASSERT_EQ(List().Num(), 2);
	Changed->MarkPackageDirty();
	std::filesystem::remove(Directory.Native("Content/Changed.uasset"));
	std::filesystem::remove(Directory.Native("Content/Unchanged.uasset"));
	EXPECT_EQ(List(), Paths{ TEXT("/Game/Changed.Changed") });
	EXPECT_TRUE(IsValid(Unchanged));
}

TEST_F(AssetRegistry, SeesEveryChangeBetweenTwoQuestions)
{
	EXPECT_EQ(List(), Paths()) << "there is no folder yet";
	Save<UTestPart>(TEXT("One"));
	Forget();
	EXPECT_EQ(List(), Paths{ TEXT("/Game/One.One") });
	const struct
	{
		const char* From;
		const char* To;
		Paths Expected;
	} Moves[] = {
		{ "Content/One.uasset", "Content/A/B/One.uasset", { TEXT("/Game/A/B/One.One") } },
		{ "Content/A", "Content/C", { TEXT("/Game/C/B/One.One") } },
		{ "Content/C", "Elsewhere", {} },
		{ "Elsewhere", "Content/C", { TEXT("/Game/C/B/One.One") } },
		{ "Content/C/B/One.uasset", "Content/One.uasset", { TEXT("/Game/One.One") } },
		{ "Content", "Elsewhere", {} },
		{ "Elsewhere", "Content", { TEXT("/Game/One.One") } },
	};
	for (const auto& Move : Moves)
	{
		std::filesystem::create_directories(Directory.Native(Move.To).parent_path());
		std::filesystem::rename(Directory.Native(Move.From), Directory.Native(Move.To));
		EXPECT_EQ(List(), Move.Expected) << Move.From << " to " << Move.To;
	}
}

TEST_F(AssetRegistry, RefusesAssetsThatCanNotBe)
{
	IAssetTools& Tools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	Save<UTestPart>(TEXT("Taken"));
	Directory.Write("Content/Damaged.uasset", "no package");
	Forget();
	const struct
	{
		const TCHAR* Name;
		const TCHAR* Path;
	} Cases[] = {
		{ TEXT(""), TEXT("/Game") },
		{ TEXT("a b"), TEXT("/Game") },
		{ TEXT("a.b"), TEXT("/Game") },
		{ TEXT("a/b"), TEXT("/Game") },
		{ TEXT("Fine"), TEXT("") },
		{ TEXT("Fine"), TEXT("Game") },
		{ TEXT("Fine"), TEXT("/Nowhere") },
		{ TEXT("Fine"), TEXT("/Script/Engine") },
		{ TEXT("Fine"), TEXT("/Game/../..") },
		{ TEXT("Taken"), TEXT("/Game") },
		{ TEXT("TAKEN"), TEXT("/Game") },
		{ TEXT("Damaged"), TEXT("/Game") },
	};
	for (const auto& Case : Cases)
	{
		FLogLines Log;
		EXPECT_EQ(Tools.CreateAsset(Case.Name, Case.Path, UTestPart::StaticClass(), nullptr), nullptr)
			<< TCHAR_TO_UTF8(Case.Path) << " " << TCHAR_TO_UTF8(Case.Name);
		EXPECT_EQ(CountLines(Log, TEXT("LogAssetTools")), 1);
	}
}
