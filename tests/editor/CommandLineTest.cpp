#include "Support/Session.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

/** The program's arguments, the projects that it opens and the plug-in that it takes. */
namespace
{
using Arguments = std::vector<std::string>;

/** The plug-in that the editor brings along. */
fs::path BuiltPlugin()
{
	const Project Toy;
	return Session(Toy).GetReady().value("plugin", "");
}

void CopyPlugin(const fs::path& To)
{
	fs::create_directories(To.parent_path());
	fs::copy(BuiltPlugin(), To, fs::copy_options::recursive);
}

TEST(CommandLine, TellsItsOptionsAndItsVersion)
{
	const Ending Help = RunEditor({ "--help" });
	EXPECT_EQ(Help.Code, 0);
	for (const char* Word :
		{ "PROJECT.uproject", "--window", "--screenshot FILE", "--headless", "--terminal", "--call TOOL JSON", "--clock-rate", "--log", "--plugin", "--version" })
	{
		EXPECT_NE(Help.Out.find(Word), std::string::npos) << Word;
	}
	const Ending Version = RunEditor({ "--version" });
	EXPECT_EQ(Version.Code, 0);
	EXPECT_NE(Version.Out.find("1.0.0"), std::string::npos) << Version.Out;
}

TEST(CommandLine, RefusesWhatItCannotDoAndSaysWhy)
{
	const Project Toy;
	Toy.Write("Broken.uproject", "{\"FileVersion\": 3, \"Plug");
	Toy.Write("List.uproject", "[]");
	Toy.Write("Empty.uproject", "");
	Toy.Write("Binary.uproject",
		std::string("\x7f"
					"ELF\0\xff",
			6));
	const std::string File = Toy.GetFile();
	const auto Beside = [&](const char* Name) { return (Toy.GetFolder() / Name).string(); };
	struct
	{
		Arguments Given;
		/** What the message names. */
		std::string Named;
	} const Cases[] = {
		{ {}, "project" },
		{ { "--headless" }, "project" },
		{ { Beside("Missing.uproject") }, "Missing.uproject" },
		{ { Toy.GetFolder().string() }, Toy.GetFolder().string() },
		{ { Beside("Broken.uproject") }, "Broken.uproject" },
		{ { Beside("List.uproject") }, "List.uproject" },
		{ { Beside("Empty.uproject") }, "Empty.uproject" },
		{ { Beside("Binary.uproject") }, "Binary.uproject" },
		{ { File, File }, File },
		{ { File, "--fly" }, "--fly" },
		{ { File, "-h" }, "-h" },
		{ { File, "--call" }, "--call" },
		{ { File, "--call", "read_file" }, "--call" },
		{ { File, "--call", "finish", "{}", "--headless" }, "--headless" },
		{ { File, "--headless", "--terminal" }, "--terminal" },
		{ { File, "--window", "--headless" }, "--headless" },
		{ { File, "--screenshot" }, "--screenshot" },
		{ { File, "--screenshot", "" }, "--screenshot" },
		{ { File, "--terminal", "--screenshot", "a.png" }, "--screenshot" },
		{ { File, "--screenshot", "a.png", "--call", "finish", "{}" }, "--screenshot" },
		{ { File, "--clock-rate" }, "--clock-rate" },
		{ { File, "--clock-rate", "0" }, "--clock-rate" },
		{ { File, "--clock-rate", "-2" }, "--clock-rate" },
		{ { File, "--clock-rate", "fast" }, "--clock-rate" },
		{ { File, "--clock-rate", "2x" }, "--clock-rate" },
		{ { File, "--clock-rate", "nan" }, "--clock-rate" },
		{ { File, "--clock-rate", "inf" }, "--clock-rate" },
		{ { File, "--log" }, "--log" },
		{ { File, "--log", "/nowhere/log" }, "/nowhere/log" },
		{ { File, "--plugin" }, "--plugin" },
		{ { File, "--plugin", "/nowhere" }, "/nowhere" },
		{ { File, "--plugin", Toy.GetFolder().string() }, Toy.GetFolder().string() },
	};
	for (const auto& [Given, Named] : Cases)
	{
		const Ending Result = RunEditor(Given, "{\"do\":\"query\"}\n");
		const std::string Line = ::testing::PrintToString(Given);
		EXPECT_GT(Result.Code, 0) << Line;
		EXPECT_EQ(Result.Out, "") << Line;
		EXPECT_NE(Result.Error.find(Named), std::string::npos) << Line << ": " << Result.Error;
	}
}

TEST(CommandLine, CallsToolsInOrder)
{
	const Project Toy;
	struct
	{
		Arguments Calls;
		int Code;
		std::string Out;
	} const Cases[] = {
		{ { "--call", "create_file", R"({"path":"A.txt","file_text":"a"})", "--call", "update_file",
			  R"({"path":"A.txt","old_string":"a","new_string":"\u00fc\n"})", "--call", "read_file", R"({"path":"A.txt"})" },
			0,
			"{\"tool\":\"create_file\",\"content\":\"File created successfully: A.txt\",\"is_error\":false}\n"
			"{\"tool\":\"update_file\",\"content\":\"Successfully updated file: A.txt with 1 replacements\",\"is_error\":false}\n"
			"{\"tool\":\"read_file\",\"content\":\"\u00fc\\n\",\"is_error\":false}\n" },
		{ { "--call", "fly", "{}", "--call", "finish", "{}" }, 1,
			"{\"tool\":\"fly\",\"content\":\"Error: Unknown tool 'fly'\",\"is_error\":true}\n"
			"{\"tool\":\"finish\",\"content\":\"Finished\",\"is_error\":false}\n" },
		{ { "--call", "read_file", "{}" }, 1,
			"{\"tool\":\"read_file\",\"content\":\"Error: Missing required path field\",\"is_error\":true}\n" },
		{ { "--call", "get_filesystem_tree", R"({"dir_path":"Source"})" }, 0,
			"{\"tool\":\"get_filesystem_tree\",\"content\":\"{\\\"Toy\\\":{\\\"Toy.cpp\\\":\\\"#\\\"}}\",\"is_error\":false}\n" },
	};
	for (const auto& [Calls, Code, Out] : Cases)
	{
		Arguments Given = { Toy.GetFile() };
		Given.insert(Given.end(), Calls.begin(), Calls.end());
		const Ending Result = RunEditor(Given);
		EXPECT_EQ(Result.Code, Code) << Result.Error;
		EXPECT_EQ(Result.Out, Out);
	}
}

TEST(CommandLine, WaitsForACompileThatGoesOnInTheBackground)
{
	const Project Toy;
	Toy.Write("Config/DefaultEditorPerProjectUserSettings.ini", "[/Script/LiveCoding.LiveCodingSettings]\nbEnabled=False\n");
	const Ending Result = RunEditor({ Toy.GetFile(), "--call", "compile", "{}", "--call", "finish", "{}" });
	EXPECT_EQ(Result.Code, 0);
	EXPECT_EQ(Result.Out,
		R"({"tool":"compile","content":"Toy has no C++ modules: there is nothing to compile\n\n)"
		R"([LogCompile] Toy has no C++ modules: there is nothing to compile","is_error":false})"
		"\n"
		R"({"tool":"finish","content":"Finished","is_error":false})"
		"\n");
}

TEST(CommandLine, CallsNothingWithInputThatIsNoJson)
{
	const Project Toy;
	for (const char* Input : { "", "{", "[]", "path", "{\"path\":\"Source/Toy/Toy.cpp\"" })
	{
		const Ending Result = RunEditor({ Toy.GetFile(), "--call", "read_file", Input });
		EXPECT_GT(Result.Code, 0) << Input;
		EXPECT_EQ(Result.Out.find("Oil"), std::string::npos) << Input;
		EXPECT_NE((Result.Out + Result.Error).find("rror"), std::string::npos) << Input;
	}
}

TEST(CommandLine, WritesItsLogWhereItIsTold)
{
	const Project Toy;
	Toy.Connect(1);
	const std::string Log = (Toy.GetFolder() / "editor.log").string();
	const std::string Input = Do("start", "go").dump() + "\n" + WaitFor("Idle").dump() + "\n";
	const Ending Quiet = RunEditor({ Toy.GetFile(), "--headless", "--log", Log }, Input);
	EXPECT_EQ(Quiet.Code, 0);
	EXPECT_EQ(Quiet.Error, "");
	EXPECT_NE(ReadText(Log).find("127.0.0.1:1/prod/command"), std::string::npos) << ReadText(Log);
	const Ending Loud = RunEditor({ Toy.GetFile(), "--headless" }, Input);
	EXPECT_NE(Loud.Error.find("127.0.0.1:1/prod/command"), std::string::npos) << Loud.Error;
}

TEST(CommandLine, OpensAProjectUnderAnyPath)
{
	const ServiceProcess Service(Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])"));
	std::string Deep = "M\u00fcllers Gro\u00dfes Spiel (2)/\u4e2d\u6587 \U0001F41D";
	while (Deep.size() < 300)
	{
		Deep += "/a folder with a long name, #" + std::to_string(Deep.size());
	}
	for (const std::string& Folder : { std::string("Build"), std::string("100% %s"), Deep })
	{
		SCOPED_TRACE(Folder);
		const Project Toy(Folder);
		Toy.Connect(Service);
		const Ending Called =
			RunEditor({ Toy.GetFile(), "--call", "create_file", R"({"path":"\u00e4 b/C.txt","file_text":"c"})", "--call", "read_file",
				R"({"path":"Missing.txt"})", "--call", "update_file", R"({"path":"Missing.txt","old_string":"a","new_string":"b"})" });
		EXPECT_EQ(Called.Code, 1);
		EXPECT_EQ(Toy.Read("\u00e4 b/C.txt"), "c");
		EXPECT_NE(Called.Out.find("Error: File does not exist: " + (Toy.GetFolder() / "Missing.txt").string()), std::string::npos)
			<< Called.Out;
		Session Editor(Toy);
		EXPECT_EQ(Editor.GetReady().value("project", ""), Toy.GetFile());
		const auto Seen = Transcript(Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") }));
		EXPECT_EQ(Seen.back(), "waited AwaitingUpdate");
	}
	EXPECT_EQ(LoggedRequests(Service, "POST").size(), 3u);
}

TEST(CommandLine, TakesAProjectByARelativePath)
{
	const Project Toy;
	const fs::path Before = fs::current_path();
	fs::current_path(Toy.GetFolder() / "Source");
	const Ending Result = RunEditor({ "../Toy.uproject", "--call", "read_file", R"({"path":"Source/Toy/Toy.cpp"})" });
	fs::current_path(Before);
	EXPECT_EQ(Result.Code, 0) << Result.Error;
	EXPECT_EQ(Result.Out, "{\"tool\":\"read_file\",\"content\":\"int Oil = 3;\\n\",\"is_error\":false}\n");
}

TEST(CommandLine, TakesThePluginThatIsNearest)
{
	const Project Toy;
	EXPECT_EQ(Session(Toy).GetReady().value("version", ""), "1.0.0");

	const TemporaryDirectory Elsewhere;
	CopyPlugin(Elsewhere / "copy");
	EXPECT_EQ(Session(Toy, { "--plugin", (Elsewhere / "copy").string() }).GetReady().value("plugin", ""), (Elsewhere / "copy").string());

	// A folder of logs is no plug-in.
	Toy.Write("Plugins/kestrin-unreal/Logs/KestrinPrompts_2001-01-01.log", "x");
	EXPECT_EQ(Session(Toy).GetReady().value("plugin", ""), BuiltPlugin().string());

	fs::remove_all(Toy.GetFolder() / "Plugins");
	CopyPlugin(Toy.GetFolder() / "Plugins/kestrin-unreal");
	Session Own(Toy);
	EXPECT_EQ(Own.GetReady().value("plugin", ""), (Toy.GetFolder() / "Plugins/kestrin-unreal").string());
	EXPECT_EQ(Own.GetState(), "Idle");
	EXPECT_EQ(Session(Toy, { "--plugin", (Elsewhere / "copy").string() }).GetReady().value("plugin", ""), (Elsewhere / "copy").string());
}

TEST(CommandLine, NamesThePluginThatCannotBeLoaded)
{
	const Project Toy;
	const TemporaryDirectory Copies;
	CopyPlugin(Copies / "copy");
	for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Copies / "copy"))
	{
		if (Entry.path().extension() == ".so")
		{
			WriteText(Entry.path(), "no library");
		}
	}
	WriteText(Copies / "copy" / "Notes.txt", "");
	const Ending Spoiled = RunEditor({ Toy.GetFile(), "--plugin", (Copies / "copy").string() });
	EXPECT_GT(Spoiled.Code, 0);
	EXPECT_EQ(Spoiled.Out, "");
	EXPECT_NE(Spoiled.Error.find("Kestrin"), std::string::npos) << Spoiled.Error;

	WriteText(Copies / "copy" / "Kestrin.uplugin", "{ \"FileVersion\": 3, ");
	const Ending Broken = RunEditor({ Toy.GetFile(), "--plugin", (Copies / "copy").string() });
	EXPECT_GT(Broken.Code, 0);
	EXPECT_EQ(Broken.Out, "");
	EXPECT_NE(Broken.Error.find("Kestrin.uplugin"), std::string::npos) << Broken.Error;
}
}
