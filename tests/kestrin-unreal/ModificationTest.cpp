#include "Editor.h"
#include "Editor/Transactor.h"
#include "GameFramework/Actor.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UnrealType.h"

namespace
{
const std::string Nothing = R"("Message":"No modifications were made to the Blueprint."})";
const std::string Saved = R"("Success":"Blueprint modified, compiled, and saved successfully."})";

/** What the tool makes of whole documents, on an actor's Blueprint with a variable "Oil". */
class Modification : public FBlueprintTest
{
protected:
	Modification()
	{
		Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Int), TEXT("4"));
		Lamp.Save();
	}

	static std::string Modify(std::string_view Document, const TCHAR* Blueprint = TEXT("BP_Lamp"))
	{
		return ToUtf8(FKestrinBlueprintUtils::ModifyBlueprint(Blueprint, FUtf8::Decode(Document)));
	}
	static std::string Read() { return ToUtf8(FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Lamp"), TEXT("All"))); }
	std::string ReadFile() const { return Project.Read("Content/BP_Lamp.uasset"); }
	UEdGraph* Function(const TCHAR* Name) const
	{
		const TObjectPtr<UEdGraph>* const Found =
			Lamp->FunctionGraphs.FindByPredicate([Name](const UEdGraph* Graph) { return Graph->GetName() == Name; });
		return Found ? Found->Get() : nullptr;
	}

	const FTestBlueprint Lamp{ TEXT("/Game/BP_Lamp"), AActor::StaticClass() };
};
}

TEST_F(Modification, AnswersInOneOfThreeWays)
{
	const struct
	{
		std::string Document;
		std::string Answer;
	} Cases[] = {
		{ "", R"({"Error":"Failed to parse modification JSON."})" },
		{ R"({"Variables":)", R"({"Error":"Failed to parse modification JSON."})" },
		{ "[]", R"({"Error":"Failed to parse modification JSON."})" },
		{ R"({})", "{" + Nothing },
		{ R"({"Graphs":[{"Name":"G","Type":"EventGraph"}],"Components":[{}]})", "{" + Nothing },
		{ R"({"Variables":[{"Name":"X"}],"Functions":{"Name":"F"}})", "{" + Nothing },
		{ R"({"Variables":{},"Functions":[]})", "{" + Nothing },
		{ R"({"Variables":{"X":{},"Y":7,"Z":null}})",
			R"({"VariableModifications":["Invalid variable type for variable: X","Invalid JSON format for variable: Y",)"
			R"("Invalid JSON format for variable: Z"],)" +
				Nothing },
		// The engine's own refusals: no name, a name that another member has.
		{ R"({"Variables":{"":{"Type":{"Category":"int"}},"DefaultSceneRoot":{"Type":{"Category":"int"}}}})",
			R"({"VariableModifications":["Failed to create variable: ","Failed to create variable: DefaultSceneRoot"],)" + Nothing },
		{ R"({"Functions":[7,{},{"Name":[]},{"Name":"UserConstructionScript"},{"Name":""}]})",
			R"({"FunctionModifications":["Function entry missing 'Name' field.","Function entry missing 'Name' field.",)"
			R"("Function entry missing 'Name' field.","Modified existing function: UserConstructionScript",)"
			R"("Failed to create function graph for: "],)" +
				Nothing },
		// One section's failure does not stop the other, nor the save.
		{ R"({"Functions":[{"Name":"Burn"},{"Name":"burn"}],"Variables":{"X":{"Type":"int"}}})",
			R"({"VariableModifications":["Invalid variable type for variable: X"],)"
			R"("FunctionModifications":["Created new function: Burn","Modified existing function: burn"],)" +
				Saved },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Modify(Case.Document), Case.Answer) << Case.Document;
	}
	EXPECT_EQ(Modify("{}", TEXT("BP_Lam")), R"({"Error":"Blueprint 'BP_Lam' not found."})");
	EXPECT_EQ(Modify("{", TEXT("BP_Lam")), R"({"Error":"Failed to parse modification JSON."})");
}

TEST_F(Modification, OfVariablesSetsWhatIsGiven)
{
	const struct
	{
		const char* Entry;
		uint64 Before;
		uint64 After;
		bool bChanged;
	} Cases[] = {
		{ R"({"Type":{"Category":"string"}})", 5, 5, false },
		{ R"({"Replication":"Replicated"})", 5, 0x25, true },
		{ R"({"Replication":"REPNOTIFY"})", 5, 0x100000025, true },
		{ R"({"Replication":"None"})", 0x100000025, 5, false },
		{ R"({"Replication":["Replicated"]})", 0x25, 0x25, false },
		{ R"({"ExposeOnSpawn":true,"Private":true,"SaveGame":true})", 5, 0x1000001010005, true },
		{ R"({"ExposeOnSpawn":false,"Private":"no","SaveGame":0})", 0x1000001010005, 5, true },
		{ R"({"ExposeOnSpawn":[],"Private":{},"SaveGame":null})", 0x1000001010005, 0x1000001010005, false },
		{ R"({"Category":"Fire"})", 5, 5, true },
		{ R"({"Tooltip":"How long"})", 5, 5, true },
		{ R"({"Value":7})", 5, 5, true },
	};
	for (const auto& Case : Cases)
	{
		FBPVariableDescription& Oil = Lamp->NewVariables[0];
		Oil.PropertyFlags = Case.Before;
		EXPECT_EQ(Modify(std::string(R"({"Variables":{"oil":)") + Case.Entry + "}}"), "{" + (Case.bChanged ? Saved : Nothing))
			<< Case.Entry;
		EXPECT_EQ(Lamp->NewVariables[0].PropertyFlags, Case.After) << Case.Entry;
	}
	EXPECT_EQ(Lamp->NewVariables.Num(), 1);
	const FBPVariableDescription& Oil = Lamp->NewVariables[0];
	EXPECT_EQ(Oil.VarType.PinCategory, UEdGraphSchema_K2::PC_Int);
	EXPECT_EQ(ToUtf8(Oil.Category.ToString()), "Fire");
	EXPECT_EQ(ToUtf8(Oil.GetMetaData(TEXT("Tooltip"))), "How long");
	EXPECT_EQ(ToUtf8(Oil.DefaultValue), "7");
	EXPECT_EQ(Oil.RepNotifyFunc, FName(TEXT("OnRep_oil"))) << "in the document's letters";
}

TEST_F(Modification, OfVariablesMakesEachTypeThatTheReaderGives)
{
	// What the reader gives of one Blueprint makes the same variables in another.
	const FTestBlueprint Model(TEXT("/Game/BP_Model"), AActor::StaticClass());
	const FEdGraphPinType Types[] = { PinType(UEdGraphSchema_K2::PC_Boolean), PinType(UEdGraphSchema_K2::PC_Int64),
		PinType(UEdGraphSchema_K2::PC_Real), PinType(UEdGraphSchema_K2::PC_Text), PinType(UEdGraphSchema_K2::PC_Name),
		PinType(UEdGraphSchema_K2::PC_Struct, TBaseStructure<FVector>::Get()),
		PinType(UEdGraphSchema_K2::PC_Object, AActor::StaticClass(), EPinContainerType::Array),
		PinType(UEdGraphSchema_K2::PC_SoftClass, AActor::StaticClass()),
		PinType(UEdGraphSchema_K2::PC_String, nullptr, EPinContainerType::Set) };
	for (const FEdGraphPinType& Type : Types)
	{
		Model.AddVariable(*FString::Printf(TEXT("V%d"), Model->NewVariables.Num()), Type);
	}
	Model.Save();
	const std::string Document = ToUtf8(FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Model"), TEXT("Variables")));
	const std::string Answer = Modify(Document);
	EXPECT_NE(Answer.find(Saved), std::string::npos) << Answer;
	ASSERT_EQ(Lamp->NewVariables.Num(), 1 + Model->NewVariables.Num());
	for (int32 Index = 0; Index < Model->NewVariables.Num(); ++Index)
	{
		EXPECT_TRUE(Lamp->NewVariables[Index + 1].VarType == Model->NewVariables[Index].VarType) << Index;
	}
	EXPECT_EQ(Lamp->Status, BS_UpToDate);
}

TEST_F(Modification, ANotifyFunctionIsMadeOnce)
{
	const std::string Document = R"({"Variables":{"Flame":{"Type":{"Category":"bool"},"Replication":"RepNotify"}}})";
	EXPECT_EQ(Modify(Document), R"({"VariableModifications":["Created new variable: Flame"],)" + Saved);
	EXPECT_EQ(Modify(Document), "{" + Saved) << "still a change";
	const UEdGraph* const Notify = Function(TEXT("OnRep_Flame"));
	ASSERT_TRUE(Notify);
	EXPECT_EQ(Lamp->FunctionGraphs.Num(), 2) << "beside the construction script";
	TArray<UK2Node_FunctionTerminator*> Ends;
	Notify->GetNodesOfClass(Ends);
	ASSERT_EQ(Ends.Num(), 2);
	EXPECT_EQ(CastChecked<UK2Node_FunctionEntry>(Ends[0])->GetExtraFlags() & 0x1200040, 0x1200040);
	EXPECT_TRUE(Ends[1]->IsA<UK2Node_FunctionResult>());
	EXPECT_EQ(Lamp->Status, BS_UpToDate);
	const FProperty* const Property = Lamp.GetClass()->FindPropertyByName(TEXT("Flame"));
	EXPECT_EQ(Property->RepNotifyFunc, FName(TEXT("OnRep_Flame")));
	EXPECT_TRUE(Property->HasAllPropertyFlags(CPF_Net | CPF_RepNotify));
}

TEST_F(Modification, OfFunctionsMakesParametersAndLinkedNodes)
{
	EXPECT_EQ(Modify(R"({"Functions":[{"Name":"Burn","InParams":[{"Name":"Hours","Type":"IntProperty"},{"Type":"IntProperty"},7,
		{"Name":"Read","Type":{"Category":"int"}}],"OutParams":[{"Name":"Left","Type":"FloatProperty"},{"Name":"Left","Type":"BoolProperty"}],
		"EdGraph":{"Name":"ignored","Nodes":[7,
		{"Class":"uk2node_variableget","Location":{"X":100,"Y":-20},"Properties":{"VariableName":"Oil","Comment":"What is left"}},
		{"Class":"UK2Node_CallFunction","Location":{"X":9},"Properties":{"FunctionName":"PrintString","Pins":[
			{"PinName":"InString","Value":"It burns"},
			{"PinName":"execute","Connections":[{"Node":"Burn","Pin":"then"},{"Node":"Nobody","Pin":"then"},{"Node":"Burn"}]}]}}]}}]})"),
		R"({"FunctionModifications":["Invalid variable type for variable: Read","Created new function: Burn"],)" + Saved);
	const UEdGraph* const Burn = Function(TEXT("Burn"));
	ASSERT_TRUE(Burn);
	ASSERT_EQ(Burn->Nodes.Num(), 4);
	const UEdGraphNode* const Entry = Burn->Nodes[0];
	EXPECT_TRUE(Entry->FindPin(TEXT("Hours"), EGPD_Output));
	const UEdGraphNode* const Result = Burn->Nodes[1];
	EXPECT_EQ(Result->NodePosX, 600);
	EXPECT_EQ(Result->NodePosY, 0);
	EXPECT_TRUE(Result->FindPin(TEXT("Left"), EGPD_Input) && Result->FindPin(TEXT("Left1"), EGPD_Input));
	const UEdGraphNode* const Get = Burn->Nodes[2];
	EXPECT_EQ(Get->NodePosX, 100);
	EXPECT_EQ(Get->NodePosY, -20);
	EXPECT_EQ(ToUtf8(Get->NodeComment), "What is left");
	const UEdGraphNode* const Print = Burn->Nodes[3];
	EXPECT_EQ(Print->NodePosX, 0) << "without both coordinates";
	EXPECT_EQ(ToUtf8(Print->FindPin(TEXT("InString"))->DefaultValue), "It burns");
	ASSERT_EQ(Print->FindPin(TEXT("execute"))->LinkedTo.Num(), 1);
	EXPECT_EQ(Print->FindPin(TEXT("execute"))->LinkedTo[0]->GetOwningNode(), Entry);
	EXPECT_EQ(Lamp->Status, BS_UpToDate);
	EXPECT_TRUE(Lamp.GetClass()->FindFunctionByName(TEXT("Burn"))->FindPropertyByName(TEXT("Hours")));

	// An existing function gets nodes and nothing else, and a node alone is no change.
	EXPECT_EQ(Modify(R"({"Functions":[{"Name":"Burn","InParams":[{"Name":"More","Type":"IntProperty"}],
		"EdGraph":{"Nodes":[{"Class":"UK2Node_VariableSet","Properties":{"VariableName":"Oil"}}]}}]})"),
		R"({"FunctionModifications":["Modified existing function: Burn"],)" + Nothing);
	EXPECT_EQ(Burn->Nodes.Num(), 5);
	EXPECT_FALSE(Entry->FindPin(TEXT("More")));
}

TEST_F(Modification, IsOneTransactionThatUndoTakesBackToTheByte)
{
	const std::string Document = Read();
	const std::string File = ReadFile();
	Modify(R"({"Variables":{"Flame":{"Type":{"Category":"bool"},"Replication":"RepNotify"},"Oil":{"Value":"9","Category":"Fire"}},
		"Functions":[{"Name":"Burn","InParams":[{"Name":"Hours","Type":"IntProperty"}],"OutParams":[],"EdGraph":{"Nodes":[
		{"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"PrintString","Pins":[
			{"PinName":"execute","Connections":[{"Node":"Burn","Pin":"then"}]}]}}]}},
		{"Name":"UserConstructionScript","EdGraph":{"Nodes":[{"Class":"UK2Node_CallFunction","Properties":{"FunctionName":"PrintString",
			"Pins":[{"PinName":"execute","Connections":[{"Node":"Construction Script","Pin":"then"}]}]}}]}}]})");
	const std::string Changed = Read();
	ASSERT_NE(Changed, Document);
	ASSERT_EQ(GEditor->Trans->GetQueueLength(), 1);
	EXPECT_EQ(ToUtf8(GEditor->Trans->GetTransaction(0)->GetTitle().ToString()), "Kestrin Transaction ");
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Read(), Document);
	FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
	EXPECT_TRUE(ReadFile() == File);
	ASSERT_TRUE(GEditor->RedoTransaction());
	EXPECT_EQ(Read(), Changed);
	FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
	Forget();
	EXPECT_EQ(Read(), Changed) << "from the file";
}

TEST_F(Modification, ASaveThatFailsIsSaidAndCanBeUndone)
{
	const std::string Document = Read();
	const std::string File = ReadFile();
	std::filesystem::permissions(Project.Folder() / "Content/BP_Lamp.uasset", std::filesystem::perms::owner_read);
	EXPECT_EQ(Modify(R"({"Variables":{"New":{"Type":{"Category":"int"}}}})"),
		R"({"VariableModifications":["Created new variable: New"],"Error":"Failed to save modified Blueprint."})");
	EXPECT_TRUE(ReadFile() == File);
	EXPECT_TRUE(Lamp.GetClass()->FindPropertyByName(TEXT("New"))) << "compiled all the same";
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Read(), Document);
}
