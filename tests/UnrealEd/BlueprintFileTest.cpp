#include "BlueprintSupport.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "Components/SceneComponent.h"
#include "HAL/FileManager.h"
#include "Editor/Transactor.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Variable.h"
#include "GameFramework/Pawn.h"

namespace
{
/** All that a class says of itself, with its defaults. */
FString Describe(const UBlueprint* Blueprint)
{
	UClass* const Class = Blueprint->GeneratedClass;
	UObject* const Defaults = Class->GetDefaultObject();
	FString Text = FString::Printf(TEXT("%s: %s %x\n"), *Class->GetName(), *Class->GetSuperClass()->GetPathName(), Class->GetClassFlags());
	for (TFieldIterator<FProperty> Property(Class); Property; ++Property)
	{
		FString Value;
		Property->ExportTextItem_InContainer(Value, Defaults, nullptr, Defaults, PPF_None);
		Text += FString::Printf(TEXT("%s %s %llx %s '%s'\n"), *Property->GetTypeTag().ToString(), *Property->GetName(),
			static_cast<unsigned long long>(Property->GetPropertyFlags()), *Property->GetMetaData(TEXT("Category")), *Value);
	}
	for (TFieldIterator<UFunction> Function(Class, EFieldIterationFlags::None); Function; ++Function)
	{
		Text += FString::Printf(TEXT("%s %x:"), *Function->GetName(), Function->FunctionFlags);
		for (TFieldIterator<FProperty> Property(*Function, EFieldIterationFlags::None); Property; ++Property)
		{
			Text += TEXT(" ") + Property->GetName() + TEXT(" ") + Property->GetTypeTag().ToString();
		}
		Text += TEXT("\n");
	}
	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		Text += Graph->GetName() + TEXT(": ");
		for (const UEdGraphNode* const Node : Graph->Nodes)
		{
			Text += Node->GetNodeTitle(ENodeTitleType::FullTitle).ToString() + FString::Printf(TEXT("(%d) "), Node->Pins.Num());
		}
	}
	return Text;
}
}

TEST_F(Blueprints, AreReadFromTheirFilesAsTheyWereWithoutACompile)
{
	FString Before;
	{
		UBlueprint* const Parent = Make(TEXT("FileParent"));
		AddInt(Parent, TEXT("Health"), TEXT("5"));
		Compile(Parent);
		UBlueprint* const Child = Make(TEXT("FileChild"), Parent->GeneratedClass);
		AddInt(Child, TEXT("Rage"), TEXT("6"));
		FEdGraphPinType Self = Type(FSchema::PC_Object, nullptr, EPinContainerType::Array);
		Self.PinSubCategory = FSchema::PSC_Self;
		EXPECT_TRUE(FUtils::AddMemberVariable(Child, TEXT("Friends"), Self));
		EXPECT_TRUE(FUtils::AddMemberVariable(Child, TEXT("OnRung"), Type(FSchema::PC_MCDelegate)));
		UEdGraph* const Graph = AddFunction(Child, TEXT("Open"));
		Find<UK2Node_FunctionEntry>(Graph)->CreateUserDefinedPin(TEXT("Speed"), Type(FSchema::PC_Real), EGPD_Output);
		GetDefault<FSchema>()->SpawnVariableGetNode(FVector2D(), Graph, TEXT("Rage"), nullptr);
		Child->SimpleConstructionScript->AddNode(Child->SimpleConstructionScript->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp")));
		UTimelineTemplate* const Timeline = FUtils::AddNewTimeline(Child, TEXT("Fade"));
		Timeline->FloatTracks.AddDefaulted_GetRef().SetTrackName(TEXT("Alpha"), Timeline);
		EXPECT_EQ(Compile(Child), BS_UpToDate);
		Set(Defaults(Child), TEXT("Health"), TEXT("50"));
		ASSERT_TRUE(Save(Parent) && Save(Child));
		Before = Describe(Child);
	}
	CollectGarbage(RF_NoFlags);
	ASSERT_FALSE(FindPackage(nullptr, TEXT("/Game/FileChild")));

	UBlueprint* const Child = LoadObject<UBlueprint>(nullptr, TEXT("/Game/FileChild.FileChild"));
	ASSERT_TRUE(Child);
	EXPECT_EQ(Describe(Child), Before);
	EXPECT_EQ(Child->Status, BS_UpToDate);
	EXPECT_FALSE(Child->GetPackage()->IsDirty());
	EXPECT_FALSE(Child->SkeletonGeneratedClass);
	EXPECT_FALSE(Log.HasLineWith(TEXT("does not match")));
	EXPECT_EQ(Compile(Child), BS_UpToDate);
	EXPECT_EQ(Describe(Child), Before) << "and the compile changes nothing";
	EXPECT_EQ(Value(Child, TEXT("Health")), TEXT("50"));
}

namespace
{
using FUtils = FBlueprintEditorUtils;
using FSchema = UEdGraphSchema_K2;

/** Changes of a Blueprint with the variable Health and the function Open that its class does not know of. */
struct FChange
{
	const TCHAR* Name;
	void (*Make)(UBlueprint*);
};

FEdGraphPinType TypeOf(FName Category)
{
	return { Category, FName(), nullptr, EPinContainerType::None, false, FEdGraphTerminalType() };
}

const FChange Changes[] = {
	{ TEXT("Added"), [](UBlueprint* Blueprint) { FUtils::AddMemberVariable(Blueprint, TEXT("Late"), TypeOf(FSchema::PC_Int), TEXT("5")); } },
	{ TEXT("Removed"), [](UBlueprint* Blueprint) { FUtils::RemoveMemberVariable(Blueprint, TEXT("Health")); } },
	{ TEXT("Retyped"),
		[](UBlueprint* Blueprint) { FUtils::ChangeMemberVariableType(Blueprint, TEXT("Health"), TypeOf(FSchema::PC_String)); } },
	{ TEXT("Flagged"), [](UBlueprint* Blueprint) { FUtils::SetVariableSaveGameFlag(Blueprint, TEXT("Health"), true); } },
	{ TEXT("Valued"), [](UBlueprint* Blueprint) { Blueprint->NewVariables[0].DefaultValue = TEXT("7"); } },
	{ TEXT("Parameter"),
		[](UBlueprint* Blueprint)
		{
	TArray<UK2Node_FunctionEntry*> Entries;
	FUtils::GetAllNodesOfClass(Blueprint, Entries);
	Entries.Last()->CreateUserDefinedPin(TEXT("Speed"), TypeOf(FSchema::PC_Name), EGPD_Output);
} },
	{ TEXT("Component"),
		[](UBlueprint* Blueprint)
		{
	USimpleConstructionScript* const Script = Blueprint->SimpleConstructionScript;
	Script->AddNode(Script->CreateNode(USceneComponent::StaticClass(), TEXT("Lamp")));
} },
	{ TEXT("Timeline"), [](UBlueprint* Blueprint) { FUtils::AddNewTimeline(Blueprint, TEXT("Fade")); } },
	{ TEXT("Reparented"), [](UBlueprint* Blueprint) { Blueprint->ParentClass = APawn::StaticClass(); } },
};
}

TEST_F(Blueprints, OnesThatWereSavedBeforeTheirCompileAreCompiledAsTheyAreLoaded)
{
	TMap<FString, FString> Compiled;
	for (const FChange& Change : Changes)
	{
		UBlueprint* const Blueprint = Make(Change.Name);
		AddInt(Blueprint, TEXT("Health"), TEXT("5"));
		AddFunction(Blueprint, TEXT("Open"));
		EXPECT_EQ(Compile(Blueprint), BS_UpToDate);
		Change.Make(Blueprint);
		ASSERT_TRUE(Save(Blueprint));
		Compile(Blueprint);
		Compiled.Add(Change.Name, Describe(Blueprint));
	}
	CollectGarbage(RF_NoFlags);
	Log.Lines.Empty();
	GEditor->BeginTransaction(TEXT(""), FText::FromString(TEXT("Looking")), nullptr);
	for (const FChange& Change : Changes)
	{
		const FString Name(Change.Name);
		UBlueprint* const Loaded = LoadObject<UBlueprint>(nullptr, *(TEXT("/Game/") + Name));
		ASSERT_TRUE(Loaded);
		EXPECT_EQ(Describe(Loaded), Compiled[Name]) << TCHAR_TO_UTF8(Change.Name);
		EXPECT_TRUE(Log.HasLineWith(*(TEXT("LogBlueprint|Log|/Game/") + Name))) << TCHAR_TO_UTF8(Change.Name);
		EXPECT_EQ(Loaded->Status, BS_UpToDate) << TCHAR_TO_UTF8(Change.Name);
		EXPECT_FALSE(Loaded->GetPackage()->IsDirty()) << TCHAR_TO_UTF8(Change.Name);
	}
	GEditor->EndTransaction();
	EXPECT_EQ(GEditor->Trans->GetQueueLength(), 0) << "a transaction that recorded nothing is not kept";
}

TEST_F(Blueprints, AChildIsCompiledAsItIsLoadedWhenItsParentHasChanged)
{
	{
		UBlueprint* const Parent = Make(TEXT("NewParent"));
		UBlueprint* const Child = Make(TEXT("OldChild"), Parent->GeneratedClass);
		AddInt(Child, TEXT("Rage"), TEXT("6"));
		Compile(Child);
		ASSERT_TRUE(Save(Child));
		AddInt(Parent, TEXT("Health"), TEXT("5"));
		ASSERT_TRUE(Save(Parent));
	}
	const auto Reload = [this]
	{
		CollectGarbage(RF_NoFlags);
		Log.Lines.Empty();
		return LoadObject<UBlueprint>(nullptr, TEXT("/Game/OldChild.OldChild"));
	};
	{
		UBlueprint* const Child = Reload();
		EXPECT_EQ(Value(Child, TEXT("Health")), TEXT("5")) << "the parent was saved before its compile";
		EXPECT_EQ(Value(Child, TEXT("Rage")), TEXT("6"));
		EXPECT_EQ(Child->Status, BS_UpToDate);
		UBlueprint* const Parent = UBlueprint::GetBlueprintFromClass(Child->ParentClass);
		FUtils::RenameMemberVariable(Parent, TEXT("Health"), TEXT("Rage"));
		Compile(Parent);
		ASSERT_TRUE(Save(Parent));
	}
	UBlueprint* const Child = Reload();
	EXPECT_EQ(Child->Status, BS_Error);
	EXPECT_TRUE(Log.HasLineWith(TEXT("The name of the variable Rage is taken")));
	EXPECT_FALSE(Child->GetPackage()->IsDirty());
}

TEST_F(Blueprints, WithoutCompileOnLoadOneKeepsTheClassOfItsFile)
{
	UBlueprint* const Blueprint = Make(TEXT("Stale"));
	AddInt(Blueprint, TEXT("Late"), TEXT("5"));
	ASSERT_TRUE(Save(Blueprint));
	CollectGarbage(RF_NoFlags);
	ASSERT_TRUE(LoadPackage(nullptr, TEXT("/Game/Stale"), LOAD_DisableCompileOnLoad));
	UBlueprint* const Loaded = FindObject<UBlueprint>(nullptr, TEXT("/Game/Stale.Stale"));
	EXPECT_EQ(Loaded->Status, BS_Unknown);
	EXPECT_EQ(Value(Loaded, TEXT("Late")), TEXT("-"));
}

TEST_F(Blueprints, AChildWhoseParentIsGoneIsLoadedWithAnError)
{
	{
		UBlueprint* const Parent = Make(TEXT("GoneParent"));
		AddInt(Parent, TEXT("Health"), TEXT("5"));
		Compile(Parent);
		UBlueprint* const Child = Make(TEXT("Orphan"), Parent->GeneratedClass);
		AddInt(Child, TEXT("Rage"), TEXT("6"));
		Compile(Child);
		ASSERT_TRUE(Save(Parent) && Save(Child));
	}
	CollectGarbage(RF_NoFlags);
	ASSERT_TRUE(IFileManager::Get().Delete(*(Folder / "Content/GoneParent.uasset")));
	Log.Lines.Empty();
	UBlueprint* const Child = LoadObject<UBlueprint>(nullptr, TEXT("/Game/Orphan.Orphan"));
	ASSERT_TRUE(Child);
	EXPECT_EQ(Child->Status, BS_Error);
	EXPECT_EQ(Child->ParentClass, UObject::StaticClass());
	EXPECT_EQ(Child->GeneratedClass->GetSuperClass(), UObject::StaticClass());
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogBlueprint|Error|/Game/Orphan.Orphan: the parent class is gone")));
	EXPECT_EQ(Value(Child, TEXT("Rage")), TEXT("6"));
	EXPECT_EQ(Value(Child, TEXT("Health")), TEXT("-"));
	Compile(Child);
	EXPECT_EQ(Value(Child, TEXT("Rage")), TEXT("6"));
}
