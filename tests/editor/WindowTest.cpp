#include "Support/Session.h"

#include <cstdlib>
#include <cstring>

#include <arpa/inet.h>
#include <gtest/gtest.h>

/** The main window, driven through the headless commands and looked at through its picture; no display is needed. */
namespace
{
const char* const Platform = "QT_QPA_PLATFORM";

/** Of the test and the programs that it starts, for as long as it lives; null takes the variable away. */
class Variable
{
public:
	Variable(const char* InName, const char* Value)
		: Name(InName)
	{
		const char* const Old = getenv(Name);
		bHad = Old != nullptr;
		Before = bHad ? Old : "";
		Value ? setenv(Name, Value, 1) : unsetenv(Name);
	}
	~Variable() { bHad ? setenv(Name, Before.c_str(), 1) : unsetenv(Name); }
	Variable(const Variable&) = delete;
	Variable& operator=(const Variable&) = delete;

private:
	const char* Name;
	bool bHad;
	std::string Before;
};

struct Size
{
	uint32_t Width = 0;
	uint32_t Height = 0;
	bool operator==(const Size&) const = default;
};

/** Of a PNG file, from its header; none of another file. */
Size GetPictureSize(const std::string& Bytes)
{
	constexpr std::string_view Header("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
	if (Bytes.size() < 24 || !Bytes.starts_with(Header))
	{
		return {};
	}
	Size Read;
	std::memcpy(&Read, Bytes.data() + Header.size(), sizeof Read);
	return { ntohl(Read.Width), ntohl(Read.Height) };
}

class Window : public ::testing::Test
{
protected:
	std::string GetPicture() const { return (Toy.GetFolder() / "window.png").string(); }
	std::vector<std::string> GetOptions() const
	{
		return { "--window", "--screenshot", GetPicture(), "--clock-rate", std::to_string(ClockRate) };
	}
	/** One session; the picture's bytes. */
	std::string Picture(const std::vector<Json>& Commands) const
	{
		std::filesystem::remove(GetPicture());
		Session Editor(Toy, GetOptions());
		Editor.Run(Commands);
		Editor.End();
		return ReadText(GetPicture());
	}

	const Variable Offscreen{ Platform, "offscreen" };
	const Project Toy;
};

const Json Exit = { { "do", "command" }, { "name", "Exit" } };

TEST_F(Window, ShowsAConversation)
{
	const ServiceProcess Service(Json::parse(R"([ { "answer": [ "Good." ], "auto_continue": true } ])"));
	Toy.Connect(Service);
	const std::string Fresh = Picture({});
	// Without "panel" before: in a first run the assistant is open.
	const std::string Talked = Picture({ Do("type", "go"), { { "do", "click" }, { "button", "[ Start ]" } }, WaitFor("AwaitingUpdate") });
	EXPECT_EQ(PostedBodies(Service).at(0)["message"], "go");
	EXPECT_EQ(GetPictureSize(Fresh), (Size{ 800, 800 })) << "as large as the screen that there is";
	EXPECT_EQ(GetPictureSize(Talked), GetPictureSize(Fresh));
	EXPECT_NE(Talked, Fresh);
}

TEST_F(Window, TellsAllLinesOfAPanelThatWasOpenFromTheStart)
{
	Session Editor(Toy, GetOptions());
	// Refused without a service: the lines say so in the panel and on the wire.
	const std::vector<std::string> Seen = Transcript(Editor.Run({ Do("start", "go"), WaitFor("Idle") }));
	EXPECT_EQ(Seen.at(0), "user| [ User Start ]\n\ngo\n");
	Editor.Send(Do("widgets"));
	EXPECT_NE(Editor.Until("widgets").back()["root"].dump().find("[ User Start ]"), std::string::npos);
}

TEST_F(Window, KeepsItsTabsForTheNextRun)
{
	const char* const Layout = "Saved/Config/EditorWindow.ini";
	const auto IsPanelOpen = [this]
	{
		Session Editor(Toy, GetOptions());
		Editor.Send(Do("widgets"));
		const Json Answer = Editor.Next();
		return Answer.value("event", "") == "widgets";
	};
	EXPECT_TRUE(IsPanelOpen());
	std::string Kept = Toy.Read(Layout);
	const size_t Tabs = Kept.find("Tabs=Kestrin\n");
	ASSERT_NE(Tabs, std::string::npos) << Kept;
	Toy.Write(Layout, Kept.replace(Tabs, 13, "Tabs=Another\n"));
	EXPECT_FALSE(IsPanelOpen());
	EXPECT_NE(Toy.Read(Layout).find("Tabs=@Invalid()"), std::string::npos) << "no tab was open in the end";
	EXPECT_FALSE(IsPanelOpen());
	Toy.Write(Layout, std::string("\0[General\xff", 10));
	EXPECT_TRUE(IsPanelOpen());
}

TEST_F(Window, FiresTheCommandsOfItsMenus)
{
	Session Editor(Toy, GetOptions());
	const auto Fire = [](const char* Name) { return Json{ { "do", "command" }, { "name", Name } }; };
	EXPECT_EQ(Transcript(Editor.Run({ Fire("Undo") })), (std::vector<std::string>{ "error" })) << "there is nothing to undo";
	Editor.Run({ Json::parse(R"({"do":"tool","name":"create_blueprint","id":"1",
			"input":{"BPPath":"/Game","BPName":"BP_Post","BPParentClassName":"Actor"}})"),
		Json::parse(R"({"do":"tool","name":"modify_blueprint_variables","id":"2",
			"input":{"blueprint_name":"BP_Post","updates":"{\"Variables\":{\"Oil\":{\"Type\":{\"Category\":\"int\"}}}}"}})") });
	const auto CountUndone = [&Editor]
	{
		Editor.Send(Do("transactions"));
		const Json Event = Editor.Until("transactions").back();
		return Event["titles"].empty() ? -1 : Event["undone"].get<int>();
	};
	EXPECT_EQ(CountUndone(), 0);
	EXPECT_EQ(Transcript(Editor.Run({ Fire("Undo") })), std::vector<std::string>());
	EXPECT_EQ(CountUndone(), 1);
	EXPECT_EQ(Transcript(Editor.Run({ Fire("Redo"), Fire("OutputLog"), Fire("ProjectSettings") })), std::vector<std::string>());
	EXPECT_EQ(CountUndone(), 0);
}

TEST_F(Window, EndsWhenItIsClosed)
{
	Program Editor({ Toy.GetFile(), "--window", "--screenshot", GetPicture() });
	Editor.Write(Exit.dump() + "\n");
	EXPECT_TRUE(Editor.ReadUntil("\"ready\"").ends_with("\"ready\""));
	while (Editor.ReadLine(20))
	{
	}
	// The input is still open.
	EXPECT_EQ(GetPictureSize(ReadText(GetPicture())), (Size{ 800, 800 }));
	EXPECT_EQ(Editor.Finish().Code, 0);
}

TEST_F(Window, SaysWhyThereIsNone)
{
	const struct
	{
		const char* Platform;
		const char* Display;
		const char* Named;
	} Cases[] = {
		{ nullptr, nullptr, "DISPLAY" },
		{ nullptr, "", "DISPLAY" },
		{ nullptr, ":1977", "no window can be opened: could not connect to display :1977" },
		{ "moon", nullptr, "no window can be opened: Could not find the Qt platform plugin \"moon\"" },
	};
	const Variable Wayland("WAYLAND_DISPLAY", nullptr);
	for (const auto& Case : Cases)
	{
		const Variable Chosen(Platform, Case.Platform);
		const Variable Display("DISPLAY", Case.Display);
		const Ending Result = RunEditor({ Toy.GetFile(), "--window" });
		EXPECT_EQ(Result.Code, 2) << Result.Error;
		EXPECT_EQ(Result.Out, "");
		EXPECT_NE(Result.Error.find("kestrin-editor: "), std::string::npos) << Result.Error;
		EXPECT_NE(Result.Error.find(Case.Named), std::string::npos) << Result.Error;
	}
}

TEST(Screenshot, OfThePanelNeedsNoDisplay)
{
	const Variable Variables[] = { { Platform, nullptr }, { "DISPLAY", ":1977" }, { "WAYLAND_DISPLAY", nullptr } };
	const Project Toy;
	const std::string File = (Toy.GetFolder() / "panel.png").string();
	const std::string Open = Do("panel").dump() + "\n";
	EXPECT_EQ(RunEditor({ Toy.GetFile(), "--headless", "--screenshot", File }, Open).Code, 0);
	const std::string Empty = ReadText(File);
	EXPECT_EQ(GetPictureSize(Empty), (Size{ 1000, 800 }));
	EXPECT_EQ(RunEditor({ Toy.GetFile(), "--screenshot", File }, Open + Do("type", "What shines?").dump() + "\n").Code, 0);
	EXPECT_EQ(GetPictureSize(ReadText(File)), (Size{ 1000, 800 }));
	EXPECT_NE(ReadText(File), Empty);
	EXPECT_FALSE(Toy.Has("Saved/Config/EditorWindow.ini"));

	std::filesystem::remove(File);
	const Ending Closed = RunEditor({ Toy.GetFile(), "--headless", "--screenshot", File });
	EXPECT_EQ(Closed.Code, 1);
	EXPECT_NE(Closed.Out.find("\"event\":\"error\""), std::string::npos) << Closed.Out;
	EXPECT_FALSE(std::filesystem::exists(File));
}

TEST(Screenshot, ThatCannotBeWrittenIsAnError)
{
	const Variable Offscreen(Platform, "offscreen");
	const Project Toy;
	const std::string Folder = Toy.GetFolder().string();
	for (const char* const Face : { "--headless", "--window" })
	{
		for (const std::string& File : { Folder + "/missing/a.png", Folder })
		{
			const Ending Result = RunEditor({ Toy.GetFile(), Face, "--screenshot", File }, Do("panel").dump() + "\n");
			EXPECT_EQ(Result.Code, 1) << Face;
			EXPECT_NE(Result.Error.find("kestrin-editor: " + File), std::string::npos) << Result.Error;
		}
	}
}
}
