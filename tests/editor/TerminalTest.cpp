#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** A conversation for a person: prompts and commands in lines, and on a terminal Ctrl-C. */
namespace
{
Json Rules()
{
	return Json::parse(R"([
		{ "message": "change", "answer": [ "Look.",
			{ "tool": "update_file", "input": { "path": "Source/Toy/Toy.cpp", "old_string": "3", "new_string": "4" } } ] },
		{ "message": "long", "polls": 3, "answer": [ "At last." ] },
		{ "message": "endless", "polls": 100000 },
		{ "answer": [ "You said {{message}}." ], "auto_continue": true }
	])");
}

class Terminal : public ::testing::Test
{
protected:
	Terminal() { Toy.Connect(Service); }

	Ending Say(std::initializer_list<const char*> Lines)
	{
		std::string Input;
		for (const char* Line : Lines)
		{
			Input += std::string(Line) + "\n";
		}
		return RunEditor({ Toy.GetFile(), "--terminal", "--clock-rate", "20" }, Input);
	}

	const ServiceProcess Service{ Rules() };
	const Project Toy;
};

/** Looks for the texts one behind the other. */
void ExpectInOrder(const std::string& Text, const std::vector<std::string>& Parts)
{
	size_t Place = 0;
	for (const std::string& Part : Parts)
	{
		const size_t Found = Text.find(Part, Place);
		ASSERT_NE(Found, std::string::npos) << "\"" << Part << "\" is not where it should be in\n" << Text;
		Place = Found + Part.size();
	}
}

TEST_F(Terminal, LeadsAWholeConversationFromAPipe)
{
	const Ending Result = Say({ "change it", "/continue", "and now?", "/end thanks", "/undo", "/redo", "/undo", "/quit", "never" });
	EXPECT_EQ(Result.Code, 0) << Result.Error;
	ExpectInOrder(Result.Out,
		{ " [ User Start ]\n\nchange it\n", "Sending request...", "Processing request...", " [ Kestrin ] \n\nLook.\n",
			"The process has been resumed.", "Updating File Content...", "Source/Toy/Toy.cpp", "- int Oil = 3;", "+ int Oil = 4;",
			"You said .", " [ User ]\n\nand now?\n", "You said and now?.", " [ User End ]\n\nthanks", "Undoing Last Changes...",
			"Redoing Last Changes...", "Undoing Last Changes..." });
	EXPECT_EQ(Result.Out.find("never"), std::string::npos);
	EXPECT_EQ(Result.Out.find('\x1b'), std::string::npos) << "No colours into a pipe.";
	EXPECT_EQ(Toy.Read("Source/Toy/Toy.cpp"), "\xef\xbb\xbfint Oil = 3;\n");
	EXPECT_EQ(LoggedRequests(Service, "POST").size(), 3u);
}

TEST_F(Terminal, RunsCallsAtOnceInTheOtherMode)
{
	const Ending Result = Say({ "/mode implement", "change it" });
	EXPECT_EQ(Result.Code, 0) << Result.Error;
	EXPECT_EQ(Toy.Read("Source/Toy/Toy.cpp"), "\xef\xbb\xbfint Oil = 4;\n");
	const auto Bodies = PostedBodies(Service);
	ASSERT_FALSE(Bodies.empty());
	EXPECT_EQ(Bodies[0]["is_confirmation_mode"], false);
}

TEST_F(Terminal, ListsItsCommandsAndNamesOneThatItHasNot)
{
	const Ending Result = Say({ "/help", "/fly", "/mode sideways", "/mode", "" });
	EXPECT_EQ(Result.Code, 0) << Result.Error;
	for (const char* Command : { "/continue", "/pause", "/end", "/undo", "/redo", "/mode", "/help", "/quit", "Ctrl-C" })
	{
		EXPECT_NE(Result.Out.find(Command), std::string::npos) << Command;
	}
	EXPECT_NE(Result.Out.find("/fly"), std::string::npos) << Result.Out;
	EXPECT_TRUE(LoggedRequests(Service, "POST").empty()) << "A mistyped command is no prompt.";
}

TEST_F(Terminal, UndoesOnlyWhatThePanelWouldLetOneUndo)
{
	// Taken in the middle of a conversation an undo would cost the later one its key.
	const Ending Result = Say({ "change it", "/continue", "/undo", "/end", "/undo" });
	EXPECT_EQ(Result.Code, 0) << Result.Error;
	const size_t End = Result.Out.find(" [ User End ]");
	ASSERT_NE(End, std::string::npos);
	EXPECT_EQ(Result.Out.substr(0, End).find("Undoing Last Changes..."), std::string::npos) << Result.Out;
	ExpectInOrder(Result.Out.substr(End), { "Undoing Last Changes..." });
	EXPECT_EQ(Toy.Read("Source/Toy/Toy.cpp"), "\xef\xbb\xbfint Oil = 3;\n");
}

TEST_F(Terminal, OffersAPauseAndAnEndByCtrlC)
{
	Program Editor({ Toy.GetFile(), "--terminal", "--clock-rate", "20" }, Program::Face::Terminal);
	Editor.ReadUntil(">");
	Editor.Write("long\n");
	Editor.ReadUntil("Processing request...");
	Editor.Write("\x03");
	Editor.ReadUntil("Pausing request...");
	// The pause takes effect at the answer, and the conversation goes on from there.
	Editor.ReadUntil("The process has been paused.");
	Editor.Write("endless\n");
	Editor.ReadUntil("Processing request...");
	Editor.Write("\x03");
	Editor.ReadUntil("Pausing request...");
	Editor.Write("\x03");
	Editor.ReadUntil(" [ User End ]");
	Editor.Write("once more\n");
	Editor.ReadUntil("You said once more.");
	Editor.Write("/quit\n");
	EXPECT_EQ(Editor.Finish().Code, 0);
}

TEST_F(Terminal, TakesCommandsWhileAnAnswerIsOnItsWay)
{
	Program Editor({ Toy.GetFile(), "--terminal", "--clock-rate", "20" }, Program::Face::Terminal);
	Editor.ReadUntil(">");
	Editor.Write("endless\n");
	Editor.ReadUntil("Processing request...");
	Editor.Write("/pause\n");
	Editor.ReadUntil("Pausing request...");
	Editor.Write("/end\n");
	Editor.ReadUntil(" [ User End ]");
	// Colours by the look, diffs by their sign.
	Editor.Write("/mode implement\nchange it\n");
	const std::string Seen = Editor.ReadUntil("You said");
	for (const char* Line : { "\x1b[34m [ User Start ]", "\x1b[33m [ Kestrin ]", "\x1b[31m- int Oil = 3;", "\x1b[32m+ int Oil = 4;" })
	{
		EXPECT_NE(Seen.find(Line), std::string::npos) << Line;
	}
	Editor.Write("\x04");
	EXPECT_EQ(Editor.Finish().Code, 0);
}
}
