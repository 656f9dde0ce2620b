#pragma once

// What the tests of Blueprints share.

#include "CoreHost/Project.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "TestSupport.h"
#include "UObject/SavePackage.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

/** A project of its own; nothing stays in memory between tests. */
class Blueprints : public testing::Test
{
protected:
	using FUtils = FBlueprintEditorUtils;
	using FSchema = UEdGraphSchema_K2;

	Blueprints()
	{
		FModuleManager::Get().LoadModule(TEXT("UnrealEd"));
		FHostProject::Set(Folder / "Test.uproject");
	}
	~Blueprints() override
	{
		GEditor->ResetTransaction(FText::GetEmpty());
		FHostProject::Set(TEXT(""));
		CollectGarbage(RF_NoFlags);
	}

	static UBlueprint* Make(const FString& Name, UClass* Parent = AActor::StaticClass(), EBlueprintType Type = BPTYPE_Normal)
	{
		return FKismetEditorUtilities::CreateBlueprint(Parent, CreatePackage(*(TEXT("/Game/") + Name)), FName(Name), Type);
	}
	static EBlueprintStatus Compile(UBlueprint* Blueprint)
	{
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		return Blueprint->Status;
	}

	static FEdGraphPinType Type(FName Category, UObject* Object = nullptr, EPinContainerType Container = EPinContainerType::None)
	{
		return { Category, FName(), Object, Container, false, FEdGraphTerminalType() };
	}
	static void AddInt(UBlueprint* Blueprint, const TCHAR* Name, const TCHAR* Value = TEXT(""))
	{
		EXPECT_TRUE(FUtils::AddMemberVariable(Blueprint, FName(Name), Type(FSchema::PC_Int), Value));
	}
	static FBPVariableDescription& Variable(UBlueprint* Blueprint, const TCHAR* Name)
	{
		return Blueprint->NewVariables[FUtils::FindNewVariableIndex(Blueprint, FName(Name))];
	}
	static UEdGraph* AddFunction(UBlueprint* Blueprint, const TCHAR* Name)
	{
		UEdGraph* const Graph = FUtils::CreateNewGraph(Blueprint, FName(Name), UEdGraph::StaticClass(), FSchema::StaticClass());
		FUtils::AddFunctionGraph(Blueprint, Graph, true, static_cast<UClass*>(nullptr));
		return Graph;
	}
	template <typename NodeType>
	static NodeType* Find(const UEdGraph* Graph)
	{
		TArray<NodeType*> Nodes;
		Graph->GetNodesOfClass(Nodes);
		return Nodes.IsEmpty() ? nullptr : Nodes[0];
	}
	template <typename NodeType>
	static NodeType* AddNode(UEdGraph* Graph)
	{
		FGraphNodeCreator<NodeType> Creator(*Graph);
		NodeType* const Node = Creator.CreateNode();
		Creator.Finalize();
		return Node;
	}

	static UObject* Defaults(const UBlueprint* Blueprint) { return Blueprint->GeneratedClass->GetDefaultObject(); }
	/** A property's value as text; "-" when there is no such property. */
	static FString Value(UObject* Object, const TCHAR* Name)
	{
		const FProperty* const Property = Object->GetClass()->FindPropertyByName(FName(Name));
		FString Text(Property ? TEXT("") : TEXT("-"));
		if (Property)
		{
			Property->ExportTextItem_InContainer(Text, Object, nullptr, Object, PPF_None);
		}
		return Text;
	}
	static FString Value(const UBlueprint* Blueprint, const TCHAR* Name) { return Value(Defaults(Blueprint), Name); }
	static void Set(UObject* Object, const TCHAR* Name, const TCHAR* Text)
	{
		EXPECT_TRUE(Object->GetClass()->FindPropertyByName(FName(Name))->ImportText_InContainer(Text, Object, Object, PPF_None));
	}

	static FString GetFilename(const UBlueprint* Blueprint)
	{
		return FPackageName::LongPackageNameToFilename(Blueprint->GetPackage()->GetName(), FPackageName::GetAssetPackageExtension());
	}
	static bool Save(UBlueprint* Blueprint)
	{
		FSavePackageArgs Args;
		Args.TopLevelFlags = RF_Standalone;
		return UPackage::Save(Blueprint->GetPackage(), Blueprint, *GetFilename(Blueprint), Args).IsSuccessful();
	}

	FTestDirectory Folder;
	FLogLines Log;
};
