#include "Animation/AnimBlueprint.h"
#include "Components/PointLightComponent.h"
#include "CoreHost/Project.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "GameFramework/Character.h"
#include "Misc/PackageName.h"
#include "TestSupport.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/SavePackage.h"

#include <gtest/gtest.h>

namespace
{
/** Blueprints in the files of a project; nothing stays in memory between tests. */
class BlueprintFiles : public testing::Test
{
protected:
	BlueprintFiles() { FHostProject::Set(Folder / "Test.uproject"); }
	~BlueprintFiles() override
	{
		FHostProject::Set(TEXT(""));
		CollectGarbage(RF_NoFlags);
	}

	static UBlueprint* MakeBlueprint()
	{
		UBlueprint* const Blueprint =
			NewObject<UBlueprint>(CreatePackage(TEXT("/Game/Lantern")), FName("Lantern"), RF_Public | RF_Standalone | RF_Transactional);
		Blueprint->ParentClass = ACharacter::StaticClass();
		return Blueprint;
	}
	static UBlueprint* SaveAndLoad(UBlueprint* Blueprint)
	{
		UPackage* const Package = Blueprint->GetPackage();
		FSavePackageArgs Args;
		Args.TopLevelFlags = RF_Standalone;
		const FString Filename = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
		EXPECT_TRUE(UPackage::Save(Package, Blueprint, *Filename, Args).IsSuccessful());
		CollectGarbage(RF_NoFlags);
		EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Lantern")), nullptr);
		return LoadObject<UBlueprint>(nullptr, TEXT("/Game/Lantern.Lantern"));
	}

	FTestDirectory Folder;
	FLogLines Log;
};
}

TEST_F(BlueprintFiles, HoldVariablesGraphsAndTimelines)
{
	UBlueprint* Blueprint = MakeBlueprint();
	FBPVariableDescription Variable;
	Variable.VarName = FName("Owner");
	Variable.VarGuid = FGuid::NewGuid();
	Variable.VarType = FEdGraphPinType(FName("object"), NAME_None, APawn::StaticClass(), EPinContainerType::Array, false, {});
	Variable.Category = FText::FromString(TEXT("Default"));
	Variable.PropertyFlags = CPF_Edit | CPF_BlueprintVisible | CPF_ExposeOnSpawn;
	Variable.SetMetaData(FName("Tooltip"), TEXT("Who owns it"));
	Blueprint->NewVariables.Add(Variable);

	UEdGraph* const Page = NewObject<UEdGraph>(Blueprint, FName("EventGraph"), RF_Transactional);
	Blueprint->UbergraphPages.Add(Page);
	UEdGraph* const Below = NewObject<UEdGraph>(Page, FName("Collapsed"), RF_Transactional);
	Page->SubGraphs.Add(Below);
	for (int32 Index = 0; Index < 3; ++Index)
	{
		FGraphNodeCreator<UEdGraphNode> Creator(*Page);
		UEdGraphNode* const Node = Creator.CreateNode();
		Node->NodeComment = FString::FromInt(Index);
		Node->CreatePin(EGPD_Input, FName("exec"), FName("In"));
		Node->CreatePin(EGPD_Output, FName("exec"), FName("Out"));
		Creator.Finalize();
	}
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Page->Nodes[Index]->FindPin(TEXT("Out"))->MakeLinkTo(Page->Nodes[(Index + 1) % 3]->FindPin(TEXT("In")));
	}
	UTimelineTemplate* const Timeline = NewObject<UTimelineTemplate>(Blueprint, FName("Swing"), RF_Transactional);
	Blueprint->Timelines.Add(Timeline);
	FTTFloatTrack Track;
	Track.CurveFloat = NewObject<UCurveFloat>(Blueprint);
	Track.CurveFloat->FloatCurve.AddKey(1.0f, 2.0f);
	Track.SetTrackName(FName("Angle"), Timeline);
	Timeline->FloatTracks.Add(Track);

	Blueprint = SaveAndLoad(Blueprint);
	ASSERT_NE(Blueprint, nullptr);
	EXPECT_EQ(Blueprint->ParentClass, ACharacter::StaticClass());
	ASSERT_EQ(Blueprint->NewVariables.Num(), 1);
	const FBPVariableDescription& Loaded = Blueprint->NewVariables[0];
	EXPECT_EQ(Loaded.VarName, Variable.VarName);
	EXPECT_EQ(Loaded.VarGuid, Variable.VarGuid);
	EXPECT_EQ(Loaded.VarType, Variable.VarType);
	EXPECT_EQ(Loaded.PropertyFlags, Variable.PropertyFlags);
	EXPECT_EQ(Loaded.GetMetaData(FName("tooltip")), TEXT("Who owns it"));

	TArray<UEdGraph*> Graphs;
	Blueprint->GetAllGraphs(Graphs);
	ASSERT_EQ(Graphs.Num(), 2);
	EXPECT_EQ(Graphs[1]->GetName(), TEXT("Collapsed"));
	ASSERT_EQ(Graphs[0]->Nodes.Num(), 3);
	for (int32 Index = 0; Index < 3; ++Index)
	{
		const UEdGraphNode* const Node = Graphs[0]->Nodes[Index];
		const UEdGraphNode* const Next = Graphs[0]->Nodes[(Index + 1) % 3];
		EXPECT_EQ(Node->NodeComment, FString::FromInt(Index));
		EXPECT_EQ(Node->FindPin(TEXT("Out"))->LinkedTo, TArray<UEdGraphPin*>{ Next->FindPin(TEXT("In")) });
		EXPECT_EQ(Next->FindPin(TEXT("In"))->LinkedTo, TArray<UEdGraphPin*>{ Node->FindPin(TEXT("Out")) });
	}
	ASSERT_EQ(Blueprint->Timelines.Num(), 1);
	ASSERT_EQ(Blueprint->Timelines[0]->FloatTracks.Num(), 1);
	EXPECT_EQ(Blueprint->Timelines[0]->FloatTracks[0].GetTrackName(), FName("Angle"));
	EXPECT_EQ(Blueprint->Timelines[0]->FloatTracks[0].CurveFloat->GetFloatValue(5.0f), 2.0f);
	EXPECT_TRUE(Log.Lines.IsEmpty()) << TCHAR_TO_UTF8(*FString::Join(Log.Lines, TEXT("\n")));
}

TEST_F(BlueprintFiles, HoldTheClassWithItsComponents)
{
	UBlueprint* Blueprint = MakeBlueprint();
	UBlueprintGeneratedClass* Class =
		NewObject<UBlueprintGeneratedClass>(Blueprint->GetPackage(), FName("Lantern_C"), RF_Public | RF_Standalone);
	Class->SetSuperStruct(ACharacter::StaticClass());
	Class->ClassFlags |= CLASS_CompiledFromBlueprint;
	Class->ClassGeneratedBy = Blueprint;
	Class->Bind();
	Class->StaticLink();
	Blueprint->GeneratedClass = Class;
	USimpleConstructionScript* Script = NewObject<USimpleConstructionScript>(Class, NAME_None, RF_Transactional);
	Class->SimpleConstructionScript = Blueprint->SimpleConstructionScript = Script;
	USCS_Node* const Lamp = Script->CreateNode(UPointLightComponent::StaticClass(), FName("Lamp"));
	CastChecked<UPointLightComponent>(Lamp->ComponentTemplate)->SetRelativeLocation(FVector(1.0, 2.0, 3.0));
	CastChecked<UPointLightComponent>(Lamp->ComponentTemplate)->Mobility = EComponentMobility::Static;
	Script->AddNode(Lamp);
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(Script->GetAllNodes().Num(), 1) << "the Blueprint keeps its script";

	Blueprint = SaveAndLoad(Blueprint);
	ASSERT_NE(Blueprint, nullptr);
	Script = Blueprint->SimpleConstructionScript;
	ASSERT_NE(Script, nullptr);
	Class = Cast<UBlueprintGeneratedClass>(Blueprint->GeneratedClass);
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class->GetSuperClass(), ACharacter::StaticClass());
	EXPECT_EQ(UBlueprint::GetBlueprintFromClass(Class), Blueprint);
	EXPECT_EQ(Script->GetBlueprint(), Blueprint);
	EXPECT_EQ(Class->SimpleConstructionScript, Script);
	const USCS_Node* const Loaded = Script->FindSCSNode(FName("Lamp"));
	ASSERT_NE(Loaded, nullptr);
	const UPointLightComponent* const Template = Cast<UPointLightComponent>(Loaded->ComponentTemplate);
	ASSERT_NE(Template, nullptr);
	EXPECT_EQ(Template->GetPathName(), TEXT("/Game/Lantern.Lantern_C:Lamp_GEN_VARIABLE"));
	EXPECT_EQ(Template->GetRelativeLocation(), FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Template->Mobility, EComponentMobility::Static);
	EXPECT_EQ(Template->Intensity, 5000.0f);

	const ACharacter* const Default = Cast<ACharacter>(Class->GetDefaultObject());
	ASSERT_NE(Default, nullptr);
	EXPECT_EQ(Default->GetComponents().Num(), 4) << "the native ones alone";
	EXPECT_TRUE(Log.Lines.IsEmpty()) << TCHAR_TO_UTF8(*FString::Join(Log.Lines, TEXT("\n")));
}

TEST_F(BlueprintFiles, TellTheAssetRegistryTheirClasses)
{
	UBlueprint* const Blueprint = MakeBlueprint();
	TArray<UObject::FAssetRegistryTag> Tags;
	Blueprint->GetAssetRegistryTags(FAssetRegistryTagsContext(Blueprint, Tags));
	const auto Find = [&Tags](const TCHAR* Name)
	{
		const auto* const Tag = Tags.FindByPredicate([Name](const UObject::FAssetRegistryTag& Each) { return Each.Name == Name; });
		return Tag ? Tag->Value : FString(TEXT("no tag"));
	};
	EXPECT_EQ(Find(TEXT("GeneratedClass")), TEXT("None"));
	EXPECT_EQ(Find(TEXT("ParentClass")), TEXT("/Script/CoreUObject.Class'/Script/Engine.Character'"));
	EXPECT_EQ(Find(TEXT("NativeParentClass")), TEXT("/Script/CoreUObject.Class'/Script/Engine.Character'"));
}

TEST(BPVariableDescription, HasEachMetaDataKeyOnce)
{
	FBPVariableDescription Variable;
	Variable.SetMetaData(FName("Tooltip"), TEXT("a"));
	Variable.SetMetaData(FName("tooltip"), TEXT("b"));
	EXPECT_EQ(Variable.MetaDataArray.Num(), 1);
	EXPECT_EQ(Variable.GetMetaData(FName("Tooltip")), TEXT("b"));
	Variable.RemoveMetaData(FName("Tooltip"));
	EXPECT_FALSE(Variable.HasMetaData(FName("Tooltip")));
}
