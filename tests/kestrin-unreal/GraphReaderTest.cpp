#include "EdGraph/EdGraph.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallParentFunction.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_VariableSet.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"

namespace
{
class GraphReader : public FBlueprintTest
{
protected:
	/** The "Properties" of a node, as text. */
	static std::string ReadProperties(const UEdGraph* Graph)
	{
		const std::string Text = FAccess::ReadGraph(Graph);
		const SIZE_T Begin = Text.find("\"Properties\":") + 13;
		return Text.substr(Begin, Text.find(",\"Pins\"") - Begin);
	}

	const FTestBlueprint Blueprint{ TEXT("/Game/BP_Lamp"), AActor::StaticClass() };
	UEdGraph* const Graph = Blueprint.MakeEmptyEventGraph();
};
}

TEST_F(GraphReader, TellsNodesPinsAndLinksInOrder)
{
	Blueprint.AddVariable(TEXT("bLit"), PinType(UEdGraphSchema_K2::PC_Boolean), TEXT("true"));
	Blueprint.Compile();
	UK2Node* const Event = AddCustomEvent(Graph, TEXT("Look"));
	UK2Node* const Get = AddGet(Graph, TEXT("bLit"));
	UK2Node* const Branch = AddNode<UK2Node_IfThenElse>(Graph);
	UK2Node* const First = AddCall(Graph, AActor::StaticClass(), TEXT("K2_DestroyActor"));
	Link(Event, TEXT("then"), Branch, TEXT("execute"));
	Link(Get, TEXT("bLit"), Branch, TEXT("Condition"));
	Link(Branch, TEXT("then"), First, TEXT("execute"));
	Link(Branch, TEXT("else"), First, TEXT("execute"));
	EXPECT_EQ(FAccess::ReadGraph(Graph),
		R"({"Name":"EventGraph","Class":"EdGraph","Nodes":[)"
		R"({"Title":"Look\nCustom Event","Class":"K2Node_CustomEvent","Properties":{},"Pins":[)"
		R"({"Name":"OutputDelegate","Value":"","Direction":"Output","Category":"delegate","Connections":[]},)"
		R"({"Name":"then","Value":"","Direction":"Output","Category":"exec","Connections":[{"Node":"Branch","Pin":"execute"}]}]},)"
		R"({"Title":"Get bLit","Class":"K2Node_VariableGet","Properties":{"VariableName":"bLit"},"Pins":[)"
		R"({"Name":"bLit","Value":"false","Direction":"Output","Category":"bool","Connections":[{"Node":"Branch","Pin":"Condition"}]},)"
		R"({"Name":"self","Value":"","Direction":"Input","Category":"object",)"
		R"("SubCategoryObject":"/Game/BP_Lamp.BP_Lamp_C","Connections":[]}]},)"
		R"({"Title":"Branch","Class":"K2Node_IfThenElse","Properties":{},"Pins":[)"
		R"({"Name":"execute","Value":"","Direction":"Input","Category":"exec","Connections":[{"Node":"Look\nCustom Event","Pin":"then"}]},)"
		R"({"Name":"Condition","Value":"true","Direction":"Input","Category":"bool","Connections":[{"Node":"Get bLit","Pin":"bLit"}]},)"
		R"({"Name":"then","Value":"","Direction":"Output","Category":"exec",)"
		R"("Connections":[{"Node":"Destroy Actor\nTarget is Actor","Pin":"execute"}]},)"
		R"({"Name":"else","Value":"","Direction":"Output","Category":"exec",)"
		R"("Connections":[{"Node":"Destroy Actor\nTarget is Actor","Pin":"execute"}]}]},)"
		R"({"Title":"Destroy Actor\nTarget is Actor","Class":"K2Node_CallFunction","Properties":{"FunctionName":"K2_DestroyActor"},"Pins":[)"
		R"({"Name":"execute","Value":"","Direction":"Input","Category":"exec","Connections":[)"
		R"({"Node":"Branch","Pin":"then"},{"Node":"Branch","Pin":"else"}]},)"
		R"({"Name":"then","Value":"","Direction":"Output","Category":"exec","Connections":[]},)"
		R"({"Name":"self","Value":"","Direction":"Input","Category":"object","SubCategoryObject":"/Script/Engine.Actor","Connections":[]}]}]})");
}

TEST_F(GraphReader, GivesPropertiesToNodesOfThreeClassesAlone)
{
	UFunction* const Function = AActor::StaticClass()->FindFunctionByName(TEXT("K2_DestroyActor"));
	const struct
	{
		TFunction<void(UEdGraph*)> Make;
		const char* Properties;
	} Cases[] = {
		{ [](UEdGraph* Into) { AddGet(Into, TEXT("Nothing")); }, R"({"VariableName":"Nothing"})" },
		{ [](UEdGraph* Into)
			{ AddNode<UK2Node_VariableSet>(Into, [](auto& Node) { Node.VariableReference.SetSelfMember(TEXT("Nothing")); }); },
			R"({"VariableName":"Nothing"})" },
		{ [](UEdGraph* Into) { AddCall(Into, UKismetSystemLibrary::StaticClass(), TEXT("PrintString")); },
			R"({"FunctionName":"PrintString"})" },
		{ [=](UEdGraph* Into) { AddNode<UK2Node_CallParentFunction>(Into, [=](auto& Node) { Node.SetFromFunction(Function); }); }, "{}" },
		{ [](UEdGraph* Into) { AddCustomEvent(Into, TEXT("Look")); }, "{}" },
	};
	for (const auto& Case : Cases)
	{
		Blueprint.MakeEmptyEventGraph();
		Case.Make(Graph);
		EXPECT_EQ(ReadProperties(Graph), Case.Properties) << FAccess::ReadGraph(Graph);
	}
}

TEST_F(GraphReader, KeepsTheKeysOfWhatIsEmpty)
{
	EXPECT_EQ(FAccess::ReadGraph(Graph), R"({"Name":"EventGraph","Class":"EdGraph","Nodes":[]})");
	Graph->AddNode(NewObject<UEdGraphNode>(Graph));
	const std::string Text = FAccess::ReadGraph(Graph);
	EXPECT_NE(Text.find(R"("Class":"EdGraphNode","Properties":{},"Pins":[]})"), std::string::npos) << Text;
}
