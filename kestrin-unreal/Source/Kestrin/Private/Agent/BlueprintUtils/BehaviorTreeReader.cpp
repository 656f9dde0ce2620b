#include "Agent/BlueprintUtils.h"
#include "BehaviorTree/BTCompositeNode.h"
#include "BehaviorTree/BTDecorator.h"
#include "BehaviorTree/BTService.h"
#include "BehaviorTree/BTTaskNode.h"
#include "BehaviorTree/BehaviorTree.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Enum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_NativeEnum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Object.h"
#include "BehaviorTree/BlackboardData.h"
#include "BehaviorTree/Decorators/BTDecorator_BlueprintBase.h"
#include "BehaviorTree/Services/BTService_BlueprintBase.h"
#include "BehaviorTree/Tasks/BTTask_BlueprintBase.h"
#include "JsonUtils.h"

/** Reads one tree. */
struct FKestrinBlueprintUtils::FBehaviorTreeReader
{
	using FValues = TArray<TSharedPtr<FJsonValue>>;

	/** Trees that people make have some ten levels; each takes room on the stack here and wherever the document is written or read. */
	static constexpr int32 MaxDepth = 1000;
	int32 Depth = 0;
	/** A damaged or hand-made asset may lead in circles. */
	TSet<const UBTCompositeNode*> Composites;
	bool bReadable = true;

	static TSharedPtr<FJsonObject> ReadBlackboard(const UBlackboardData& Blackboard)
	{
		const TSharedPtr<FJsonObject> Json = MakeShared<FJsonObject>();
		Json->SetStringField(TEXT("Name"), Blackboard.GetName());
		Json->SetStringField(TEXT("Path"), Blackboard.GetPathName());
		FValues Keys;
		for (const FBlackboardEntry& Entry : Blackboard.Keys)
		{
			Keys.Add(MakeShared<FJsonValueObject>(ReadKey(Entry)));
		}
		Json->SetArrayField(TEXT("Keys"), Keys);
		return Json;
	}

	TSharedPtr<FJsonObject> ReadComposite(UBTCompositeNode& Composite)
	{
		const TGuardValue<int32> Deeper(Depth, Depth + 1);
		bReadable = bReadable && Depth <= MaxDepth && !Composites.Contains(&Composite);
		Composites.Add(&Composite);
		if (!bReadable)
		{
			return MakeShared<FJsonObject>();
		}
		const TSharedPtr<FJsonObject> Json = ReadNode(Composite);
		Json->SetStringField(TEXT("NodeType"), TEXT("Composite"));
		SetArrayUnlessEmpty(*Json, TEXT("AuxiliaryNodes"), ReadAuxiliaryNodes(Composite));
		FValues Children;
		for (const FBTCompositeChild& Child : Composite.Children)
		{
			if (Child.ChildComposite)
			{
				Children.Add(MakeShared<FJsonValueObject>(ReadComposite(*Child.ChildComposite)));
			}
			else
			{
				AddNode(Children, Child.ChildTask);
			}
		}
		SetArrayUnlessEmpty(*Json, TEXT("Children"), Children);
		return Json;
	}

private:
	static void AddNode(FValues& Values, UBTNode* Node)
	{
		if (Node)
		{
			Values.Add(MakeShared<FJsonValueObject>(ReadNode(*Node)));
		}
	}

	static TSharedRef<FJsonObject> ReadKey(const FBlackboardEntry& Entry)
	{
		const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
		Json->SetStringField(TEXT("Name"), Entry.EntryName.ToString());
		Json->SetBoolField(TEXT("IsInstanceSynced"), Entry.bInstanceSynced);
		if (!Entry.KeyType)
		{
			return Json;
		}
		Json->SetStringField(TEXT("Type"), Entry.KeyType->GetClass()->GetName());
		if (const auto* const ObjectKey = Cast<UBlackboardKeyType_Object>(Entry.KeyType); ObjectKey && ObjectKey->BaseClass)
		{
			Json->SetStringField(TEXT("BaseClass"), ObjectKey->BaseClass->GetName());
		}
		else if (const auto* const EnumKey = Cast<UBlackboardKeyType_Enum>(Entry.KeyType))
		{
			Json->SetStringField(TEXT("EnumType"), GetNameSafe(EnumKey->EnumType));
		}
		else if (const auto* const NativeEnumKey = Cast<UBlackboardKeyType_NativeEnum>(Entry.KeyType))
		{
			Json->SetStringField(TEXT("EnumType"), GetNameSafe(NativeEnumKey->EnumType));
		}
		return Json;
	}

	static TSharedRef<FJsonObject> ReadNode(UBTNode& Node)
	{
		const TSharedRef<FJsonObject> Json = MakeShared<FJsonObject>();
		Json->SetStringField(TEXT("Type"), Node.GetClass()->GetName());
		Json->SetStringField(TEXT("NodeName"), Node.GetNodeName());
		SetKind(*Json, Node);
		Json->SetObjectField(TEXT("Properties"), ReadProperties(Node.GetClass(), &Node));
		return Json;
	}

	/** Nodes of native classes have no kind. */
	static void SetKind(FJsonObject& Json, const UBTNode& Node)
	{
		if (Node.IsA<UBTTask_BlueprintBase>())
		{
			Json.SetStringField(TEXT("NodeType"), TEXT("Task"));
			if (const UBTCompositeNode* const Parent = Node.GetParentNode())
			{
				Json.SetStringField(TEXT("ParentNode"), Parent->GetNodeName());
			}
		}
		else if (const auto* const Decorator = Cast<UBTDecorator_BlueprintBase>(&Node))
		{
			Json.SetStringField(TEXT("NodeType"), TEXT("Decorator"));
			Json.SetBoolField(TEXT("IsInversed"), Decorator->IsInversed());
			Json.SetStringField(TEXT("FlowAbortMode"), UBehaviorTreeTypes::DescribeFlowAbortMode(Decorator->GetFlowAbortMode()));
		}
		else if (Node.IsA<UBTService_BlueprintBase>())
		{
			Json.SetStringField(TEXT("NodeType"), TEXT("Service"));
			Json.SetStringField(TEXT("ServiceName"), Node.GetNodeName());
		}
	}

	/** The decorators of the links to all children, then the composite's own services. */
	static FValues ReadAuxiliaryNodes(const UBTCompositeNode& Composite)
	{
		FValues Values;
		for (const FBTCompositeChild& Child : Composite.Children)
		{
			for (UBTDecorator* const Decorator : Child.Decorators)
			{
				AddNode(Values, Decorator);
			}
		}
		for (UBTService* const Service : Composite.Services)
		{
			AddNode(Values, Service);
		}
		return Values;
	}
};

FString FKestrinBlueprintUtils::ReadBehaviorTree(const FString& BehaviorTreeName)
{
	const UBehaviorTree* const Tree = GetBehaviorTreeFromBehaviorTreeName(BehaviorTreeName);
	if (!Tree)
	{
		return SerializeMessage(TEXT("Error"), FString::Printf(TEXT("BehaviorTree '%s' not found."), *BehaviorTreeName));
	}
	const TSharedPtr<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetStringField(TEXT("Name"), Tree->GetName());
	Document->SetStringField(TEXT("Path"), Tree->GetPathName());
	if (Tree->BlackboardAsset)
	{
		Document->SetObjectField(TEXT("Blackboard"), FBehaviorTreeReader::ReadBlackboard(*Tree->BlackboardAsset));
	}
	FBehaviorTreeReader Reader;
	if (Tree->RootNode)
	{
		Document->SetObjectField(TEXT("RootNode"), Reader.ReadComposite(*Tree->RootNode));
	}
	if (!Reader.bReadable)
	{
		return SerializeMessage(TEXT("Error"),
			FString::Printf(TEXT("BehaviorTree '%s' can't be read: it has more than %d levels, or a node twice."), *BehaviorTreeName,
				FBehaviorTreeReader::MaxDepth));
	}
	return SerializeJson(Document);
}
