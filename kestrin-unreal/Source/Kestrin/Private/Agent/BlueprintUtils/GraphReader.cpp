#include "Agent/BlueprintUtils.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "K2Node_CallFunction.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"

namespace
{
FString GetFullTitle(const UEdGraphNode& Node)
{
	return Node.GetNodeTitle(ENodeTitleType::FullTitle).ToString();
}

/** Of nodes of just these classes, not of classes derived from them. */
TSharedPtr<FJsonObject> ReadNodeProperties(const UEdGraphNode& Node)
{
	const TSharedPtr<FJsonObject> Properties = MakeShared<FJsonObject>();
	const UClass* const Class = Node.GetClass();
	if (Class == UK2Node_VariableGet::StaticClass() || Class == UK2Node_VariableSet::StaticClass())
	{
		Properties->SetStringField(TEXT("VariableName"), static_cast<const UK2Node_Variable&>(Node).GetVarNameString());
	}
	else if (Class == UK2Node_CallFunction::StaticClass())
	{
		Properties->SetStringField(TEXT("FunctionName"), static_cast<const UK2Node_CallFunction&>(Node).GetFunctionName().ToString());
	}
	return Properties;
}

TArray<TSharedPtr<FJsonValue>> ReadLinks(const UEdGraphPin& Pin)
{
	TArray<TSharedPtr<FJsonValue>> Links;
	for (const UEdGraphPin* const Linked : Pin.LinkedTo)
	{
		if (const UEdGraphNode* const Node = Linked ? Linked->GetOwningNodeUnchecked() : nullptr)
		{
			const TSharedRef<FJsonObject> Link = MakeShared<FJsonObject>();
			Link->SetStringField(TEXT("Node"), GetFullTitle(*Node));
			Link->SetStringField(TEXT("Pin"), Linked->PinName.ToString());
			Links.Add(MakeShared<FJsonValueObject>(Link));
		}
	}
	return Links;
}

TSharedRef<FJsonObject> ReadPin(const UEdGraphPin& Pin)
{
	const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
	Json->SetStringField(TEXT("Name"), Pin.PinName.ToString());
	Json->SetStringField(TEXT("Value"), Pin.DefaultValue);
	Json->SetStringField(TEXT("Direction"), Pin.Direction == EGPD_Input ? TEXT("Input") : TEXT("Output"));
	Json->SetStringField(TEXT("Category"), Pin.PinType.PinCategory.ToString());
	if (const UObject* const Object = Pin.PinType.PinSubCategoryObject.Get())
	{
		Json->SetStringField(TEXT("SubCategoryObject"), Object->GetPathName());
	}
	Json->SetArrayField(TEXT("Connections"), ReadLinks(Pin));
	return Json;
}

TSharedRef<FJsonObject> ReadNode(const UEdGraphNode& Node)
{
	const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
	Json->SetStringField(TEXT("Title"), GetFullTitle(Node));
	Json->SetStringField(TEXT("Class"), Node.GetClass()->GetName());
	Json->SetObjectField(TEXT("Properties"), ReadNodeProperties(Node));
	TArray<TSharedPtr<FJsonValue>> Pins;
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		Pins.Add(MakeShared<FJsonValueObject>(ReadPin(*Pin)));
	}
	Json->SetArrayField(TEXT("Pins"), Pins);
	return Json;
}
}

TSharedPtr<FJsonObject> FKestrinBlueprintUtils::ReadEdGraph(const UEdGraph* Graph)
{
	const TSharedPtr<FJsonObject> Json = MakeShared<FJsonObject>();
	Json->SetStringField(TEXT("Name"), Graph->GetName());
	Json->SetStringField(TEXT("Class"), Graph->GetClass()->GetName());
	TArray<TSharedPtr<FJsonValue>> Nodes;
	for (const UEdGraphNode* const Node : Graph->Nodes)
	{
		if (Node)
		{
			Nodes.Add(MakeShared<FJsonValueObject>(ReadNode(*Node)));
		}
	}
	Json->SetArrayField(TEXT("Nodes"), Nodes);
	return Json;
}
