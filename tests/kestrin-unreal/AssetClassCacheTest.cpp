#include "Agent/FileUtils.h"
#include "BehaviorTree/BehaviorTree.h"
#include "GameFramework/Actor.h"
#include "Misc/Paths.h"
#include "Support/TestBlueprint.h"

namespace
{
const char* const CacheFile = "Plugins/kestrin-unreal/Saved/AssetClassCache.log";

/** A project with a Blueprint and a behavior tree; the cache is empty. */
class AssetClassCache : public FBlueprintTest
{
protected:
	AssetClassCache()
	{
		FFileUtils::ClearAssetClassCache();
		FTestBlueprint(TEXT("/Game/Doors/BP_Door"), AActor::StaticClass()).Save();
		SaveAsset(NewObject<UBehaviorTree>(CreatePackage(TEXT("/Game/BT_Guard")), TEXT("BT_Guard"), RF_Public | RF_Standalone));
		Forget();
	}
	~AssetClassCache() override { FFileUtils::ClearAssetClassCache(); }

	/** "stays" with the class, or "goes". */
	static std::string Match(const TCHAR* Directory, const TCHAR* File, const TSet<FName>& Patterns)
	{
		FName Class(TEXT("Untouched"));
		const bool bStays = FFileUtils::FileMatchesAssetClassPatterns(FPaths::ProjectDir() / Directory, File, Patterns, Class);
		return (bStays ? "stays " : "goes ") + ToUtf8(Class.ToString());
	}
	/** Of the file, whose lines come in the order of the map. */
	std::string SaveAndRead() const
	{
		FFileUtils::SaveAssetClassCache();
		return Project.Read(CacheFile);
	}
	static void Reload()
	{
		FFileUtils::ClearAssetClassCache();
		FFileUtils::LoadAssetClassCache();
	}
	static bool IsLoaded(const TCHAR* Package) { return FindPackage(nullptr, Package) != nullptr; }
};

const TSet<FName> Blueprints = { TEXT("Blueprint") };
const TSet<FName> Trees = { TEXT("BehaviorTree"), TEXT("World") };
}

TEST_F(AssetClassCache, LoadsAnAssetOnceToTellItsClass)
{
	EXPECT_EQ(Match(TEXT("Content"), TEXT("BT_Guard.uasset"), {}), "stays Untouched");
	EXPECT_EQ(Match(TEXT("Content"), TEXT("Start.umap"), Trees), "stays Untouched");
	EXPECT_EQ(Match(TEXT("Content"), TEXT("Notes"), Trees), "stays Untouched");
	EXPECT_EQ(SaveAndRead(), "<none>") << "no asset was looked at";
	EXPECT_FALSE(IsLoaded(TEXT("/Game/BT_Guard")));

	EXPECT_EQ(Match(TEXT("Content"), TEXT("BT_Guard.uasset"), Trees), "stays BehaviorTree");
	EXPECT_TRUE(IsLoaded(TEXT("/Game/BT_Guard")));
	EXPECT_EQ(Match(TEXT("Content/Doors"), TEXT("BP_Door.uasset"), Trees), "goes Untouched");
	EXPECT_EQ(SaveAndRead(), "/Game/BT_Guard=BehaviorTree\n/Game/Doors/BP_Door=Blueprint\n");

	Forget();
	EXPECT_EQ(Match(TEXT("Content/Doors"), TEXT("BP_Door.UASSET"), Blueprints), "stays Blueprint");
	EXPECT_EQ(Match(TEXT("Content"), TEXT("BT_Guard.uasset"), Blueprints), "goes Untouched");
	EXPECT_FALSE(IsLoaded(TEXT("/Game/Doors/BP_Door")) || IsLoaded(TEXT("/Game/BT_Guard"))) << "both were known";
}

TEST_F(AssetClassCache, OfAnAssetThatCanNotBeLoadedIsNone)
{
	Project.Write("Content/Broken.uasset", "no package");
	Project.Write("Elsewhere/Door.uasset", Project.Read("Content/Doors/BP_Door.uasset"));
	EXPECT_EQ(Match(TEXT("Content"), TEXT("Broken.uasset"), Trees), "goes Untouched");
	EXPECT_EQ(Match(TEXT("Elsewhere"), TEXT("Door.uasset"), Blueprints), "goes Untouched");
	const std::string Line = ToUtf8(FPaths::ProjectDir()) + "Elsewhere/Door=None\n";
	EXPECT_EQ(SaveAndRead(), "/Game/Broken=None\n" + Line);
	Project.Write("Content/Broken.uasset", Project.Read("Content/BT_Guard.uasset"));
	Reload();
	EXPECT_EQ(Match(TEXT("Content"), TEXT("Broken.uasset"), Trees), "goes Untouched") << "it is not tried again";
	EXPECT_EQ(Match(TEXT("Content"), TEXT("Broken.uasset"), { NAME_None }), "goes Untouched");
}

TEST_F(AssetClassCache, ItsFileIsReadOnceAndLosesWhatIsGone)
{
	Project.Write(
		CacheFile, "/Game/BT_Guard=Old=Class\n/Game/Gone=World\nno sign\n=World\n/Game/Doors/BP_Door=\r\n\n/Game/doors/BP_Door=World\n");
	Reload();
	EXPECT_EQ(Match(TEXT("Content"), TEXT("BT_Guard.uasset"), { TEXT("Old=Class") }), "stays Old=Class") << "as it was once found";
	EXPECT_EQ(FFileUtils::AssetClassCache.Num(), 1);
	Project.Write(CacheFile, "/Game/BT_Guard=New\n");
	FFileUtils::LoadAssetClassCache();
	EXPECT_EQ(FFileUtils::AssetClassCache[TEXT("/Game/BT_Guard")], FName("Old=Class"));

	std::filesystem::remove(Project.Folder() / "Content/BT_Guard.uasset");
	EXPECT_EQ(SaveAndRead(), "/Game/BT_Guard=Old=Class\n") << "in one run it stays";
	Reload();
	EXPECT_TRUE(FFileUtils::AssetClassCache.IsEmpty());
	FFileUtils::SaveAssetClassCache();
	EXPECT_EQ(Project.Read(CacheFile), "/Game/BT_Guard=Old=Class\n") << "an empty cache leaves the file alone";
}

TEST_F(AssetClassCache, GoesOnWithoutAPlaceForItsFile)
{
	Project.Write("Plugins", "a file where the directory should be");
	EXPECT_EQ(Match(TEXT("Content"), TEXT("BT_Guard.uasset"), Trees), "stays BehaviorTree");
	EXPECT_EQ(SaveAndRead(), "<none>");
	Reload();
	EXPECT_TRUE(FFileUtils::AssetClassCache.IsEmpty());
}
