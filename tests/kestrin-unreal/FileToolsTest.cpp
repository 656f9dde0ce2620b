#include "Agent/FileHistory.h"
#include "Agent/KestrinInterface.h"
#include "Support/Conversation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAreArray;

namespace
{
/** A conversation that waits for the user, so that its tools can be run one by one. */
class FOpenConversation : public FConversation
{
public:
	FOpenConversation()
	{
		Project.Write("a.txt", "one\ntwo\n");
		Project.Write("Source/Game/Deep/Hero.h", "hero\n");
		StartAndFinishWith("", true);
		Forget();
	}

	/** "none", or the action and content recorded for a path. */
	std::string Record(const TCHAR* Path) const
	{
		const TMap<FString, FFileHistoryEntry>* Files = FFileHistory::Get().GetFileHistories().Find(FAgent::Get().GetUndoConversationId());
		const FFileHistoryEntry* Entry = Files ? Files->Find(FString(Path)) : nullptr;
		static const char* const Actions[] = { "None", "Creation", "Modification", "Deletion" };
		return Entry ? std::string(Actions[static_cast<int>(Entry->ActionType)]) + "|" + ToUtf8(Entry->Content) : "none";
	}
};

TEST(ToolTable, MissingFieldsShowTheLineAndAnswerTheirText)
{
	const char* const Fields = "Error: Missing required fields";
	const char* const Path = "Error: Missing required path field";
	const char* const Update = "Error: Missing required fields. Need path, old_string, and new_string.";
	const char* const Insert = "Error: Missing required fields. Need path, insert_line, and new_string.";
	struct FCase
	{
		const char* Tool;
		const char* Input;
		/** Null for none. */
		const char* Line;
		const char* Result;
	};
	const FCase Cases[] = {
		{ "create_file", R"({"path":"n.txt"})", "Creating File...", Fields },
		{ "create_file", R"({"file_text":"x"})", "Creating File...", Fields },
		{ "create_cpp_file", R"({"filepath":"Source"})", nullptr, Fields },
		{ "create_cpp_file", R"({"filename":"n.h","contents":"x"})", nullptr, Fields },
		{ "create_cpp_file", R"({"filepath":"Source","filename":"n.h"})", "Creating File ...", Fields },
		{ "create_cpp_file", R"({"filepath":"","filename":"a.txt"})", "Updating/Replacing File ...", Fields },
		{ "update_and_replace_cpp_file", R"({"filepath":"","filename":"a.txt"})", "Updating/Replacing File ...", Fields },
		{ "update_file", R"({"path":"a.txt","old_string":"one"})", "Updating File Content...", Update },
		{ "update_file", R"({"path":["a.txt"],"old_string":"one","new_string":"x"})", "Updating File Content...", Update },
		{ "insert_into_file", R"({"path":"a.txt","new_string":"x"})", "Inserting content into file...", Insert },
		{ "delete_file", "{}", "Deleting File...", Path },
		{ "delete_cpp_file", R"({"filepath":"x"})", "Deleting File...", Fields },
		{ "READ_file", R"({"path":null})", "Reading File...", Path },
		{ "get_filesystem_tree", "{}", nullptr, "Error: Missing dir_path field" },
		{ "modify_behavior_tree", "{}", nullptr, "Error: Unknown tool 'modify_behavior_tree'" },
	};
	FOpenConversation Talk;
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Tool) + Case.Input);
		Talk.Forget();
		EXPECT_EQ(Talk.RunTool(Case.Tool, Case.Input), Case.Result);
		EXPECT_EQ(Talk.Chat, Case.Line ? std::vector{ "progress|" + std::string(Case.Line) } : std::vector<std::string>());
	}
}

struct FToolCase
{
	const char* Name;
	const char* Tool;
	const char* Input;
	std::string Result;
	/** Of the chat behind the first line. */
	std::vector<std::string> Chat;
	const TCHAR* Path;
	std::string Record;
};

TEST(FileTools, EachChangeIsRecordedAndShown)
{
	const std::string Text = "one\ntwo\n";
	const std::string Missing = "Error: File does not exist: ";
	const FToolCase Cases[] = {
		{ "create", "create_file", R"({"path":"d/n.txt","file_text":"x"})", "File created successfully: d/n.txt", { "diff|d/n.txt||x" },
			TEXT("d/n.txt"), "Creation|x" },
		{ "create what is there", "create_file", R"({"path":"a.txt","file_text":"x"})", "Successfully replaced file: a.txt",
			{ "diff|a.txt|" + Text + "|x" }, TEXT("a.txt"), "Modification|" + Text },
		{ "create without a name", "create_file", R"({"path":"d/","file_text":"x"})", "Error: The provided path must include a filename",
			{}, TEXT("d/"), "none" },
		{ "create with an empty path", "create_file", R"({"path":"","file_text":"x"})", "Error: The provided path must include a filename",
			{}, TEXT(""), "none" },
		{ "create with a number for a text", "create_file", R"({"path":"n.txt","file_text":5})", "File created successfully: n.txt",
			{ "diff|n.txt||5" }, TEXT("n.txt"), "Creation|5" },
		{ "create below a file", "create_file", R"({"path":"a.txt/b/n.txt","file_text":"x"})",
			"Error: Failed to create directory: {DIR}a.txt/b", {}, TEXT("a.txt/b/n.txt"), "Creation|x" },
		{ "create C++", "create_cpp_file", R"({"filepath":"Source/Game","filename":"N.h","contents":"x"})",
			"File created successfully: Source/Game/N.h", { "diff|Source/Game/N.h||x" }, TEXT("Source/Game/N.h"), "Creation|x" },
		{ "create C++ that is there", "create_cpp_file", R"({"filepath":"./","filename":"a.txt","contents":"x"})",
			"Successfully replaced file: ./a.txt", { "diff|./a.txt|" + Text + "|x" }, TEXT("./a.txt"), "Modification|" + Text },
		{ "replace C++ that is not there", "update_and_replace_cpp_file", R"({"filepath":"x","filename":"n.h","contents":"x"})",
			Missing + "{DIR}x/n.h", {}, TEXT("x/n.h"), "none" },
		{ "update", "update_file", R"({"path":"a.txt","old_string":"one","new_string":"1"})",
			"Successfully updated file: a.txt with 1 replacements", { "diff|a.txt|" + Text + "|1\ntwo\n" }, TEXT("a.txt"),
			"Modification|" + Text },
		{ "update in vain", "update_file", R"({"path":"a.txt","old_string":"three","new_string":"3"})",
			"Error: String not found in file: a.txt", {}, TEXT("a.txt"), "Modification|" + Text },
		{ "update nothing", "update_file", R"({"path":"n.txt","old_string":"a","new_string":"b"})", Missing + "{DIR}n.txt", {},
			TEXT("n.txt"), "none" },
		{ "insert", "insert_into_file", R"({"path":"a.txt","insert_line":1,"new_string":"x"})",
			"Successfully inserted text at line 1 in file: a.txt", { "diff|a.txt|" + Text + "|one\nx\ntwo\n" }, TEXT("a.txt"),
			"Modification|" + Text },
		{ "insert at a word", "insert_into_file", R"({"path":"a.txt","insert_line":"abc","new_string":"x"})",
			"Successfully inserted text at line 0 in file: a.txt", { "diff|a.txt|" + Text + "|x\none\ntwo\n" }, TEXT("a.txt"),
			"Modification|" + Text },
		{ "insert far behind", "insert_into_file", R"({"path":"a.txt","insert_line":"99999999999","new_string":"x"})",
			"Successfully inserted text at line 2 in file: a.txt", { "diff|a.txt|" + Text + "|one\ntwo\nx\n" }, TEXT("a.txt"),
			"Modification|" + Text },
		{ "insert before the file", "insert_into_file", R"({"path":"a.txt","insert_line":"-1","new_string":"x"})",
			"Error: insert_line must be a non-negative integer.", {}, TEXT("a.txt"), "none" },
		{ "delete", "delete_file", R"({"path":"a.txt"})", "Successfully deleted file: a.txt", { "diff|a.txt|" + Text + "|" }, TEXT("a.txt"),
			"Deletion|" + Text },
		{ "delete nothing", "delete_file", R"({"path":"n.txt"})", "Error: File does not exist at path: n.txt", {}, TEXT("n.txt"), "none" },
		{ "delete C++", "delete_cpp_file", R"({"filepath":"Source/Game/Deep/","filename":"Hero.h"})",
			"Successfully deleted file: Source/Game/Deep/Hero.h", { "progress|Deleting File...", "diff|Source/Game/Deep/Hero.h|hero\n|" },
			TEXT("Source/Game/Deep/Hero.h"), "Deletion|hero\n" },
		{ "delete C++ that is not there", "delete_cpp_file", R"({"filepath":"Source","filename":"Hero.h"})",
			"Error: File does not exist at path: Source/Hero.h", { "progress|Deleting File..." }, TEXT("Source/Hero.h"), "none" },
	};
	for (const FToolCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Name);
		FOpenConversation Talk;
		std::string Result = Case.Result;
		if (const SIZE_T Place = Result.find("{DIR}"); Place != std::string::npos)
		{
			Result.replace(Place, 5, ToUtf8(Talk.Project.Dir()));
		}
		EXPECT_EQ(Talk.RunTool(Case.Tool, Case.Input), Result);
		ASSERT_FALSE(Talk.Chat.empty());
		Talk.Chat.erase(Talk.Chat.begin());
		EXPECT_THAT(Talk.Chat, ElementsAreArray(Case.Chat));
		EXPECT_EQ(Talk.Record(Case.Path), Case.Record);
	}
}

TEST(FileTools, Reading)
{
	struct FCase
	{
		const char* Input;
		const char* Result;
	};
	const FCase Cases[] = {
		{ R"({"path":"a.txt"})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":[2,-1]})", "two" },
		{ R"({"path":"a.txt","view_range":[1.9,"1"]})", "one" },
		{ R"({"path":"a.txt","view_range":[3,9]})",
			"Error: Invalid line range for file: a.txt (StartLine: 3, EndLine: 2, Total Lines: 2)" },
		// No range at all: the whole file.
		{ R"({"path":"a.txt","view_range":[0,5]})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":[3]})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":[1,0]})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":[1,-2]})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":[1e300,"x"]})", "one\ntwo\n" },
		{ R"({"path":"a.txt","view_range":"1-2"})", "one\ntwo\n" },
		// Found below Source by its name.
		{ R"({"path":"Hero.h"})", "hero\n" },
		{ R"({"path":"Wrong/Place/Hero.h","view_range":[1,1]})", "hero" },
		{ R"({"path":"None.h"})", "Error: File not found" },
		{ R"({"path":""})", "Error: File not found" },
	};
	FOpenConversation Talk;
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Input);
		EXPECT_EQ(Talk.RunTool("read_file", Case.Input), Case.Result);
	}
}

TEST(FileTools, AbsurdInputIsTakenAsItIs)
{
	FOpenConversation Talk;
	const std::string Large(10 << 20, 'x');
	EXPECT_EQ(Talk.RunTool("create_file", R"({"path":"large.txt","file_text":")" + Large + "\"}"), "File created successfully: large.txt");
	EXPECT_TRUE(Talk.Project.Read("large.txt") == Large);
	EXPECT_EQ(Talk.RunTool("create_file", R"({"path":")" + std::string(5000, 'p') + R"(","file_text":"x"})"),
		"Error: Failed to create file: " + std::string(5000, 'p'));
	EXPECT_EQ(Talk.RunTool("read_file", R"({"path":")" + std::string(5000, 'p') + R"("})"), "Error: File not found");
	EXPECT_EQ(Talk.RunTool("update_file", R"({"path":"a.txt","old_string":"\ud800","new_string":"x"})"),
		"Error: String not found in file: a.txt");
}
}
