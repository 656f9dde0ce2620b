#include "BehaviorTree/BTCompositeNode.h"
#include "BehaviorTree/BTTaskNode.h"
#include "BehaviorTree/BehaviorTreeTypes.h"
#include "Modules/ModuleManager.h"

FString UBehaviorTreeTypes::GetShortTypeName(const UObject* Ob)
{
	const FString Name = Ob->GetClass()->GetName();
	if (Ob->GetClass()->HasAnyClassFlags(CLASS_CompiledFromBlueprint))
	{
		return Name.LeftChop(2); // without "_C"
	}
	int32 Index = INDEX_NONE;
	return Name.FindChar(TEXT('_'), Index) ? Name.Mid(Index + 1) : Name;
}

FString UBehaviorTreeTypes::DescribeFlowAbortMode(EBTFlowAbortMode::Type FlowAbortMode)
{
	static const TCHAR* const Descriptions[] = { TEXT("None"), TEXT("Lower Priority"), TEXT("Self"), TEXT("Both") };
	return Descriptions[FlowAbortMode];
}

FString UBTNode::GetNodeName() const
{
	return NodeName.IsEmpty() ? UBehaviorTreeTypes::GetShortTypeName(this) : NodeName;
}

void UBTNode::InitializeNode(UBTCompositeNode* InParentNode, uint16 InExecutionIndex, uint16, uint8 InTreeDepth)
{
	ParentNode = InParentNode;
	ExecutionIndex = InExecutionIndex;
	TreeDepth = InTreeDepth;
}

UBTNode* UBTCompositeNode::GetChildNode(int32 Index) const
{
	if (!Children.IsValidIndex(Index))
	{
		return nullptr;
	}
	const FBTCompositeChild& Child = Children[Index];
	return Child.ChildComposite ? static_cast<UBTNode*>(Child.ChildComposite.Get()) : Child.ChildTask.Get();
}

IMPLEMENT_MODULE(FDefaultModuleImpl, AIModule)
