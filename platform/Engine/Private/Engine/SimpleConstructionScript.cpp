#include "Engine/SimpleConstructionScript.h"

#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GameFramework/Actor.h"

namespace
{
/** Without what has a meaning in a path, or in an object reference as text. */
bool CanBeObjectName(FName Name)
{
	const FString Text = Name.ToString();
	return std::u16string_view(*Text).find_first_of(u"\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`\\") == std::u16string_view::npos;
}
}

TArray<USCS_Node*> USimpleConstructionScript::GetAllNodes() const
{
	TArray<USCS_Node*> AllNodes;
	for (USCS_Node* const Root : RootNodes)
	{
		Root->GetAllNodes(AllNodes);
	}
	return AllNodes;
}

USCS_Node* USimpleConstructionScript::FindSCSNode(FName InName) const
{
	const TArray<USCS_Node*> AllNodes = GetAllNodes();
	USCS_Node* const* const Found = AllNodes.FindByPredicate([InName](const USCS_Node* Node) { return Node->GetVariableName() == InName; });
	return Found ? *Found : nullptr;
}

USCS_Node* USimpleConstructionScript::FindParentNode(const USCS_Node* InNode) const
{
	const TArray<USCS_Node*> AllNodes = GetAllNodes();
	USCS_Node* const* const Found = AllNodes.FindByPredicate([InNode](const USCS_Node* Node) { return Node->ChildNodes.Contains(InNode); });
	return Found ? *Found : nullptr;
}

UClass* USimpleConstructionScript::GetOwnerClass() const
{
	return Cast<UClass>(GetOuter());
}

UBlueprint* USimpleConstructionScript::GetBlueprint() const
{
	return UBlueprint::GetBlueprintFromClass(GetOwnerClass());
}

bool USimpleConstructionScript::IsNameTaken(FName Name) const
{
	const UClass* const Class = GetOwnerClass();
	const UBlueprint* const Blueprint = GetBlueprint();
	const auto IsGraph = [Name](const UEdGraph* Graph) { return Graph && Graph->GetFName() == Name; };
	return FindSCSNode(Name) || (Class && (Class->FindPropertyByName(Name) || Class->FindFunctionByName(Name))) ||
		(Blueprint &&
			(Blueprint->FunctionGraphs.ContainsByPredicate(IsGraph) ||
				Blueprint->NewVariables.ContainsByPredicate(
					[Name](const FBPVariableDescription& Variable) { return Variable.VarName == Name; })));
}

FName USimpleConstructionScript::GenerateNewComponentName(const UClass* ComponentClass, FName DesiredName) const
{
	FString Base = DesiredName.ToString();
	if (DesiredName.IsNone())
	{
		Base = ComponentClass->GetName();
		for (const TCHAR* const Suffix : { TEXT("_C"), TEXT("Component") })
		{
			Base = Base.EndsWith(Suffix, ESearchCase::CaseSensitive) ? Base.LeftChop(FString(Suffix).Len()) : Base;
		}
	}
	FString Name = Base;
	for (int32 Number = 1; IsNameTaken(FName(Name)); ++Number)
	{
		Name = Base + FString::FromInt(Number);
	}
	return FName(Name);
}

USCS_Node* USimpleConstructionScript::CreateNode(UClass* NewComponentClass, FName NewComponentVariableName)
{
	if (!NewComponentClass || !NewComponentClass->IsChildOf<UActorComponent>() || NewComponentClass->HasAnyClassFlags(CLASS_Abstract) ||
		!CanBeObjectName(NewComponentVariableName))
	{
		return nullptr;
	}
	const FName Name = GenerateNewComponentName(NewComponentClass, NewComponentVariableName);
	USCS_Node* const Node = NewObject<USCS_Node>(this, NAME_None, RF_Transactional);
	Node->SetVariableName(Name, false);
	Node->ComponentClass = NewComponentClass;
	Node->VariableGuid = FGuid::NewGuid();
	Node->CategoryName = NSLOCTEXT("SCS", "Default", "Default");
	FName TemplateName(USCS_Node::GetTemplateName(Name));
	if (StaticFindObjectFast(UObject::StaticClass(), GetOuter(), TemplateName))
	{
		// Left from a node that was removed.
		TemplateName = MakeUniqueObjectName(GetOuter(), NewComponentClass, TemplateName);
	}
	Node->ComponentTemplate =
		NewObject<UActorComponent>(GetOuter(), NewComponentClass, TemplateName, RF_ArchetypeObject | RF_Transactional | RF_Public);
	return Node;
}

void USimpleConstructionScript::AddNode(USCS_Node* Node)
{
	if (RootNodes.Contains(Node))
	{
		return;
	}
	Modify();
	RootNodes.Add(Node);
	ValidateSceneRootNodes();
}

void USimpleConstructionScript::RemoveNode(USCS_Node* Node, bool bValidateSceneRootNodes)
{
	Modify();
	if (USCS_Node* const Parent = FindParentNode(Node))
	{
		Parent->RemoveChildNode(Node);
	}
	RootNodes.Remove(Node);
	if (bValidateSceneRootNodes)
	{
		ValidateSceneRootNodes();
	}
}

USCS_Node* USimpleConstructionScript::FindSceneRoot() const
{
	const auto* const Found = RootNodes.FindByPredicate([this](const USCS_Node* Node)
		{ return Node != DefaultSceneRootNode && Node->ComponentTemplate && Node->ComponentTemplate->IsA<USceneComponent>(); });
	return Found ? Found->Get() : nullptr;
}

bool USimpleConstructionScript::InheritsSceneRoot() const
{
	const UClass* const Parent = GetOwnerClass()->GetSuperClass();
	const AActor* const Actor = Cast<AActor>(Parent->GetDefaultObject());
	if (Actor && Actor->GetRootComponent())
	{
		return true;
	}
	const auto* const Generated = Cast<UBlueprintGeneratedClass>(Parent);
	return Generated && Generated->SimpleConstructionScript && !Generated->SimpleConstructionScript->RootNodes.IsEmpty();
}

void USimpleConstructionScript::ValidateSceneRootNodes()
{
	const UClass* const Class = GetOwnerClass();
	if (!Class || !Class->IsChildOf<AActor>())
	{
		return;
	}
	USCS_Node* const SceneRoot = FindSceneRoot();
	const bool bWanted = !SceneRoot && !InheritsSceneRoot();
	const bool bThere = DefaultSceneRootNode && RootNodes.Contains(DefaultSceneRootNode);
	if (bWanted == bThere)
	{
		return;
	}
	Modify();
	if (bWanted)
	{
		if (!DefaultSceneRootNode)
		{
			DefaultSceneRootNode = CreateNode(USceneComponent::StaticClass(), FName(TEXT("DefaultSceneRoot")));
		}
		RootNodes.Insert(DefaultSceneRootNode, 0);
		return;
	}
	RootNodes.Remove(DefaultSceneRootNode);
	DefaultSceneRootNode->Modify();
	const TArray<TObjectPtr<USCS_Node>> Attached = MoveTemp(DefaultSceneRootNode->ChildNodes);
	DefaultSceneRootNode->ChildNodes.Empty();
	for (USCS_Node* const Child : Attached)
	{
		SceneRoot ? SceneRoot->AddChildNode(Child) : AddNode(Child);
	}
}

void USimpleConstructionScript::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsLoading())
	{
		RootNodes.RemoveAll([](const USCS_Node* Node) { return Node == nullptr; });
	}
}
