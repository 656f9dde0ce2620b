#include "Agent/FileHistory.h"
#include "Agent/FileUtils.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/FileFaults.h"
#include "Support/Conversation.h"

#include <gtest/gtest.h>

namespace
{
const std::string Bom = "\xEF\xBB\xBF";

FFileHistory& History()
{
	return FFileHistory::Get();
}

/** A project with an empty history. */
struct FHistoryTest : FTestProject
{
	FHistoryTest() { History().ClearAllHistory(); }
};

/** Without a byte order mark: whether there is one depends on which operation wrote last. */
std::string ReadText(const FTestProject& Project, const char* Path)
{
	const std::string Bytes = Project.Read(Path);
	return Bytes.starts_with(Bom) ? Bytes.substr(Bom.size()) : Bytes;
}

TEST(FileHistory, TheFirstStateOfAFileStays)
{
	FHistoryTest Project;
	History().StoreFileVersion(TEXT("c"), TEXT("a"), TEXT("1"));
	History().StoreFileVersion(TEXT("C"), TEXT("A"), TEXT("2"));
	History().StoreFileDeletion(TEXT("c"), TEXT("a"), TEXT("3"));
	ASSERT_EQ(History().GetFileHistories().Num(), 1);
	const FFileHistoryEntry& Entry = History().GetFileHistories()[FString(TEXT("c"))][FString(TEXT("a"))];
	EXPECT_EQ(ToUtf8(Entry.Content), "1");
	EXPECT_EQ(Entry.ActionType, EFileActionType::Modification);
}

TEST(FileHistory, EmptyTextsAndPaths)
{
	FHistoryTest Project;
	History().StoreFileVersion(TEXT("c"), TEXT("a"), TEXT(""));
	History().StoreFileCreation(TEXT("c"), TEXT(""), TEXT("x"));
	EXPECT_TRUE(History().GetFileHistories().IsEmpty());
	History().StoreFileCreation(TEXT("c"), TEXT("a"), TEXT(""));
	History().StoreFileDeletion(TEXT("c"), TEXT("b"), TEXT(""));
	EXPECT_TRUE(History().CanUndo(TEXT("c"), TEXT("a")));
	EXPECT_TRUE(History().CanUndo(TEXT("c"), TEXT("b")));
}

TEST(FileHistory, UndoAndRedoOfEachAction)
{
	struct FCase
	{
		const char* Name;
		void (*Change)(const FTestProject&);
		std::string Undone;
		std::string Redone;
	};
	const FCase Cases[] = {
		{ "creation",
			[](const FTestProject& Project) {
				History().StoreFileCreation(TEXT("c"), TEXT("a"), TEXT("made"));
				Project.Write("a", "made, then changed");
			},
			"<none>", "made" },
		{ "modification",
			[](const FTestProject& Project) {
				History().StoreFileVersion(TEXT("c"), TEXT("a"), TEXT("before"));
				Project.Write("a", "third state");
			},
			"before", "third state" },
		{ "deletion", [](const FTestProject&) { History().StoreFileDeletion(TEXT("c"), TEXT("a"), TEXT("gone")); }, "gone", "<none>" },
		{ "a modified file that is gone now", [](const FTestProject&) { History().StoreFileVersion(TEXT("c"), TEXT("a"), TEXT("before")); },
			"before", "before" },
		{ "a modified file that is empty now",
			[](const FTestProject& Project) {
				History().StoreFileVersion(TEXT("c"), TEXT("a"), TEXT("before"));
				Project.Write("a", "");
			},
			"before", "before" },
		{ "a created file that is gone now", [](const FTestProject&) { History().StoreFileCreation(TEXT("c"), TEXT("a"), TEXT("made")); },
			"<none>", "made" },
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FHistoryTest Project;
		Case.Change(Project);
		for (int Round = 0; Round < 2; ++Round)
		{
			EXPECT_TRUE(History().UndoAllChanges(TEXT("C")));
			EXPECT_EQ(ReadText(Project, "a"), Case.Undone);
			EXPECT_TRUE(History().RedoAllChanges(TEXT("C")));
			EXPECT_EQ(ReadText(Project, "a"), Case.Redone);
		}
	}
}

TEST(FileHistory, ANewEntryEmptiesWhatCouldBeRedone)
{
	FHistoryTest Project;
	History().StoreFileCreation(TEXT("c"), TEXT("a"), TEXT("x"));
	History().UndoAllChanges(TEXT("c"));
	History().StoreFileCreation(TEXT("c"), TEXT("a"), TEXT("y"));
	EXPECT_TRUE(History().CanRedo(TEXT("c"), TEXT("a")));
	History().StoreFileCreation(TEXT("d"), TEXT("b"), TEXT("y"));
	EXPECT_FALSE(History().CanRedo(TEXT("c"), TEXT("a")));
}

TEST(FileHistory, OneFailureDoesNotStopTheOthers)
{
	FHistoryTest Project;
	for (const TCHAR* Path : { TEXT("a"), TEXT("b"), TEXT("d") })
	{
		History().StoreFileVersion(TEXT("c"), Path, TEXT("before"));
		Project.Write(ToUtf8(Path), "after");
	}
	FFileFaults::SetHook(
		[](EFileOperation Operation, const FString& Path) { return Operation != EFileOperation::OpenWrite || !Path.EndsWith(TEXT("/b")); });
	EXPECT_FALSE(History().UndoAllChanges(TEXT("c")));
	FFileFaults::SetHook({});
	EXPECT_EQ(Project.Read("a"), Bom + "before");
	EXPECT_EQ(Project.Read("b"), "after");
	EXPECT_EQ(Project.Read("d"), Bom + "before");
}

TEST(FileHistory, UnknownNamesChangeNothing)
{
	FHistoryTest Project;
	Project.Write("a", "kept");
	EXPECT_FALSE(History().UndoChanges(TEXT("c"), TEXT("a")));
	EXPECT_FALSE(History().RedoChanges(TEXT("c"), TEXT("a")));
	EXPECT_TRUE(History().UndoAllChanges(TEXT("c")));
	EXPECT_EQ(Project.Read("a"), "kept");
}

TEST(Undo, TakesBackAConversationOnceItHasEnded)
{
	FConversation Talk;
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Talk.Project.Write("a.txt", "old");
	Talk.StartAndFinishWith(
		R"({"type":"tool_use","name":"update_file","id":"1","input":{"path":"a.txt","old_string":"old","new_string":"new"}},)"
		R"({"type":"tool_use","name":"create_file","id":"2","input":{"path":"b.txt","file_text":"b"}})",
		true);
	EXPECT_FALSE(Interface.CanUndo());
	Interface.EndRequest(FString());
	ASSERT_TRUE(Interface.CanUndo());
	Talk.Forget();

	Interface.UndoLastOperation();
	EXPECT_EQ(Talk.Chat, (std::vector<std::string>{ "progress|Undoing Last Changes...", "progress|Compilation successful!" }));
	EXPECT_EQ(Talk.Project.Read("a.txt"), Bom + "old");
	EXPECT_FALSE(Talk.Project.Has("b.txt"));
	EXPECT_FALSE(Interface.CanUndo());
	ASSERT_TRUE(Interface.CanRedo());
	Interface.UndoLastOperation();
	EXPECT_TRUE(Interface.CanRedo());

	Interface.RedoLastOperation();
	EXPECT_EQ(Talk.Chat.at(Talk.Chat.size() - 2), "progress|Redoing Last Changes...");
	EXPECT_EQ(Talk.Project.Read("a.txt"), Bom + "new");
	EXPECT_EQ(Talk.Project.Read("b.txt"), "b");
	EXPECT_TRUE(Interface.CanUndo());
	EXPECT_FALSE(Interface.CanRedo());
}

TEST(Undo, AFailureLeavesItToBeTriedAgain)
{
	FConversation Talk;
	Talk.StartAndFinishWith(R"({"type":"tool_use","name":"create_file","id":"2","input":{"path":"b.txt","file_text":"b"}})", true);
	FKestrinInterface::Get().EndRequest(FString());
	FFileFaults::SetHook([](EFileOperation Operation, const FString&) { return Operation != EFileOperation::DeleteFile; });
	FKestrinInterface::Get().UndoLastOperation();
	FFileFaults::SetHook({});
	EXPECT_TRUE(FKestrinInterface::Get().CanUndo());
	FKestrinInterface::Get().UndoLastOperation();
	EXPECT_FALSE(Talk.Project.Has("b.txt"));
	EXPECT_TRUE(FKestrinInterface::Get().CanRedo());
}
}
