#include "BlueprintSupport.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "Components/SceneComponent.h"
#include "HAL/FileManager.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Variable.h"

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
	EXPECT_EQ(Compile(Child), BS_UpToDate);
	EXPECT_EQ(Describe(Child), Before) << "and the compile changes nothing";
	EXPECT_EQ(Value(Child, TEXT("Health")), TEXT("50"));
}

TEST_F(Blueprints, OneThatWasSavedBeforeItsCompileWantsOne)
{
	UBlueprint* const Blueprint = Make(TEXT("Stale"));
	AddInt(Blueprint, TEXT("Late"), TEXT("5"));
	ASSERT_TRUE(Save(Blueprint));
	CollectGarbage(RF_NoFlags);
	UBlueprint* const Loaded = LoadObject<UBlueprint>(nullptr, TEXT("/Game/Stale.Stale"));
	ASSERT_TRUE(Loaded);
	EXPECT_EQ(Loaded->Status, BS_Dirty);
	EXPECT_EQ(Compile(Loaded), BS_UpToDate);
	EXPECT_EQ(Value(Loaded, TEXT("Late")), TEXT("5"));
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
