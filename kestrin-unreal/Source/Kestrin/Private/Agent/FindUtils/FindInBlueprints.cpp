#include "Agent/KestrinFindUtils.h"

#include "Agent/BlueprintUtils/AssetLookup.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"

namespace
{
/** Tests the texts of one Blueprint, and adds a record for each that contains the reference. */
struct FBlueprintSearch
{
	const FString& Reference;
	const FString Blueprint;
	const FString Path;
	TArray<TSharedPtr<FJsonValue>>& Records;

	bool IsHit(const FString& Text) const { return Text.Find(Reference, ESearchCase::IgnoreCase, ESearchDir::FromStart) != INDEX_NONE; }

	void Test(const TCHAR* Type, const FString& Text) const
	{
		if (IsHit(Text))
		{
			Add(Type, &Text);
		}
	}

	void TestOwnName() const
	{
		if (IsHit(Blueprint))
		{
			Add(TEXT("Blueprint File"), nullptr);
		}
	}

	void TestNodes(const UEdGraph& Graph) const
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (Node)
			{
				TestNode(*Node);
			}
		}
	}

private:
	void TestNode(const UEdGraphNode& Node) const
	{
		Test(TEXT("Node Title"), Node.GetNodeTitle(ENodeTitleType::FullTitle).ToString());
		Test(TEXT("Node Comment"), Node.NodeComment);
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (Pin)
			{
				Test(TEXT("Pin"), Pin->PinName.ToString());
			}
		}
	}

	void Add(const TCHAR* Type, const FString* Name) const
	{
		const TSharedRef<FJsonObject> Record = MakeShared<FJsonObject>();
		Record->SetStringField(TEXT("Type"), Type);
		if (Name)
		{
			Record->SetStringField(TEXT("Name"), *Name);
		}
		Record->SetStringField(TEXT("Blueprint"), Blueprint);
		Record->SetStringField(TEXT("Path"), Path);
		Records.Add(MakeShared<FJsonValueObject>(Record));
	}
};
}

void FKestrinFindUtils::FindInAllBlueprintFiles(const FString& Reference, TSharedPtr<FJsonObject>& Result)
{
	TArray<TSharedPtr<FJsonValue>> Records;
	if (!Reference.IsEmpty())
	{
		for (const FAssetData& Asset : ListAssetsOfClass(UBlueprint::StaticClass()))
		{
			FindInBlueprint(Cast<UBlueprint>(Asset.GetAsset()), Reference, Records);
		}
	}
	Result->SetArrayField(TEXT("blueprint_references"), Records);
}

void FKestrinFindUtils::FindInBlueprint(UBlueprint* Blueprint, const FString& Reference, TArray<TSharedPtr<FJsonValue>>& Records)
{
	if (!Blueprint)
	{
		return;
	}
	const FBlueprintSearch Search{ Reference, Blueprint->GetName(), GetBlueprintFilePath(Blueprint), Records };
	Search.TestOwnName();
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		Search.Test(TEXT("Variable"), Variable.VarName.ToString());
	}
	for (const UEdGraph* const Graph : Blueprint->FunctionGraphs)
	{
		if (Graph)
		{
			Search.Test(TEXT("Function"), Graph->GetName());
			Search.TestNodes(*Graph);
		}
	}
	for (const UEdGraph* const Page : Blueprint->UbergraphPages)
	{
		if (Page)
		{
			Search.TestNodes(*Page);
		}
	}
}

FString FKestrinFindUtils::GetBlueprintFilePath(UBlueprint* Blueprint)
{
	if (!Blueprint)
	{
		return TEXT("Invalid Blueprint");
	}
	FString Path = FPackageName::GetLongPackagePath(Blueprint->GetPathName()) + TEXT("/") + Blueprint->GetName() + TEXT(".uasset");
	Path.ReplaceInline(TEXT("/Game/"), TEXT(""), ESearchCase::IgnoreCase);
	return FPaths::ConvertRelativePathToFull(FPaths::ProjectContentDir() + Path);
}
