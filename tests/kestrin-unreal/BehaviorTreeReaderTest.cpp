#include "BehaviorTree/BehaviorTree.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Enum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Float.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_NativeEnum.h"
#include "BehaviorTree/Blackboard/BlackboardKeyType_Object.h"
#include "BehaviorTree/BlackboardData.h"
#include "BehaviorTree/Composites/BTComposite_Selector.h"
#include "BehaviorTree/Composites/BTComposite_Sequence.h"
#include "BehaviorTree/Decorators/BTDecorator_BlueprintBase.h"
#include "BehaviorTree/Decorators/BTDecorator_Cooldown.h"
#include "BehaviorTree/Services/BTService_BlueprintBase.h"
#include "BehaviorTree/Services/BTService_DefaultFocus.h"
#include "BehaviorTree/Tasks/BTTask_BlueprintBase.h"
#include "BehaviorTree/Tasks/BTTask_Wait.h"
#include "GameFramework/Actor.h"
#include "KestrinSettings.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"
#include "UObject/UnrealType.h"

namespace
{
class BehaviorTreeReader : public FBlueprintTest
{
protected:
	template <typename AssetType>
	static AssetType* MakeAsset(const TCHAR* PackageName, const TCHAR* Name)
	{
		return NewObject<AssetType>(CreatePackage(PackageName), Name, RF_Public | RF_Standalone);
	}
	template <typename NodeType>
	NodeType* Make(UBTCompositeNode* Parent, const TCHAR* Name, UClass* Class = NodeType::StaticClass()) const
	{
		NodeType* const Node = NewObject<NodeType>(Tree, Class);
		Node->InitializeNode(Parent, 0, 0, 0);
		Node->NodeName = Name;
		return Node;
	}
	static FBTCompositeChild& Add(UBTCompositeNode* Parent, UBTCompositeNode* Composite, UBTTaskNode* Task)
	{
		FBTCompositeChild& Link = Parent->Children.AddDefaulted_GetRef();
		Link.ChildComposite = Composite;
		Link.ChildTask = Task;
		return Link;
	}
	template <typename KeyType>
	static KeyType* AddKey(UBlackboardData* Blackboard, const TCHAR* Name)
	{
		KeyType* const Type = NewObject<KeyType>(Blackboard);
		FBlackboardEntry& Entry = Blackboard->Keys.AddDefaulted_GetRef();
		Entry.EntryName = Name;
		Entry.KeyType = Type;
		return Type;
	}
	static void Set(UObject* Object, const TCHAR* Name, const TCHAR* Text)
	{
		EXPECT_TRUE(Object->GetClass()->FindPropertyByName(Name)->ImportText_InContainer(Text, Object, Object, PPF_None));
	}
	/** A class of nodes that a Blueprint makes, with an integer of its own. */
	static UClass* MakeNodeClass(const TCHAR* PackageName, UClass* Parent, const TCHAR* Variable)
	{
		const FTestBlueprint Blueprint(PackageName, Parent);
		Blueprint.AddVariable(Variable, PinType(UEdGraphSchema_K2::PC_Int), TEXT("3"));
		Blueprint.Save();
		return Blueprint.GetClass();
	}
	/** What is saved counts: the tree is read from its file. */
	std::string SaveAndRead() const
	{
		EXPECT_TRUE(SaveAsset(Tree));
		Forget();
		return ToUtf8(FKestrinBlueprintUtils::ReadBehaviorTree(TEXT("bt_GUARD")));
	}
	static void SetFilter(EKestrinBlueprintContentFilter Filter) { GetMutableDefault<UKestrinSettings>()->BlueprintContentFilter = Filter; }

	UBehaviorTree* const Tree = MakeAsset<UBehaviorTree>(TEXT("/Game/BT_Guard"), TEXT("BT_Guard"));
};

const std::string Head = R"({"Name":"BT_Guard","Path":"/Game/BT_Guard.BT_Guard")";
}

TEST_F(BehaviorTreeReader, TellsEveryKindOfKey)
{
	UBlackboardData* const Blackboard = MakeAsset<UBlackboardData>(TEXT("/Game/BB_Guard"), TEXT("BB_Guard"));
	UBlackboardData* const Parent = MakeAsset<UBlackboardData>(TEXT("/Game/BB_Parent"), TEXT("BB_Parent"));
	AddKey<UBlackboardKeyType_Float>(Parent, TEXT("Inherited"));
	Blackboard->Parent = Parent;
	AddKey<UBlackboardKeyType_Float>(Blackboard, TEXT("Alarm"));
	Blackboard->Keys.Last().bInstanceSynced = true;
	AddKey<UBlackboardKeyType_Object>(Blackboard, TEXT("Intruder"))->BaseClass = AActor::StaticClass();
	AddKey<UBlackboardKeyType_Object>(Blackboard, TEXT("Anything"));
	AddKey<UBlackboardKeyType_Enum>(Blackboard, TEXT("Mode"))->EnumType = StaticEnum<EKestrinMode>();
	AddKey<UBlackboardKeyType_Enum>(Blackboard, TEXT("NoMode"));
	AddKey<UBlackboardKeyType_NativeEnum>(Blackboard, TEXT("Native"))->EnumType = StaticEnum<EKestrinMode>();
	AddKey<UBlackboardKeyType_Float>(Blackboard, TEXT("Untyped"));
	Blackboard->Keys.Last().KeyType = nullptr;
	Tree->BlackboardAsset = Blackboard;
	ASSERT_TRUE(SaveAsset(Parent) && SaveAsset(Blackboard));
	EXPECT_EQ(SaveAndRead(),
		Head +
			R"(,"Blackboard":{"Name":"BB_Guard","Path":"/Game/BB_Guard.BB_Guard","Keys":[)"
			R"({"Name":"Alarm","IsInstanceSynced":true,"Type":"BlackboardKeyType_Float"},)"
			R"({"Name":"Intruder","IsInstanceSynced":false,"Type":"BlackboardKeyType_Object","BaseClass":"Actor"},)"
			R"({"Name":"Anything","IsInstanceSynced":false,"Type":"BlackboardKeyType_Object"},)"
			R"({"Name":"Mode","IsInstanceSynced":false,"Type":"BlackboardKeyType_Enum","EnumType":"EKestrinMode"},)"
			R"({"Name":"NoMode","IsInstanceSynced":false,"Type":"BlackboardKeyType_Enum","EnumType":"None"},)"
			R"({"Name":"Native","IsInstanceSynced":false,"Type":"BlackboardKeyType_NativeEnum","EnumType":"EKestrinMode"},)"
			R"({"Name":"Untyped","IsInstanceSynced":false}]}})");
}

TEST_F(BehaviorTreeReader, TellsNodesOfBlueprintsAndOfCodeInOrder)
{
	UClass* const Task = MakeNodeClass(TEXT("/Game/BTT_Walk"), UBTTask_BlueprintBase::StaticClass(), TEXT("Steps"));
	UClass* const Decorator = MakeNodeClass(TEXT("/Game/BTD_IsDark"), UBTDecorator_BlueprintBase::StaticClass(), TEXT("Depth"));
	UClass* const Service = MakeNodeClass(TEXT("/Game/BTS_Listen"), UBTService_BlueprintBase::StaticClass(), TEXT("Range"));
	SetFilter(EKestrinBlueprintContentFilter::UseOnlyBlueprintClassContent);
	UBTCompositeNode* const Root = Make<UBTComposite_Selector>(nullptr, TEXT("Night"));
	Tree->RootNode = Root;
	Root->Services = { Make<UBTService>(Root, TEXT("Hear"), Service), nullptr, Make<UBTService_DefaultFocus>(Root, TEXT("Look")) };
	UBTCompositeNode* const Patrol = Make<UBTComposite_Sequence>(Root, TEXT("Patrol"));
	UBTDecorator* const Dark = Make<UBTDecorator>(Root, TEXT("Dark?"), Decorator);
	Set(Dark, TEXT("bInverseCondition"), TEXT("True"));
	Set(Dark, TEXT("FlowAbortMode"), TEXT("LowerPriority"));
	UBTTaskNode* const Walk = Make<UBTTaskNode>(Patrol, TEXT(""), Task);
	Set(Walk, TEXT("Steps"), TEXT("7"));
	Add(Patrol, nullptr, Walk);
	Add(Root, nullptr, Make<UBTTask_Wait>(Root, TEXT("Sleep"))).Decorators = { Make<UBTDecorator_Cooldown>(Root, TEXT("Rest")) };
	Add(Root, nullptr, nullptr);
	// A composite goes before a task, and decorators of a later child come behind those of an earlier one.
	Add(Root, Patrol, Make<UBTTask_Wait>(Root, TEXT("Unseen"))).Decorators = { nullptr, Dark,
		Make<UBTDecorator_Cooldown>(Root, TEXT("Pause")) };
	EXPECT_EQ(SaveAndRead(),
		Head +
			R"(,"RootNode":{"Type":"BTComposite_Selector","NodeName":"Night","Properties":{},"NodeType":"Composite",)"
			R"("AuxiliaryNodes":[{"Type":"BTDecorator_Cooldown","NodeName":"Rest","Properties":{}},)"
			R"({"Type":"BTD_IsDark_C","NodeName":"Dark?","NodeType":"Decorator","IsInversed":true,"FlowAbortMode":"Lower Priority",)"
			R"("Properties":{"Depth":{"Type":{"Category":"int","SubCategory":"None","Container":"None","Flags":[]},"Value":"3"}}},)"
			R"({"Type":"BTDecorator_Cooldown","NodeName":"Pause","Properties":{}},)"
			R"({"Type":"BTS_Listen_C","NodeName":"Hear","NodeType":"Service","ServiceName":"Hear",)"
			R"("Properties":{"Range":{"Type":{"Category":"int","SubCategory":"None","Container":"None","Flags":[]},"Value":"3"}}},)"
			R"({"Type":"BTService_DefaultFocus","NodeName":"Look","Properties":{}}],)"
			R"("Children":[{"Type":"BTTask_Wait","NodeName":"Sleep","Properties":{}},)"
			R"({"Type":"BTComposite_Sequence","NodeName":"Patrol","Properties":{},"NodeType":"Composite","Children":[)"
			R"({"Type":"BTT_Walk_C","NodeName":"BTT_Walk","NodeType":"Task","ParentNode":"Patrol",)"
			R"("Properties":{"Steps":{"Type":{"Category":"int","SubCategory":"None","Container":"None","Flags":[]},"Value":"7"}}}]}]}})");
}

TEST_F(BehaviorTreeReader, ShowsThePropertiesThatTheContentFilterLetsPass)
{
	Tree->RootNode = Make<UBTComposite_Selector>(nullptr, TEXT("Night"));
	const std::string Start = Head + R"(,"RootNode":{"Type":"BTComposite_Selector","NodeName":"Night","Properties":{)";
	const std::string End = R"(},"NodeType":"Composite"}})";
	const std::string Scope =
		R"("bApplyDecoratorScope":{"Type":{"Category":"bool","SubCategory":"None","Container":"None","Flags":[]},"Value":"False"})";
	const std::string Name =
		R"("NodeName":{"Type":{"Category":"string","SubCategory":"None","Container":"None","Flags":[]},"Value":"Night"})";
	EXPECT_EQ(SaveAndRead(), Start + Scope + "," + Name + End);
	SetFilter(EKestrinBlueprintContentFilter::UseOnlyBlueprintClassContent);
	EXPECT_EQ(ToUtf8(FKestrinBlueprintUtils::ReadBehaviorTree(TEXT("BT_Guard"))), Start + End);
	SetFilter(EKestrinBlueprintContentFilter::UseAllContent);
	const std::string All = ToUtf8(FKestrinBlueprintUtils::ReadBehaviorTree(TEXT("BT_Guard")));
	for (const char* const Hidden : { "Children", "Services", "TreeAsset", "ParentNode" })
	{
		EXPECT_NE(All.find(std::string("\"") + Hidden + "\":{\"Type\""), std::string::npos) << Hidden;
	}
}

TEST_F(BehaviorTreeReader, LeavesOutWhatATreeHasNot)
{
	EXPECT_EQ(SaveAndRead(), Head + "}");
	EXPECT_EQ(ToUtf8(FKestrinBlueprintUtils::ReadBehaviorTree(TEXT("BT_None"))), R"({"Error":"BehaviorTree 'BT_None' not found."})");
}

TEST_F(BehaviorTreeReader, RefusesATreeThatIsNone)
{
	const auto Grow = [this](int32 Levels)
	{
		UBTCompositeNode* Last = Tree->RootNode = Make<UBTComposite_Sequence>(nullptr, TEXT(""));
		for (int32 Level = 1; Level < Levels; ++Level)
		{
			UBTCompositeNode* const Next = Make<UBTComposite_Sequence>(Last, TEXT(""));
			Add(Last, Next, nullptr);
			Last = Next;
		}
		return Last;
	};
	const std::string Refusal = R"({"Error":"BehaviorTree 'bt_GUARD' can't be read: it has more than 1000 levels, or a node twice."})";
	const auto Read = [] { return ToUtf8(FKestrinBlueprintUtils::ReadBehaviorTree(TEXT("bt_GUARD"))); };
	EXPECT_TRUE(SaveAsset(Tree));
	Grow(1000);
	EXPECT_TRUE(Read().starts_with(Head));
	Grow(10000);
	EXPECT_EQ(Read(), Refusal);
	Add(Grow(2), Tree->RootNode, nullptr);
	EXPECT_EQ(Read(), Refusal);
	Grow(10000);
	EXPECT_EQ(SaveAndRead(), Refusal);
}
