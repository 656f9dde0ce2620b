#include "Engine/SCS_Node.h"

#include "Components/SceneComponent.h"
#include "Engine/SimpleConstructionScript.h"

USimpleConstructionScript* USCS_Node::GetSCS() const
{
	return Cast<USimpleConstructionScript>(GetOuter());
}

FString USCS_Node::GetTemplateName(FName VariableName)
{
	return VariableName.ToString() + TEXT("_GEN_VARIABLE");
}

void USCS_Node::SetVariableName(FName NewName, bool bRenameTemplate)
{
	Modify();
	if (bRenameTemplate && ComponentTemplate)
	{
		ComponentTemplate->Modify();
		ComponentTemplate->Rename(*GetTemplateName(NewName), nullptr, REN_DontCreateRedirectors);
	}
	InternalVariableName = NewName;
}

void USCS_Node::GetAllNodes(TArray<USCS_Node*>& OutNodes)
{
	OutNodes.Add(this);
	for (USCS_Node* const Child : ChildNodes)
	{
		if (Child)
		{
			Child->GetAllNodes(OutNodes);
		}
	}
}

void USCS_Node::AddChildNode(USCS_Node* InNode)
{
	check(InNode && InNode != this && !IsChildOf(InNode));
	if (ChildNodes.Contains(InNode))
	{
		return;
	}
	Modify();
	ChildNodes.Add(InNode);
}

void USCS_Node::RemoveChildNode(USCS_Node* InNode)
{
	Modify();
	ChildNodes.Remove(InNode);
}

bool USCS_Node::IsChildOf(const USCS_Node* TestParent) const
{
	return TestParent->ChildNodes.ContainsByPredicate(
		[this](const USCS_Node* Child) { return Child && (Child == this || IsChildOf(Child)); });
}

void USCS_Node::SetParent(const USCS_Node* InParentNode)
{
	Modify();
	bIsParentComponentNative = false;
	ParentComponentOrVariableName = InParentNode->GetVariableName();
	ParentComponentOwnerClassName = InParentNode->GetSCS()->GetOwnerClass()->GetFName();
}

void USCS_Node::SetParent(const USceneComponent* InParentComponent)
{
	Modify();
	bIsParentComponentNative = true;
	ParentComponentOrVariableName = InParentComponent->GetFName();
	ParentComponentOwnerClassName = InParentComponent->GetOuter()->GetClass()->GetFName();
}
