#include "AssetLookup.h"

#include "Agent/BlueprintUtils.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "BehaviorTree/BehaviorTree.h"
#include "Engine/Blueprint.h"

TArray<FAssetData> ListAssetsOfClass(const UClass* Class)
{
	const FAssetRegistryModule& Module = FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	TArray<FAssetData> Assets;
	Module.Get().GetAssetsByClass(Class->GetStructPathName(), Assets, /*bSearchSubClasses*/ false);
	return Assets;
}

namespace
{
/** The first asset of that name; one without a name when there is none. */
FAssetData FindAsset(const UClass* Class, const FString& Name)
{
	const TArray<FAssetData> Assets = ListAssetsOfClass(Class);
	const FAssetData* const Found = Assets.FindByPredicate([&Name](const FAssetData& Asset) { return Asset.AssetName.ToString() == Name; });
	return Found ? *Found : FAssetData();
}

/** Loads the asset of that name. Another one of the same name is not tried when it does not load. */
template <typename AssetType>
AssetType* LoadAsset(const FString& Name)
{
	const FAssetData Asset = FindAsset(AssetType::StaticClass(), Name);
	return Asset.IsValid() ? Cast<AssetType>(Asset.GetAsset()) : nullptr;
}
}

UBlueprint* FKestrinBlueprintUtils::GetBlueprintFromtBlueprintName(const FString& BlueprintName)
{
	return LoadAsset<UBlueprint>(BlueprintName);
}

UBehaviorTree* FKestrinBlueprintUtils::GetBehaviorTreeFromBehaviorTreeName(const FString& BehaviorTreeName)
{
	return LoadAsset<UBehaviorTree>(BehaviorTreeName);
}

UClass* FKestrinBlueprintUtils::GetBlueprintClassFromBlueprintName(const FString& BlueprintName)
{
	if (UObject* const Class = UClass::TryFindTypeSlowSafe(UClass::StaticClass(), BlueprintName))
	{
		return Cast<UClass>(Class);
	}
	const FAssetData Asset = FindAsset(UBlueprint::StaticClass(), BlueprintName);
	return Asset.IsValid() ? GetBlueprintClassFromAssetData(Asset) : nullptr;
}

UClass* FKestrinBlueprintUtils::GetBlueprintClassFromAssetData(const FAssetData& AssetData)
{
	const FAssetTagValueRef ClassPath = AssetData.TagsAndValues.FindTag(TEXT("GeneratedClass"));
	if (ClassPath.IsSet())
	{
		UObject* const Class = StaticLoadObject(UClass::StaticClass(), nullptr, *ClassPath.AsString(), nullptr, LOAD_None, nullptr, true);
		if (Class)
		{
			return Cast<UClass>(Class);
		}
	}
	return AssetData.GetClass();
}

UClass* FKestrinBlueprintUtils::FindFirstCppImplementedParentClass(UClass* Class)
{
	while (Class && Class->HasAnyClassFlags(CLASS_CompiledFromBlueprint))
	{
		Class = Class->GetSuperClass();
	}
	return Class;
}
