#include "Agent/Agent.h"
#include "Agent/FileHistory.h"
#include "Agent/KestrinInterface.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "ScopedTransaction.h"
#include "Support/BlueprintAccess.h"
#include "Support/Conversation.h"
#include "Support/TestBlueprint.h"
#include "UObject/UnrealType.h"

namespace
{
/** An ended conversation "x" whose changes wait to be undone. */
class UndoTransactions : public testing::Test
{
protected:
	UndoTransactions()
	{
		FAgent::Get().SetUndoConversationId(TEXT("x"));
		FAgent::Get().SetRedoConversationId(FString());
	}
	~UndoTransactions() override
	{
		FAgent::Get().SetUndoConversationId(FString());
		FAgent::Get().SetRedoConversationId(FString());
		FFileHistory::Get().ClearAllHistory();
	}

	/** A transaction of that title in which an object is changed. */
	static void Transact(const TCHAR* Title)
	{
		const FScopedTransaction Transaction(FText::FromString(Title));
		NewObject<UBlueprint>(GetTransientPackage(), NAME_None, RF_Transactional);
	}
	static std::string Read() { return ToUtf8(FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Lamp"), TEXT("All"))); }
	static FKestrinInterface& Interface() { return FKestrinInterface::Get(); }

	FConversation Talk;
	FCleanEditor Editor;
};
}

TEST_F(UndoTransactions, TheWalkEndsAtTheNewestOfTheTitle)
{
	const TCHAR* const Title = TEXT("Kestrin Transaction x");
	const struct
	{
		std::vector<const TCHAR*> Titles;
		/** Undone before the walk. */
		int32 Undone;
		bool bFound;
		int32 UndoneAfterwards;
	} Cases[] = {
		{ {}, 0, false, 0 },
		{ { TEXT("Move"), TEXT("Kestrin Transaction y") }, 0, false, 0 },
		{ { Title }, 0, true, 1 },
		{ { TEXT("Move"), TEXT("KESTRIN transaction X"), TEXT("Turn"), TEXT("Kestrin Transaction xx") }, 0, true, 3 },
		{ { Title, TEXT("Move"), Title, TEXT("Turn") }, 0, true, 2 },
		{ { Title, TEXT("Move"), Title, TEXT("Turn") }, 2, true, 4 },
		// Undone ones do not count: nothing else is undone in their stead.
		{ { TEXT("Move"), Title, TEXT("Turn") }, 2, false, 2 },
	};
	for (const auto& Case : Cases)
	{
		GEditor->ResetTransaction(FText::GetEmpty());
		for (const TCHAR* const Each : Case.Titles)
		{
			Transact(Each);
		}
		for (int32 Count = 0; Count < Case.Undone; ++Count)
		{
			GEditor->UndoTransaction();
		}
		SCOPED_TRACE(&Case - Cases);
		EXPECT_EQ(Interface().UndoUntilLastTransactionByName(Title), Case.bFound);
		EXPECT_EQ(GEditor->Trans->GetUndoCount(), Case.UndoneAfterwards);
		EXPECT_EQ(GEditor->Trans->GetQueueLength(), static_cast<int32>(Case.Titles.size())) << "what was undone can be redone";
	}
}

TEST_F(UndoTransactions, CountWhileAConversationRunsAsFilesDoNot)
{
	EXPECT_FALSE(Interface().CanUndo() || Interface().CanRedo());
	Interface().InitialRequest(TEXT("Go"));
	const FString Id = FAgent::Get().GetUndoConversationId();
	FFileHistory::Get().StoreFileCreation(Id, TEXT("a.txt"), TEXT("a"));
	EXPECT_FALSE(Interface().CanUndo());
	Transact(*FString::Printf(TEXT("Kestrin Transaction %s"), *Id));
	EXPECT_TRUE(Interface().CanUndo());
	EXPECT_FALSE(Interface().CanRedo());
	FAgent::Get().SetRedoConversationId(Id);
	EXPECT_TRUE(Interface().CanRedo());
}

TEST_F(UndoTransactions, GiveTheSameDocumentBackAndForth)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"), AActor::StaticClass());
	Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Int), TEXT("4"));
	Lamp.AddVariable(TEXT("Old"), PinType(UEdGraphSchema_K2::PC_Boolean));
	UEdGraph* const Events = Lamp.MakeEmptyEventGraph();
	UK2Node* const Event = AddCustomEvent(Events, TEXT("Look"));
	UK2Node* const Destroy = AddCall(Events, AActor::StaticClass(), TEXT("K2_DestroyActor"));
	Link(Event, TEXT("then"), Destroy, TEXT("execute"));
	AddGet(Events, TEXT("Old"));
	Lamp.Save();
	const std::string Before = Read();
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Kestrin Transaction x")));
		Lamp.AddVariable(TEXT("New"), PinType(UEdGraphSchema_K2::PC_String), TEXT("text"));
		FBlueprintEditorUtils::RemoveMemberVariable(Lamp.Get(), TEXT("Old"));
		FBlueprintEditorUtils::RenameMemberVariable(Lamp.Get(), TEXT("Oil"), TEXT("Fuel"));
		UEdGraph* const Function = Lamp.AddFunction(TEXT("Burn"));
		FTestBlueprint::AddParameter(Function, TEXT("Hours"), PinType(UEdGraphSchema_K2::PC_Real));
		Events->Modify();
		Destroy->Modify();
		Event->Modify();
		UK2Node* const Print = AddCustomEvent(Events, TEXT("Added"));
		Link(Print, TEXT("then"), Destroy, TEXT("execute"));
		Events->RemoveNode(Event);
		Lamp.Compile();
		UObject* const Defaults = Lamp.GetClass()->GetDefaultObject();
		Defaults->SetFlags(RF_Transactional);
		Defaults->Modify();
		Lamp.GetClass()->FindPropertyByName(TEXT("Fuel"))->ImportText_InContainer(TEXT("9"), Defaults, Defaults, PPF_None);
	}
	const std::string After = Read();
	EXPECT_NE(After.find(R"("Fuel":{"Type":{"Category":"int","SubCategory":"None","Container":"None","Flags":[]},"Value":"9"})"),
		std::string::npos);
	EXPECT_EQ(After.find(R"("Old":{)"), std::string::npos);
	for (int32 Round = 0; Round < 2; ++Round)
	{
		SCOPED_TRACE(Round);
		ASSERT_TRUE(Interface().UndoUntilLastTransactionByName(TEXT("Kestrin Transaction x")));
		EXPECT_EQ(Read(), Before);
		ASSERT_TRUE(GEditor->RedoTransaction());
		EXPECT_EQ(Read(), After);
	}
}

TEST_F(UndoTransactions, GoWithTheFilesOfTheirConversation)
{
	const std::string Mark = "\xEF\xBB\xBF";
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"));
	Lamp.Save();
	Talk.Project.Write("a.txt", "new");
	FFileHistory::Get().StoreFileVersion(TEXT("x"), TEXT("a.txt"), TEXT("old"));
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Kestrin Transaction x")));
		Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Int));
	}
	EXPECT_TRUE(Interface().CanUndo());
	Interface().UndoLastOperation();
	EXPECT_EQ(Talk.Chat, (std::vector<std::string>{ "progress|Undoing Last Changes...", "progress|Compilation successful!" }));
	EXPECT_EQ(Talk.Project.Read("a.txt"), Mark + "old");
	EXPECT_TRUE(Lamp->NewVariables.IsEmpty());
	EXPECT_FALSE(Lamp->GetOutermost()->IsDirty()) << "the restored state is saved";
	EXPECT_EQ(ToUtf8(FAgent::Get().GetUndoConversationId() + FAgent::Get().GetRedoConversationId()), "") << "the editor alone can redo it";

	FAgent::Get().SetUndoConversationId(TEXT("y"));
	FFileHistory::Get().StoreFileVersion(TEXT("y"), TEXT("a.txt"), TEXT("older"));
	Interface().UndoLastOperation();
	EXPECT_EQ(Talk.Project.Read("a.txt"), Mark + "older");
	EXPECT_EQ(ToUtf8(FAgent::Get().GetRedoConversationId()), "y") << "files alone can be redone";
}
