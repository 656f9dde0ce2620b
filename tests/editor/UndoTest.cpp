#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** A whole conversation taken back and brought again, as bytes on disk. */
namespace
{
using Lines = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

const std::string Bom = "\xef\xbb\xbf";
const std::string Compiled = "progress|Compilation successful!";

struct Call
{
	const char* Tool;
	Json Input;
};

/** A conversation of one answer with these calls, run at once, and then ended. */
class Changed
{
public:
	Changed(const Files& Before, const std::vector<Call>& Calls)
		: Service(Rules(Calls))
	{
		Toy.Connect(Service);
		for (const auto& [Path, Bytes] : Before)
		{
			Toy.Write(Path, Bytes);
		}
		Editor = std::make_unique<Session>(Toy);
		Seen = Transcript(
			Editor->Run({ Set("Mode", "ExplainerAndImplementerMode"), Do("start", "go"), WaitFor("AwaitingUpdate"), Do("end", "") }));
	}

	Lines Undo() { return Transcript(Editor->Run({ Do("undo") })); }
	Lines Redo() { return Transcript(Editor->Run({ Do("redo") })); }
	/** "undo", "redo" or both, as the panel would offer them. */
	std::string Offers()
	{
		const Json State = Editor->Query();
		return std::string(State["can_undo"] ? "undo" : "") + (State["can_redo"] ? "redo" : "");
	}
	/** The results that went to the service. */
	Lines Results() const
	{
		Lines Contents;
		const std::vector<Json> Bodies = PostedBodies(Service);
		for (const Json& Result : Bodies.at(1).at("tool_results"))
		{
			Contents.push_back(Result.at("content"));
		}
		return Contents;
	}

	Project Toy;
	Lines Seen;
	std::unique_ptr<Session> Editor;

private:
	static Json Rules(const std::vector<Call>& Calls)
	{
		Json Answer = Json::array();
		for (const auto& [Tool, Input] : Calls)
		{
			Answer.push_back({ { "tool", Tool }, { "input", Input } });
		}
		return Json::array({ { { "message", "go" }, { "answer", Answer } }, { { "answer", Json::array() } } });
	}

	ServiceProcess Service;
};

TEST(Undo, RestoresTheFilesOfAConversationAndRedoBringsItsChangesBack)
{
	const Files Before = {
		{ "Files/Replaced.h", Bom + "old\r\ntext\n" },
		{ "Files/Updated.cpp", "a\tb\r\na\n\u00fc no end" },
		{ "Files/Inserted.ini", "one\r\ntwo" },
		{ "Files/Twice.txt", Bom + "1\n" },
		{ "Files/Deleted.cpp", "int A;\r\nint B;\n\n" },
		{ "Files/Deleted.txt", "\u00e4\u4e2d\U0001F41D\rno end" },
		{ "Files/Untouched.txt", "\xff\xfe\x00" },
	};
	Changed Conversation(Before,
		{
			{ "update_and_replace_cpp_file", { { "filepath", "Files" }, { "filename", "Replaced.h" }, { "contents", "new\n" } } },
			{ "update_file", { { "path", "Files/Updated.cpp" }, { "old_string", "a" }, { "new_string", "\u00df" } } },
			{ "insert_into_file", { { "path", "Files/Inserted.ini" }, { "insert_line", 1 }, { "new_string", "between" } } },
			{ "update_file", { { "path", "Files/Twice.txt" }, { "old_string", "1" }, { "new_string", "2" } } },
			{ "update_file", { { "path", "Files/Twice.txt" }, { "old_string", "2" }, { "new_string", "3" } } },
			{ "delete_cpp_file", { { "filepath", "Files/" }, { "filename", "Deleted.cpp" } } },
			{ "delete_file", { { "path", "Files/Deleted.txt" } } },
			{ "create_file", { { "path", "Files/New/Deep/Created.txt" }, { "file_text", "first\r\n\u00fc" } } },
			{ "create_cpp_file", { { "filepath", "Files" }, { "filename", "Grown.h" }, { "contents", "grown" } } },
			{ "update_file", { { "path", "Files/Grown.h" }, { "old_string", "grown" }, { "new_string", "later" } } },
		});
	EXPECT_EQ(Conversation.Results(),
		(Lines{ "Successfully replaced file: Files/Replaced.h", "Successfully updated file: Files/Updated.cpp with 2 replacements",
			"Successfully inserted text at line 1 in file: Files/Inserted.ini",
			"Successfully updated file: Files/Twice.txt with 1 replacements",
			"Successfully updated file: Files/Twice.txt with 1 replacements", "Successfully deleted file: Files/Deleted.cpp",
			"Successfully deleted file: Files/Deleted.txt", "File created successfully: Files/New/Deep/Created.txt",
			"File created successfully: Files/Grown.h", "Successfully updated file: Files/Grown.h with 1 replacements" }));
	Files After = {
		{ "Files/Replaced.h", Bom + "new\n" },
		{ "Files/Updated.cpp", Bom + "\u00df\tb\r\n\u00df\n\u00fc no end" },
		{ "Files/Inserted.ini", "one\nbetween\ntwo\n" },
		{ "Files/Twice.txt", Bom + "3\n" },
		{ "Files/New/Deep/Created.txt", "first\r\n\u00fc" },
		{ "Files/Grown.h", Bom + "later" },
		{ "Files/Untouched.txt", "\xff\xfe\x00" },
	};
	EXPECT_EQ(Conversation.Toy.ReadAll("Files"), After);
	EXPECT_EQ(Conversation.Offers(), "undo");

	// A replaced text is written with a byte order mark; for the rest the bytes come back.
	Files Restored = Before;
	Restored["Files/Updated.cpp"].insert(0, Bom);
	Restored["Files/Inserted.ini"].insert(0, Bom);
	// A redo replaces with a mark as well, and makes a created file with its first text.
	After["Files/Inserted.ini"].insert(0, Bom);
	After["Files/Grown.h"] = "grown";
	for (int Round = 0; Round < 2; ++Round)
	{
		EXPECT_EQ(Conversation.Undo(), (Lines{ "progress|Undoing Last Changes...", Compiled }));
		EXPECT_EQ(Conversation.Toy.ReadAll("Files"), Restored);
		EXPECT_EQ(Conversation.Offers(), "redo");
		EXPECT_EQ(Conversation.Redo(), (Lines{ "progress|Redoing Last Changes...", Compiled }));
		EXPECT_EQ(Conversation.Toy.ReadAll("Files"), After);
		EXPECT_EQ(Conversation.Offers(), "undo");
	}
}

TEST(Undo, MakesTheStateThatIsAskedForWhateverHappenedMeanwhile)
{
	const Files Before = { { "Files/Modified.txt", "a" }, { "Files/Both.txt", "b" }, { "Files/Deleted.txt", "c" } };
	Changed Conversation(Before,
		{
			{ "create_file", { { "path", "Files/Modified.txt" }, { "file_text", "A" } } },
			{ "update_file", { { "path", "Files/Both.txt" }, { "old_string", "b" }, { "new_string", "B" } } },
			{ "delete_file", { { "path", "Files/Both.txt" } } },
			{ "delete_file", { { "path", "Files/Deleted.txt" } } },
			{ "create_file", { { "path", "Files/Created.txt" }, { "file_text", "d" } } },
		});
	// Someone else removed two of them and made the deleted one anew.
	std::filesystem::remove(Conversation.Toy.GetFolder() / "Files/Modified.txt");
	std::filesystem::remove(Conversation.Toy.GetFolder() / "Files/Created.txt");
	Conversation.Toy.Write("Files/Deleted.txt", "else");
	Conversation.Undo();
	EXPECT_EQ(Conversation.Toy.ReadAll("Files"), Before);
	EXPECT_EQ(Conversation.Offers(), "redo");
	Conversation.Redo();
	for (const auto& [Path, Bytes] : Conversation.Toy.ReadAll("Files"))
	{
		EXPECT_EQ(Bytes.find("Error:"), std::string::npos) << Path << ": " << Bytes;
	}
	EXPECT_EQ(Conversation.Toy.Read("Files/Created.txt"), "d");
	EXPECT_FALSE(Conversation.Toy.Has("Files/Deleted.txt"));
}

TEST(Undo, StaysOnOfferWhenAFileCannotBeRestored)
{
	const Files Before = { { "Files/A.txt", "a" }, { "Files/B.txt", Bom + "b" } };
	Changed Conversation(Before,
		{
			{ "create_file", { { "path", "Files/A.txt" }, { "file_text", "A" } } },
			{ "create_file", { { "path", "Files/B.txt" }, { "file_text", "B" } } },
		});
	const auto Blocked = Conversation.Toy.GetFolder() / "Files/A.txt";
	std::filesystem::remove(Blocked);
	std::filesystem::create_directory(Blocked);
	EXPECT_EQ(Conversation.Undo(), Lines{ "progress|Undoing Last Changes..." });
	EXPECT_EQ(Conversation.Toy.Read("Files/B.txt"), Bom + "b") << "The other files are restored all the same.";
	EXPECT_TRUE(Conversation.Offers().starts_with("undo"));
	std::filesystem::remove(Blocked);
	Conversation.Undo();
	EXPECT_EQ(Conversation.Toy.ReadAll("Files"), Before);
	EXPECT_EQ(Conversation.Offers(), "redo");
}

TEST(Undo, IsOfferedOnlyForChangesOfAConversationThatIsOver)
{
	const ServiceProcess Service(Json::parse(R"([
		{ "message": "change", "auto_continue": true, "answer": [ { "tool": "create_file", "input": { "path": "A.txt", "file_text": "a" } } ] },
		{ "answer": [ "Good." ], "auto_continue": true }
	])"));
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	const auto Offers = [&]
	{
		const Json State = Editor.Query();
		return State["can_undo"].dump() + " " + State["can_redo"].dump();
	};
	EXPECT_EQ(Offers(), "false false");
	EXPECT_EQ(Transcript(Editor.Run({ Do("undo"), Do("redo") })),
		(Lines{ "progress|Undoing Last Changes...", "progress|Redoing Last Changes..." }));
	Editor.Run({ Do("start", "talk"), WaitFor("AwaitingUpdate"), Do("end", "") });
	EXPECT_EQ(Offers(), "false false") << "Nothing was changed.";
	Editor.Run({ Do("start", "change"), WaitFor("AwaitingUpdate") });
	EXPECT_EQ(Offers(), "false false") << "The conversation is open.";
	Editor.Run({ Do("cancel", "") });
	EXPECT_EQ(Offers(), "true false");
	Editor.Run({ Do("undo") });
	EXPECT_EQ(Offers(), "false true");
	EXPECT_FALSE(Toy.Has("A.txt"));
	Editor.Run({ Do("start", "talk"), WaitFor("AwaitingUpdate"), Do("end", "") });
	EXPECT_EQ(Offers(), "false false") << "A new conversation forgets what could be redone.";
}
}
