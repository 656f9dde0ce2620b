#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "AssetMaker.h"
#include "BehaviorTree/BehaviorTree.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Bool.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Enum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Float.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_NativeEnum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Object.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Vector.h"
#include "BehaviorTree/BlackboardData.h"
#include "BehaviorTree/Composites/BTComposite_Selector.h"
#include "BehaviorTree/Composites/BTComposite_Sequence.h"
#include "BehaviorTree/Decorators/BTDecorator_Blackboard.h"
#include "BehaviorTree/Decorators/BTDecorator_BlueprintBase.h"
#include "BehaviorTree/Decorators/BTDecorator_Cooldown.h"
#include "BehaviorTree/Services/BTService_BlueprintBase.h"
#include "BehaviorTree/Services/BTService_DefaultFocus.h"
#include "BehaviorTree/Tasks/BTTask_BlueprintBase.h"
#include "BehaviorTree/Tasks/BTTask_MoveTo.h"
#include "BehaviorTree/Tasks/BTTask_Wait.h"
#include "BlueprintMaker.h"
#include "Content.h"
#include "PinTypes.h"
#include "UObject/UObjectIterator.h"

namespace
{
template <typename KeyType>
KeyType* AddKey(UBlackboardData* Blackboard, const TCHAR* Name, bool bInstanceSynced = false)
{
	FBlackboardEntry Entry;
	Entry.EntryName = Name;
	Entry.bInstanceSynced = bInstanceSynced;
	KeyType* const Type = NewObject<KeyType>(Blackboard, NAME_None, RF_Public);
	Entry.KeyType = Type;
	Blackboard->Keys.Add(Entry);
	return Type;
}

UBlackboardData* MakeBlackboard(const FLanternTypes& Types, UClass* LanternPost)
{
	UBlackboardData* const Blackboard = MakeAsset<UBlackboardData>(TEXT("Moths/BB_Moth"));
	AddKey<UBlackboardKeyType_Object>(Blackboard, TEXT("Lantern"))->BaseClass = LanternPost;
	AddKey<UBlackboardKeyType_Vector>(Blackboard, TEXT("Perch"));
	AddKey<UBlackboardKeyType_Float>(Blackboard, TEXT("Longing"));
	AddKey<UBlackboardKeyType_Bool>(Blackboard, TEXT("bStartled"), true);
	AddKey<UBlackboardKeyType_Enum>(Blackboard, TEXT("Weather"), true)->EnumType = Types.Weather;
	UBlackboardKeyType_NativeEnum* const Mood = AddKey<UBlackboardKeyType_NativeEnum>(Blackboard, TEXT("Mood"));
	Mood->EnumName = TEXT("EMothMood");
	Mood->EnumType = FindFirstObject<UEnum>(TEXT("EMothMood"));
	SaveAsset(Blackboard);
	return Blackboard;
}

/** A class for nodes of the tree, with one variable that each node may set. */
UClass* MakeNodeClass(const TCHAR* Path, UClass* Parent, FName Variable, const FEdGraphPinType& Type, const TCHAR* Default)
{
	FBlueprintMaker Maker(Path, Parent);
	Maker.Variable(Variable, Type, Default, TEXT("Moth"));
	Maker.Save();
	return Maker.GetClass();
}

/** Puts a tree together. */
class FTreeMaker
{
public:
	explicit FTreeMaker(UBehaviorTree* InTree)
		: Tree(InTree)
	{
	}

	template <typename NodeType>
	NodeType* Make(UBTCompositeNode* Parent, const TCHAR* Name = TEXT(""), UClass* Class = NodeType::StaticClass())
	{
		NodeType* const Node = NewObject<NodeType>(Tree, Class);
		Node->InitializeFromAsset(*Tree);
		Node->InitializeNode(Parent, NextIndex++, 0, Parent ? static_cast<uint8>(Parent->GetTreeDepth() + 1) : 0);
		if (*Name)
		{
			Node->NodeName = Name;
		}
		return Node;
	}

	static FBTCompositeChild& Add(UBTCompositeNode* Parent, UBTCompositeNode* Child)
	{
		FBTCompositeChild& Link = Parent->Children.AddDefaulted_GetRef();
		Link.ChildComposite = Child;
		return Link;
	}
	static FBTCompositeChild& Add(UBTCompositeNode* Parent, UBTTaskNode* Child)
	{
		FBTCompositeChild& Link = Parent->Children.AddDefaulted_GetRef();
		Link.ChildTask = Child;
		return Link;
	}

private:
	UBehaviorTree* Tree;
	uint16 NextIndex = 0;
};

void MakeTree(UBlackboardData* Blackboard, UClass* CircleGlass, UClass* IsBright, UClass* SeekLight)
{
	UBehaviorTree* const Tree = MakeAsset<UBehaviorTree>(TEXT("Moths/BT_Moth"));
	Tree->BlackboardAsset = Blackboard;
	FTreeMaker Maker(Tree);

	UBTComposite_Selector* const Root = Maker.Make<UBTComposite_Selector>(nullptr, TEXT("A moth's night"));
	Tree->RootNode = Root;
	UBTService* const Seek = Maker.Make<UBTService>(Root, TEXT("Seek light"), SeekLight);
	SetProperty(Seek, TEXT("Interval"), TEXT("0.75"));
	Root->Services.Add(Seek);

	UBTComposite_Sequence* const Visit = Maker.Make<UBTComposite_Sequence>(Root, TEXT("Visit a lantern"));
	FBTCompositeChild& ToVisit = FTreeMaker::Add(Root, Visit);
	UBTDecorator* const Bright = Maker.Make<UBTDecorator>(Root, TEXT("Is it bright?"), IsBright);
	SetProperty(Bright, TEXT("FlowAbortMode"), TEXT("LowerPriority"));
	SetProperty(Bright, TEXT("Threshold"), TEXT("0.6"));
	UBTDecorator_Blackboard* const Known = Maker.Make<UBTDecorator_Blackboard>(Root);
	SetProperty(Known, TEXT("BlackboardKey"), TEXT("(SelectedKeyName=\"Lantern\")"));
	ToVisit.Decorators = { Known, Bright };
	Visit->Services.Add(Maker.Make<UBTService_DefaultFocus>(Visit));
	UBTTask_MoveTo* const FlyThere = Maker.Make<UBTTask_MoveTo>(Visit, TEXT("Fly to the glass"));
	SetProperty(FlyThere, TEXT("AcceptableRadius"), TEXT("40.0"));
	FTreeMaker::Add(Visit, FlyThere);
	UBTTaskNode* const Circle = Maker.Make<UBTTaskNode>(Visit, TEXT(""), CircleGlass);
	SetProperty(Circle, TEXT("Rounds"), TEXT("7"));
	FTreeMaker::Add(Visit, Circle).Decorators.Add(Maker.Make<UBTDecorator_Cooldown>(Visit));

	UBTComposite_Sequence* const Rest = Maker.Make<UBTComposite_Sequence>(Root, TEXT("Rest"));
	FTreeMaker::Add(Root, Rest);
	UBTTask_Wait* const Sit = Maker.Make<UBTTask_Wait>(Rest, TEXT("Sit on the bark"));
	SetProperty(Sit, TEXT("WaitTime"), TEXT("8.0"));
	SetProperty(Sit, TEXT("RandomDeviation"), TEXT("2.5"));
	FTreeMaker::Add(Rest, Sit);
	SaveAsset(Tree);
}
}

void MakeMoths(const FLanternTypes& Types, UClass* LanternPost)
{
	UBlackboardData* const Blackboard = MakeBlackboard(Types, LanternPost);
	MakeTree(Blackboard,
		MakeNodeClass(TEXT("Moths/BTT_CircleGlass"), UBTTask_BlueprintBase::StaticClass(), TEXT("Rounds"), PinTypes::Int(), TEXT("3")),
		MakeNodeClass(
			TEXT("Moths/BTD_IsBright"), UBTDecorator_BlueprintBase::StaticClass(), TEXT("Threshold"), PinTypes::Real(), TEXT("0.5")),
		MakeNodeClass(TEXT("Moths/BTS_SeekLight"), UBTService_BlueprintBase::StaticClass(), TEXT("Lamps"),
			PinTypes::In(EPinContainerType::Array, PinTypes::Name()), TEXT("")));

	FBlueprintMaker Animation(TEXT("Moths/ABP_Moth"), UAnimInstance::StaticClass(), BPTYPE_Normal, UAnimBlueprint::StaticClass(),
		UAnimBlueprintGeneratedClass::StaticClass());
	Animation.Variable(TEXT("WingBeat"), PinTypes::Real(), TEXT("14.0"), TEXT("Flight"));
	Animation.Save();
}
