#include "Support/Session.h"

#include <algorithm>

#include <gtest/gtest.h>

/** The headless face as a script sees it: lines in, events out, nothing else. */
namespace
{
using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

const Json Says = Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])");

double SecondsSince(Clock::time_point Start)
{
	return std::chrono::duration<double>(Clock::now() - Start).count();
}

TEST(Headless, AnswersALineThatIsNoCommandWithAnErrorAndGoesOn)
{
	const std::string Cases[] = {
		"",
		"  \t",
		"query",
		"7",
		"[]",
		R"("query")",
		"{",
		R"({"do":"query"} and more)",
		R"({"do":"query"}{"do":"query"})",
		R"({"do":"quer)",
		std::string("{\"do\":\"que\0ry\"}", 15),
		"\xff\xfe\x80",
		std::string(200000, '['),
		"{}",
		R"({"do":null})",
		R"({"do":["query"]})",
		R"({"do":"fly"})",
		R"({"do":"Start","text":"x"})",
		R"({"do":"start"})",
		R"({"do":"start","text":null})",
		R"({"do":"start","text":["x"]})",
		R"({"do":"regular"})",
		R"({"do":"continue"})",
		R"({"do":"continue","text":{}})",
		R"({"do":"end"})",
		R"({"do":"cancel"})",
		R"({"do":"wait"})",
		R"({"do":"wait","state":"Idle"})",
		R"({"do":"wait","state":["Nowhere"]})",
		R"({"do":"wait","state":[null]})",
		R"({"do":"wait","state":["Pause"],"timeout":"soon"})",
		R"({"do":"wait","state":["Pause"],"timeout":[]})",
		R"({"do":"tick"})",
		R"({"do":"tick","seconds":"x"})",
		R"({"do":"tick","seconds":-1})",
		R"({"do":"tool"})",
		R"({"do":"tool","input":{}})",
		R"({"do":"set"})",
		R"({"do":"set","name":"ApiKey"})",
		R"({"do":"set","value":"x"})",
		R"({"do":"set","name":"Nothing","value":"x"})",
		R"({"do":"set","name":"Mode","value":"Nonsense"})",
		R"({"do":"set","name":"Mode","value":7})",
		R"({"do":"set","name":"Mode","value":-1})",
		R"({"do":"set","name":"Mode","value":""})",
		R"({"do":"set","name":"Mode","value":null})",
		R"({"do":"set","name":"LogRetentionPolicy","value":["KeepAll"]})",
		R"({"do":"set","name":"ApiKey","value":null})",
		R"({"do":"set","name":"ApiKey","value":{"key":"x"}})",
		R"({"do":"set","name":"bDisplayFileChangesInChat","value":"perhaps"})",
		R"({"do":"set","name":"bDisplayFileChangesInChat","value":[]})",
		R"({"do":"set","name":"SupportedFileExtensions","value":"cpp"})",
		R"({"do":"set","name":"SupportedFileExtensions","value":[["cpp"]]})",
		R"({"do":"set","name":"AutoScrollPauseSeconds","value":"x"})",
		R"({"do":"key"})",
		R"({"do":"key","key":"Enter","shift":[]})",
		R"({"do":"click"})",
		R"({"do":"command","name":"CloseEverything"})",
		// There is no panel open.
		R"({"do":"type","text":"x"})",
		R"({"do":"key","key":"Enter","shift":false})",
		R"({"do":"click","button":"[ Start ]"})",
		R"({"do":"scroll"})",
		R"({"do":"widgets"})",
	};
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	const auto Before = Toy.ReadAll("");
	Session Editor(Toy);
	for (const std::string& Line : Cases)
	{
		SCOPED_TRACE(Line.substr(0, 80));
		Editor.SendLine(Line);
		const std::vector<Json> Events = Editor.Run({});
		EXPECT_EQ(Transcript(Events), Lines{ "error" });
		EXPECT_NE(Events.empty() ? "" : Events[0].value("message", ""), "");
	}
	EXPECT_EQ(Editor.GetState(), "Idle");
	EXPECT_TRUE(Service.GetLog().empty());
	EXPECT_EQ(Toy.ReadAll(""), Before) << "No settings were saved.";
}

TEST(Headless, KeepsASettingWhoseNewValueIsRefused)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	for (const Json& Command : { Set("Mode", "ExplainerAndImplementerMode"), Set("Mode", "Nonsense"), Set("Mode", 7), Set("Mode", nullptr),
			 Set("SupportedFileExtensions", Json::array({ "cpp" })), Set("SupportedFileExtensions", Json::array({ "h", Json::array() })) })
	{
		Editor.Send(Command);
	}
	Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") });
	EXPECT_EQ(LoggedRequests(Service, "POST").front()["body"].dump(),
		R"({"message":"go","file_structure":{"Source":{"Toy":{"Toy.cpp":"#"}}},"is_confirmation_mode":false})");
}

TEST(Headless, TakesLinesOfAnyFormAndLength)
{
	const Project Toy;
	Session Editor(Toy);
	Editor.SendBytes("\t{ \"do\" : \"query\" }\t\r\n");
	EXPECT_EQ(Transcript(Editor.Run({})), Lines{ "> Idle" });

	const std::string Large(4 << 20, 'x');
	Editor.Run({ { { "do", "tool" }, { "name", "create_file" }, { "id", "a" },
		{ "input", { { "path", "Large.txt" }, { "file_text", Large } } } } });
	EXPECT_EQ(Toy.Read("Large.txt"), Large);
	const std::vector<Json> Events =
		Editor.Run({ { { "do", "tool" }, { "name", "read_file" }, { "id", "b" }, { "input", { { "path", "Large.txt" } } } } });
	EXPECT_EQ(Events.back()["content"], Large);

	// Bytes that are no UTF-8 may be refused or replaced; what comes out is JSON in any case.
	Editor.SendBytes("{\"do\":\"tool\",\"name\":\"read_file\",\"id\":\"\xc3\x28\xff\",\"input\":{}}\n");
	const std::string Kind = Editor.Run({}).back()["event"];
	EXPECT_TRUE(Kind == "error" || Kind == "tool") << Kind;
}

TEST(Headless, RunsALastLineWithoutItsEnd)
{
	const Project Toy;
	Session Editor(Toy);
	Editor.SendBytes(R"({"do":"tool","name":"create_file","id":"a","input":{"path":"A.txt","file_text":"a"}})");
	const Lines Seen = Transcript(Editor.End());
	EXPECT_EQ(std::ranges::count(Seen, "tool|File created successfully: A.txt"), 1);
	EXPECT_EQ(Toy.Read("A.txt"), "a");
}

TEST(Headless, LeavesAtQuitAndRunsNothingBehindIt)
{
	const Project Toy;
	Session Editor(Toy);
	Editor.Send(Do("quit"));
	Editor.Send({ { "do", "tool" }, { "name", "create_file" }, { "id", "a" }, { "input", { { "path", "A.txt" }, { "file_text", "a" } } } });
	EXPECT_EQ(Transcript(Editor.End()), (Lines{ "user| [ Cancelled ]", "> Idle", "> Idle" }));
	EXPECT_FALSE(Toy.Has("A.txt"));
}

TEST(Headless, WaitsByTheRealClockAndAtOnceForWhatIsThere)
{
	const Project Toy;
	Session Editor(Toy);
	struct
	{
		Json Command;
		double AtLeast;
		const char* Seen;
	} const Cases[] = {
		{ { { "do", "wait" }, { "state", { "Pause", "Idle" } }, { "timeout", 20 } }, 0, "waited Idle" },
		{ { { "do", "wait" }, { "state", { "Idle" } }, { "timeout", 0 } }, 0, "waited Idle" },
		{ { { "do", "wait" }, { "state", Json::array() } }, 0, "waited Idle" },
		{ { { "do", "wait" }, { "state", { "Pause" } }, { "timeout", 0 } }, 0, "timed out" },
		{ { { "do", "wait" }, { "state", { "Pause", "PollRequest" } }, { "timeout", 0.4 } }, 0.4, "timed out" },
	};
	for (const auto& [Command, AtLeast, Seen] : Cases)
	{
		const auto Start = Clock::now();
		EXPECT_EQ(Transcript(Editor.Run({ Command })), Lines{ Seen }) << Command;
		EXPECT_GE(SecondsSince(Start), AtLeast) << Command;
		EXPECT_LT(SecondsSince(Start), AtLeast + 2) << Command;
	}
}

TEST(Headless, TicksByThePlatformsClock)
{
	const Project Toy;
	Session Editor(Toy);
	const auto Start = Clock::now();
	EXPECT_EQ(Transcript(Editor.Run({ { { "do", "tick" }, { "seconds", 0.6 * ClockRate } } })), Lines());
	EXPECT_GE(SecondsSince(Start), 0.58);
	EXPECT_LT(SecondsSince(Start), 3);
}

TEST(Headless, AnswersEachCommandBeforeTheNextOne)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	const Json Read = { { "do", "tool" }, { "name", "read_file" }, { "id", "r" }, { "input", { { "path", "Source/Toy/Toy.cpp" } } } };
	EXPECT_EQ(Transcript(Editor.Run({ Do("query"), Read, Do("start", "go"), Do("query"), Do("end", ""), Read, Do("fly"), Do("query") })),
		(Lines{ "> Idle", "progress|Reading File...", "tool|int Oil = 3;\n", "user| [ User Start ]\n\ngo\n", Sending, "> InitialRequest",
			"> InitialRequest", "user| [ User End ]", "> Idle", "> Idle", "progress|Reading File...", "tool|int Oil = 3;\n", "error",
			"> Idle" }));
}

TEST(Headless, MovesOnBetweenCommandsToo)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service);
	Session Editor(Toy);
	Editor.Send(Do("start", "go"));
	for (const char* State : { "InitialRequest", "PollRequest", "PollResponse", "AwaitingUpdate" })
	{
		EXPECT_EQ(Editor.Until("state").back()["state"], State);
	}
}

TEST(Headless, RunsToolsOutsideAConversation)
{
	struct
	{
		const char* Command;
		const char* Event;
	} const Cases[] = {
		{ R"({"do":"tool","name":"finish","id":"7","input":{}})",
			R"({"event":"tool","name":"finish","id":"7","content":"Finished","is_error":false})" },
		{ R"({"do":"tool","name":"READ_FILE","id":"r","input":{"PATH":"Source/Toy/Toy.cpp"}})",
			R"({"event":"tool","name":"READ_FILE","id":"r","content":"int Oil = 3;\n","is_error":false})" },
		{ R"({"do":"tool","name":"read_file","id":"r"})",
			R"({"event":"tool","name":"read_file","id":"r","content":"Error: Invalid input","is_error":true})" },
		{ R"({"do":"tool","name":"read_file","id":"r","input":null})",
			R"({"event":"tool","name":"read_file","id":"r","content":"Error: Invalid input","is_error":true})" },
		{ R"({"do":"tool","name":"read_file","id":"r","input":{}})",
			R"({"event":"tool","name":"read_file","id":"r","content":"Error: Missing required path field","is_error":true})" },
		{ R"({"do":"tool","name":"fly \"high\"","id":"","input":{}})",
			R"({"event":"tool","name":"fly \"high\"","id":"","content":"Error: Unknown tool 'fly \"high\"'","is_error":true})" },
	};
	const Project Toy;
	Session Editor(Toy);
	for (const auto& [Command, Event] : Cases)
	{
		Editor.SendLine(Command);
		EXPECT_EQ(Editor.Until("tool").back().dump(), Event);
		EXPECT_EQ(Editor.Query()["tool_results"], 0) << "The result went to the caller and nowhere else.";
	}
}

TEST(Headless, ABlueprintIsThereAfterARestart)
{
	const auto RunTool = [](Session& Editor, const char* Name, const Json& Input)
	{
		Editor.Send({ { "do", "tool" }, { "name", Name }, { "id", "" }, { "input", Input } });
		return Editor.Until("tool").back().value("content", "");
	};
	const Json View = { { "blueprint_name", "BP_Door" }, { "data_subset", "All" } };
	const Project Toy;
	std::string Before;
	{
		Session Editor(Toy);
		EXPECT_EQ(
			RunTool(Editor, "create_blueprint", { { "BPPath", "/Game/Doors" }, { "BPName", "BP_Door" }, { "BPParentClassName", "Actor" } }),
			"Success: Blueprint 'BP_Door' created at '/Game/Doors'.");
		RunTool(Editor, "save_and_compile_all_dirty_blueprints", Json::object());
		Before = RunTool(Editor, "read_blueprint", View);
		EXPECT_EQ(Json::parse(Before).value("Path", ""), "/Game/Doors/BP_Door.BP_Door");
		Editor.Send(Do("transactions"));
		EXPECT_EQ(Editor.Until("transactions").back().dump(), R"({"event":"transactions","titles":[],"undone":0})");
	}
	Session Again(Toy);
	EXPECT_EQ(RunTool(Again, "read_blueprint", View), Before);
}

TEST(Headless, ReportsAChangeOfAFileWithItsTexts)
{
	const Project Toy;
	Session Editor(Toy);
	Editor.SendLine(
		R"({"do":"tool","name":"update_file","id":"u","input":{"path":"Source/Toy/Toy.cpp","old_string":"3","new_string":"\u00fc"}})");
	const std::vector<Json> Events = Editor.Until("diff");
	EXPECT_EQ(Events.back().dump(), R"({"event":"diff","path":"Source/Toy/Toy.cpp","old":"int Oil = 3;\n","new":"int Oil = ü;\n"})");
}

TEST(Headless, SetsFieldsOfEveryTypeAndSavesThemWhenAsked)
{
	const ServiceProcess Service(Says);
	const Project Toy;
	Toy.Connect(Service, "");
	Toy.Write("Source/Toy/Notes.md", "x");
	Toy.Write("Attic/Old.md", "x");
	const Lines NoEvent;
	{
		Session Editor(Toy);
		EXPECT_EQ(Transcript(Editor.Run({ Set("ApiKey", "a \"key\" = \\ \u00fc;"), Set("Mode", "ExplainerAndImplementerMode"),
					  Set("bDisplayFileChangesInChat", false), Set("AutoScrollPauseSeconds", 2.5),
					  Set("SupportedFileExtensions", { "md", "CPP" }), Set("ExcludedDirectories", { "Attic" }) })),
			NoEvent);
		EXPECT_FALSE(Toy.Has("Config/DefaultEditorPerUserSettings.ini"));
		Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") });
		Json Save = Set("LogRetentionPolicy", "KeepAll");
		Save["save"] = true;
		EXPECT_EQ(Transcript(Editor.Run({ Save })), NoEvent);
	}
	const std::string Saved = Toy.Read("Config/DefaultEditorPerUserSettings.ini");
	EXPECT_NE(Saved.find("[/Script/Kestrin.KestrinSettings]"), std::string::npos) << Saved;
	EXPECT_NE(Saved.find("\nLogRetentionPolicy=KeepAll\n"), std::string::npos) << Saved;
	EXPECT_NE(Saved.find("\nbDisplayFileChangesInChat=False\n"), std::string::npos) << Saved;
	EXPECT_EQ(Saved.find("Mode"), std::string::npos) << "The mode lasts for the session.";
	EXPECT_EQ(Saved.find("AutoScroll"), std::string::npos);

	// Another session finds what was saved.
	Session Editor(Toy);
	Editor.Run({ Do("start", "go"), WaitFor("AwaitingUpdate") });
	const auto Posts = LoggedRequests(Service, "POST");
	ASSERT_EQ(Posts.size(), 2u);
	EXPECT_EQ(Posts[0]["body"].dump(),
		R"({"message":"go","file_structure":{"Source":{"Toy":{"Notes.md":"#","Toy.cpp":"#"}}},"is_confirmation_mode":false})");
	EXPECT_EQ(Posts[1]["body"].dump(),
		R"({"message":"go","file_structure":{"Source":{"Toy":{"Notes.md":"#","Toy.cpp":"#"}}},"is_confirmation_mode":true})");
	for (const Json& Post : Posts)
	{
		const auto Headers = Post["headers"].get<std::vector<std::pair<std::string, std::string>>>();
		EXPECT_EQ(std::ranges::count(Headers, std::pair<std::string, std::string>("x-api-key", "a \"key\" = \\ \u00fc;")), 1) << Post;
	}
}

TEST(Headless, ATickedResetButtonRestoresTheListAndSaves)
{
	const Project Toy;
	Session Editor(Toy);
	Editor.Run(
		{ Set("SupportedFileExtensions", { "md" }), Set("ExcludedDirectories", { "Attic" }), Set("bResetSupportedFileExtensions", true) });
	const std::string Saved = Toy.Read("Config/DefaultEditorPerUserSettings.ini");
	EXPECT_NE(Saved.find("SupportedFileExtensions=uproject\n"), std::string::npos) << Saved;
	EXPECT_EQ(Saved.find("SupportedFileExtensions=md"), std::string::npos) << Saved;
	EXPECT_NE(Saved.find("ExcludedDirectories=Attic\n"), std::string::npos) << Saved;
	EXPECT_EQ(Saved.find("bReset"), std::string::npos) << Saved;
}
}
