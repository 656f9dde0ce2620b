#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "BehaviorTree/BehaviorTree.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"

namespace
{
/** Two doors in folders of their own, a key, and assets of other classes; all of them in files alone. */
class AssetLookup : public FBlueprintTest
{
protected:
	AssetLookup()
	{
		FTestBlueprint(TEXT("/Game/A/BP_Door"), AActor::StaticClass()).Save();
		FTestBlueprint(TEXT("/Game/B/bp_door")).Save();
		FTestBlueprint(TEXT("/Game/B/BP_Key"), AActor::StaticClass()).Save();
		SaveAsset(NewObject<UBehaviorTree>(CreatePackage(TEXT("/Game/B/BT_Guard")), TEXT("BT_Guard"), RF_Public | RF_Standalone));
		SaveAsset(FKismetEditorUtilities::CreateBlueprint(UAnimInstance::StaticClass(), CreatePackage(TEXT("/Game/B/ABP_Key")),
			TEXT("ABP_Key"), BPTYPE_Normal, UAnimBlueprint::StaticClass(), UAnimBlueprintGeneratedClass::StaticClass()));
		Forget();
	}

	static std::string PathOf(const UObject* Object) { return Object ? ToUtf8(Object->GetPathName()) : "none"; }
};

const std::string Door = "/Game/A/BP_Door.BP_Door";
const std::string Key = "/Game/B/BP_Key.BP_Key";
const std::string Guard = "/Game/B/BT_Guard.BT_Guard";
}

TEST_F(AssetLookup, GoesByWholeShortNamesIgnoringCase)
{
	const struct
	{
		const TCHAR* Name;
		std::string Blueprint;
		std::string Class;
		std::string Tree;
	} Cases[] = {
		{ TEXT("BP_Key_C"), "none", "none", "none" },
		{ TEXT("BP_Key"), Key, Key + "_C", "none" },
		{ TEXT("bp_KEY"), Key, Key + "_C", "none" },
		{ TEXT("bp_door"), Door, Door + "_C", "none" },
		{ TEXT("ABP_Key"), "none", "none", "none" },
		{ TEXT("BT_guard"), "none", "none", Guard },
		{ TEXT("Actor"), "none", "/Script/Engine.Actor", "none" },
		{ TEXT("actor"), "none", "/Script/Engine.Actor", "none" },
		{ TEXT("AActor"), "none", "none", "none" },
		{ TEXT("/Game/B/BP_Key"), "none", "none", "none" },
		{ TEXT("BP_Key.BP_Key"), "none", "none", "none" },
		{ TEXT("BP_Ke"), "none", "none", "none" },
		{ TEXT("BP_Key "), "none", "none", "none" },
		{ TEXT("None"), "none", "none", "none" },
		{ TEXT(""), "none", "none", "none" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(ToUtf8(Case.Name));
		EXPECT_EQ(PathOf(FAccess::FindClass(Case.Name)), Case.Class);
		EXPECT_EQ(PathOf(FAccess::FindBlueprint(Case.Name)), Case.Blueprint);
		EXPECT_EQ(PathOf(FAccess::FindBehaviorTree(Case.Name)), Case.Tree);
	}
	EXPECT_EQ(PathOf(FAccess::FindClass(TEXT("BP_Key_C"))), Key + "_C") << "by now it is a class in memory";
}

TEST_F(AssetLookup, OfAnAssetThatDoesNotLoadGivesNoOtherOne)
{
	std::string Bytes = Project.Read("Content/A/BP_Door.uasset");
	for (SIZE_T Place = Bytes.size() / 2; Place < Bytes.size(); ++Place)
	{
		Bytes[Place] = static_cast<char>(~Bytes[Place]);
	}
	Project.Write("Content/A/BP_Door.uasset", Bytes);
	Forget();
	TArray<FAssetData> Doors;
	ASSERT_TRUE(IAssetRegistry::GetChecked().GetAssetsByPackageName(TEXT("/Game/A/BP_Door"), Doors)) << "the header is sound";
	EXPECT_EQ(PathOf(FAccess::FindBlueprint(TEXT("BP_Door"))), "none");
	EXPECT_EQ(PathOf(FAccess::GetClass(Doors[0])), "/Script/Engine.Blueprint") << "the asset's own class is what is left";
}

TEST_F(AssetLookup, ANativeClassIsTheFirstThatNoBlueprintMade)
{
	const FTestBlueprint Child(TEXT("/Game/Child"), FAccess::FindClass(TEXT("BP_Key")));
	EXPECT_EQ(FAccess::FindNativeClass(Child.GetClass()), AActor::StaticClass());
	EXPECT_EQ(FAccess::FindNativeClass(AActor::StaticClass()), AActor::StaticClass());
	EXPECT_EQ(FAccess::FindNativeClass(nullptr), nullptr);
}
