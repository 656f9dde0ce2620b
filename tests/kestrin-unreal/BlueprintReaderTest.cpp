#include "GameFramework/Character.h"
#include "GameFramework/Pawn.h"
#include "KestrinSettings.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"
#include "UObject/Interface.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace
{
using Names = std::vector<std::string>;

class BlueprintReader : public FBlueprintTest
{
protected:
	static std::string Read(const TCHAR* Name, const TCHAR* Subset = TEXT("All"))
	{
		return ToUtf8(FKestrinBlueprintUtils::ReadBlueprint(Name, Subset));
	}
	static TSharedPtr<FJsonObject> ReadDocument(const TCHAR* Name) { return ParseDocument(Read(Name)); }

	static Names KeysOf(const TSharedPtr<FJsonObject>& Object)
	{
		Names Keys;
		for (const TPair<FString, TSharedPtr<FJsonValue>>& Field : Object->Values)
		{
			Keys.push_back(ToUtf8(Field.Key));
		}
		return Keys;
	}
	/** One field of each object of an array; nothing when there is no such array. */
	static Names FieldsOf(const TSharedPtr<FJsonObject>& Document, const TCHAR* Array, const TCHAR* Field)
	{
		Names Fields;
		const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
		if (Document->TryGetArrayField(Array, Values))
		{
			for (const TSharedPtr<FJsonValue>& Value : *Values)
			{
				Fields.push_back(ToUtf8(Value->AsObject()->GetStringField(Field)));
			}
		}
		return Fields;
	}
};
}

TEST_F(BlueprintReader, WritesTheWholeDocument)
{
	const FTestBlueprint Lamp(TEXT("/Game/Night/BP_Lamp"));
	Lamp.MakeEmptyEventGraph();
	Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Real), TEXT("2.5"));
	Lamp.AddVariable(TEXT("Names"), PinType(UEdGraphSchema_K2::PC_Name, nullptr, EPinContainerType::Array));
	UEdGraph* const Fill = Lamp.AddFunction(TEXT("Fill"));
	FTestBlueprint::AddParameter(Fill, TEXT("Amount"), PinType(UEdGraphSchema_K2::PC_Int));
	FTestBlueprint::AddParameter(Fill, TEXT("bFull"), PinType(UEdGraphSchema_K2::PC_Boolean), true);
	Lamp.Compile();
	EXPECT_EQ(Read(TEXT("bp_lamp")),
		R"~({"Name":"BP_Lamp","Path":"/Game/Night/BP_Lamp.BP_Lamp","SuperClass":"Object","Variables":{)~"
		R"~("Oil":{"Type":{"Category":"real","SubCategory":"double","Container":"None","Flags":[]},"Value":"2.500000"},)~"
		R"~("Names":{"Type":{"Category":"name","SubCategory":"None","Container":"Array","Flags":[]},"Value":"()"}},)~"
		R"~("Functions":[{"Name":"Fill","ReturnType":"void",)~"
		R"~("InParams":[{"Name":"Amount","Type":{"Category":"int","SubCategory":"None","Container":"None","Flags":[]}}],)~"
		R"~("OutParams":[{"Name":"bFull","Type":{"Category":"bool","SubCategory":"None","Container":"None","Flags":[]}}],)~"
		R"~("EdGraph":{"Name":"Fill","Class":"EdGraph","Nodes":[)~"
		R"~({"Title":"Fill","Class":"K2Node_FunctionEntry","Properties":{},"Pins":[)~"
		R"~({"Name":"then","Value":"","Direction":"Output","Category":"exec","Connections":[]},)~"
		R"~({"Name":"Amount","Value":"","Direction":"Output","Category":"int","Connections":[]}]},)~"
		R"~({"Title":"Return Node","Class":"K2Node_FunctionResult","Properties":{},"Pins":[)~"
		R"~({"Name":"execute","Value":"","Direction":"Input","Category":"exec","Connections":[]},)~"
		R"~({"Name":"bFull","Value":"","Direction":"Input","Category":"bool","Connections":[]}]}]}}],)~"
		R"~("Graphs":[{"Name":"EventGraph","Class":"EdGraph","Nodes":[]}]})~");
}

TEST_F(BlueprintReader, GivesTheSectionAskedFor)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"));
	Lamp.AddFunction(TEXT("Fill"));
	Lamp.Compile();
	const FTestBlueprint Bare(TEXT("/Game/BP_Bare"));
	Bare.Compile();
	const auto With = [](const Names& Sections)
	{
		Names Keys = { "Name", "Path", "SuperClass" };
		Keys.insert(Keys.end(), Sections.begin(), Sections.end());
		return Keys;
	};
	const struct
	{
		const TCHAR* Blueprint;
		const TCHAR* Subset;
		Names Sections;
	} Cases[] = {
		{ TEXT("BP_Lamp"), TEXT("All"), { "Variables", "Functions", "Graphs" } },
		{ TEXT("BP_Lamp"), TEXT("ALL"), { "Variables", "Functions", "Graphs" } },
		{ TEXT("BP_Lamp"), TEXT("all"), { "Variables", "Functions", "Graphs" } },
		{ TEXT("BP_Bare"), TEXT("All"), { "Variables", "Graphs" } },
		{ TEXT("BP_Lamp"), TEXT("Variables"), { "Variables" } },
		{ TEXT("BP_Lamp"), TEXT("variables"), { "variables" } },
		{ TEXT("BP_Lamp"), TEXT("fUNCTIONS"), { "fUNCTIONS" } },
		{ TEXT("BP_Bare"), TEXT("Functions"), {} },
		{ TEXT("BP_Lamp"), TEXT("Components"), {} },
		{ TEXT("BP_Lamp"), TEXT("Interfaces"), {} },
		{ TEXT("BP_Lamp"), TEXT("Graphs"), { "Graphs" } },
		{ TEXT("BP_Lamp"), TEXT("Variables,Graphs"), {} },
		{ TEXT("BP_Lamp"), TEXT(""), {} },
		{ TEXT("BP_Lamp"), TEXT("Name"), {} },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(KeysOf(ParseDocument(Read(Case.Blueprint, Case.Subset))), With(Case.Sections)) << ToUtf8(Case.Subset);
	}
	EXPECT_EQ(KeysOf(ParseDocument(Read(TEXT("BP_Lamp"), TEXT("NAME")))), (Names{ "NAME", "Path", "SuperClass" }));
	Bare->UbergraphPages.Empty();
	EXPECT_TRUE(ReadDocument(TEXT("BP_Bare"))->GetArrayField(TEXT("Graphs")).IsEmpty());
}

TEST_F(BlueprintReader, ShowsWhatTheContentFilterLetsPass)
{
	const FTestBlueprint Base(TEXT("/Game/BP_Base"), APawn::StaticClass());
	Base.AddVariable(TEXT("Inherited"), PinType(UEdGraphSchema_K2::PC_Int));
	Base.AddVariable(TEXT("Hidden"), PinType(UEdGraphSchema_K2::PC_Int));
	*FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(Base.Get(), TEXT("Hidden")) = 0;
	Base.AddFunction(TEXT("Greet"));
	Base.Compile();
	const FTestBlueprint Child(TEXT("/Game/BP_Child"), Base.GetClass());
	Child.AddVariable(TEXT("Own"), PinType(UEdGraphSchema_K2::PC_Int));
	Child.Compile();
	const struct
	{
		const char* Name;
		/** The filters that let it pass. */
		Names Filters;
	} Variables[] = {
		{ "Own", { "All", "Visible", "Blueprint" } },
		{ "Inherited", { "All", "Visible", "Blueprint" } },
		{ "Hidden", { "All" } },
		{ "BaseEyeHeight", { "All", "Visible" } },
		{ "AutoPossessAI", { "All", "Visible" } },
		{ "Controller", { "All" } },
	},
	  Functions[] = {
		  { "Greet", { "All", "Visible", "Blueprint" } },
		  { "AddMovementInput", { "All", "Visible" } },
		  { "IsControlled", { "All", "Visible" } },
		  { "ReceiveBeginPlay", { "All", "Visible" } },
	  };
	const Names Filters = { "All", "Visible", "Blueprint" };
	for (SIZE_T Index = 0; Index < Filters.size(); ++Index)
	{
		SCOPED_TRACE(Filters[Index]);
		GetMutableDefault<UKestrinSettings>()->BlueprintContentFilter = static_cast<EKestrinBlueprintContentFilter>(Index);
		const TSharedPtr<FJsonObject> Document = ReadDocument(TEXT("BP_Child"));
		const auto Expect = [&](const Names& Shown, const auto& Cases)
		{
			for (const auto& Case : Cases)
			{
				const bool bShown = std::count(Shown.begin(), Shown.end(), Case.Name) > 0;
				EXPECT_EQ(bShown, std::count(Case.Filters.begin(), Case.Filters.end(), Filters[Index]) > 0) << Case.Name;
			}
		};
		const Names ShownVariables = KeysOf(Document->GetObjectField(TEXT("Variables")));
		Expect(ShownVariables, Variables);
		Expect(FieldsOf(Document, TEXT("Functions"), TEXT("Name")), Functions);
		EXPECT_EQ(ShownVariables[0], "Own") << "the class's own come before those of its super classes";
		EXPECT_EQ(FieldsOf(Document, TEXT("Graphs"), TEXT("Name")), Names{ "EventGraph" }) << "graphs are not filtered";
	}
	GetMutableDefault<UKestrinSettings>()->BlueprintContentFilter = static_cast<EKestrinBlueprintContentFilter>(7);
	EXPECT_EQ(KeysOf(ReadDocument(TEXT("BP_Child"))), (Names{ "Name", "Path", "SuperClass", "Variables", "Graphs" }));
}

TEST_F(BlueprintReader, TellsFunctionsOfParentsWithTheirResults)
{
	FTestBlueprint(TEXT("/Game/BP_Pawn"), APawn::StaticClass()).Compile();
	const std::string Text = Read(TEXT("BP_Pawn"), TEXT("Functions"));
	const std::string Bool = R"({"Category":"bool","SubCategory":"None","Container":"None","Flags":[]})";
	EXPECT_NE(Text.find(R"({"Name":"IsControlled","ReturnType":{"Name":"ReturnValue","Type":)" + Bool + "}}"), std::string::npos)
		<< "neither parameters nor a graph: " << Text;
	EXPECT_NE(Text.find(R"({"Name":"AddMovementInput","ReturnType":"void","InParams":[{"Name":"WorldDirection",)"), std::string::npos);
}

TEST_F(BlueprintReader, ListsTheNativeComponentsOfActors)
{
	FTestBlueprint(TEXT("/Game/BP_Hero"), ACharacter::StaticClass()).Compile();
	FTestBlueprint(TEXT("/Game/BP_Thing")).Compile();
	const TSharedPtr<FJsonObject> Hero = ReadDocument(TEXT("BP_Hero"));
	EXPECT_THAT(
		FieldsOf(Hero, TEXT("Components"), TEXT("Name")), ElementsAre("CollisionCylinder", "Arrow", "CharMoveComp", "CharacterMesh0"));
	EXPECT_THAT(FieldsOf(Hero, TEXT("Components"), TEXT("ClassName")),
		ElementsAre("CapsuleComponent", "ArrowComponent", "CharacterMovementComponent", "SkeletalMeshComponent"));
	EXPECT_THAT(KeysOf(ReadDocument(TEXT("BP_Thing"))), Not(Contains("Components")));
}

TEST_F(BlueprintReader, ListsInterfacesWithTheirGraphs)
{
	const FTestBlueprint Interface(TEXT("/Game/BPI_Tend"), UInterface::StaticClass(), BPTYPE_Interface);
	FTestBlueprint::AddParameter(Interface.AddFunction(TEXT("Tend")), TEXT("Taken"), PinType(UEdGraphSchema_K2::PC_Real), true);
	Interface.Compile();
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"), AActor::StaticClass());
	ASSERT_TRUE(FBlueprintEditorUtils::ImplementNewInterface(Lamp.Get(), Interface.GetClass()));
	Lamp->ImplementedInterfaces.Add(FBPInterfaceDescription());
	Lamp->ImplementedInterfaces.AddDefaulted_GetRef().Interface = AActor::StaticClass();
	const TSharedPtr<FJsonObject> Document = ReadDocument(TEXT("BP_Lamp"));
	ASSERT_EQ(FieldsOf(Document, TEXT("Interfaces"), TEXT("Name")), Names{ "BPI_Tend_C" }) << "neither none nor another class counts";
	const TSharedPtr<FJsonObject> Tend = Document->GetArrayField(TEXT("Interfaces"))[0]->AsObject();
	EXPECT_EQ(KeysOf(Tend), (Names{ "Name", "Graphs" }));
	EXPECT_EQ(FieldsOf(Tend, TEXT("Graphs"), TEXT("Name")), Names{ "Tend" });
	Lamp->ImplementedInterfaces.SetNum(1);
	Lamp->ImplementedInterfaces[0].Graphs.Empty();
	EXPECT_NE(Read(TEXT("BP_Lamp")).find(R"("Interfaces":[{"Name":"BPI_Tend_C","Graphs":[]}])"), std::string::npos);
}

TEST_F(BlueprintReader, AnswersWhatItCanNotReadWithAnError)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"));
	EXPECT_EQ(Read(TEXT("a \"b\"")), R"({"Error":"Blueprint 'a \"b\"' not found."})");
	EXPECT_EQ(Read(TEXT(""), TEXT("Name")), R"({"Error":"Blueprint '' not found."})");
	Lamp->GeneratedClass = nullptr;
	EXPECT_EQ(Read(TEXT("bp_lamp")), R"({"Error":"Loaded asset is not a Blueprint: bp_lamp"})");
	Lamp->GeneratedClass = AActor::StaticClass();
	EXPECT_EQ(Read(TEXT("BP_Lamp")), R"({"Error":"Loaded asset is not a Blueprint: BP_Lamp"})");
}

TEST_F(BlueprintReader, ReadsTheSameAfterItWasSavedAndLoaded)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"), AActor::StaticClass());
	Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Real), TEXT("2.5"));
	Lamp.AddVariable(TEXT("Next"), PinType(UEdGraphSchema_K2::PC_Object, Lamp.GetClass()));
	UEdGraph* const Graph = Lamp.AddFunction(TEXT("Burn"));
	UK2Node* const Get = AddGet(Graph, TEXT("Oil"));
	FTestBlueprint::AddParameter(Graph, TEXT("Left"), PinType(UEdGraphSchema_K2::PC_Real), true);
	Link(Get, TEXT("Oil"), CastChecked<UK2Node>(Graph->Nodes.Last()), TEXT("Left"));
	Lamp.Save();
	const std::string Before = Read(TEXT("BP_Lamp"));
	EXPECT_NE(Before.find(R"("Connections":[{"Node":"Get Oil","Pin":"Oil"}])"), std::string::npos);
	Forget();
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/BP_Lamp")), nullptr);
	EXPECT_EQ(Read(TEXT("BP_Lamp")), Before);
}
