#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "KestrinSettings.h"
#include "Support/Panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace
{
using Texts = std::vector<std::string>;

void Show(const std::string& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(
		FUtf8::Decode(Text), FKestrinInterface::MessageColor, FKestrinInterface::ItalicFontName, 8.0f);
}

void Scroll(const FPanel& Panel)
{
	FString Error;
	EXPECT_TRUE(Panel.GetDriver().Scroll(false, Error));
}

struct FChatCase
{
	const char* Name;
	Texts Messages;
	Texts Blocks;
};

class PanelChat : public testing::TestWithParam<FChatCase>
{
};

TEST_P(PanelChat, ShowsWhatIsNew)
{
	const FPanel Panel;
	for (const std::string& Message : GetParam().Messages)
	{
		Show(Message);
	}
	EXPECT_EQ(Panel.GetBlocks(), GetParam().Blocks);
}

const std::string Kestrin = " [ Kestrin ] \n\n";
const std::string User = " [ User ]\n\n";

const FChatCase Chats[] = {
	{ "TheWelcomesHeaderIsNotRepeated", { Kestrin + "Hello\n" }, { "Hello" } },
	{ "TheHeaderIgnoresCase", { " [ KESTRIN ] \n\nHello\n" }, { "Hello" } },
	{ "TwoSpeakersKeepTheirHeaders", { User + "a\n", Kestrin + "b\n", User + "c\n" }, { User + "a\n", Kestrin + "b\n", User + "c\n" } },
	{ "ASpeakerInARow", { User + "a\n", User + "b\n\nc\n", User + "  d" }, { User + "a\n", "b\n\nc", "d" } },
	{ "NothingButAHeader", { Kestrin, " [ Kestrin ] ", " [ Kestrin ] \n", " [ Kestrin ] \r\n\r\n\r\n" }, {} },
	{ "AnyFirstLineEndsTheRun", { "Compilation successful!", Kestrin + "a", "Compilation successful!" },
		{ "Compilation successful!", Kestrin + "a", "Compilation successful!" } },
	{ "TheSameLineTwice", { "Done!", "Done!" }, { "Done!" } },
	{ "ATransientLineIsNoHeader", { "Reading...", Kestrin + "a" }, { "a" } },
	{ "AnEmptyMessage", { "", "\n" }, { "\n" } },
	{ "ATransientLineGivesWayToTheNext", { "Reading File...", "Processing request..." }, { "Processing request..." } },
	{ "ATransientLineGoes", { "Compiling...", "Compilation successful!" }, { "Compilation successful!" } },
	{ "OnlyToolNames", { "read_file", "**", "create_blueprintREAD_FILE" }, {} },
	{ "WordsAreStrippedWhereverTheyStand", { "x modify_blueprint_variables **bold** Create_Cpp_File" }, { "x _variables bold " } },
	{ "OneWordMayUncoverALaterOne", { "get_blueread_fileprint_summary get_bluecreate_blueprintprint_summary" }, { " " } },
	{ "DotsBehindAMarkAreTransient", { "Working...**", "Next" }, { "Next" } },
	{ "ButTheirFirstLineWasAHeader", { "Working...**", "Working...**\nmore" }, { "more" } },
	{ "MarkupAndControlCharactersStay", { "<b>&amp;</b>\t\x01" }, { "<b>&amp;</b>\t\x01" } },
};

INSTANTIATE_TEST_SUITE_P(Panel, PanelChat, testing::ValuesIn(Chats), [](const auto& Info) { return std::string(Info.param.Name); });

TEST(PanelBlocks, ATransientLinesDotsMove)
{
	const FPanel Panel;
	Show("Reading File...");
	for (const char* const Shown : { "Reading File.", "Reading File..", "Reading File...", "Reading File", "Reading File." })
	{
		FMainLoop::RunFor(0.5);
		EXPECT_EQ(Panel.GetBlocks(), Texts{ Shown });
	}
	FMainLoop::RunFor(0.3);
	Show("...");
	FMainLoop::RunFor(0.3);
	EXPECT_EQ(Panel.GetBlocks(), Texts{ "..." }) << "the new line's own time has begun";
	FMainLoop::RunFor(0.3);
	EXPECT_EQ(Panel.GetBlocks(), Texts{ "." });
	Show("Done");
	FMainLoop::RunFor(5.0);
	EXPECT_EQ(Panel.GetBlocks(), Texts{ "Done" });
}

TEST(PanelBlocks, TheLogGetsWhatStays)
{
	const FPanel Panel;
	Show("Reading File...");
	Show(User + "**a** read_file\n");
	Show("read_file");
	EXPECT_EQ(Panel.GetLog(), "\n> " + User + "a \n\n\n");
}

TEST(PanelBlocks, TheUsersScrollHoldsTheViewForAWhile)
{
	FPanel Panel;
	Show("a");
	EXPECT_TRUE(Panel.IsAtEnd());
	Scroll(Panel);
	Show("b");
	EXPECT_FALSE(Panel.IsAtEnd());
	FMainLoop::RunFor(9.9);
	Show("c");
	EXPECT_FALSE(Panel.IsAtEnd());
	FMainLoop::RunFor(0.2);
	EXPECT_FALSE(Panel.IsAtEnd());
	Show("d");
	EXPECT_TRUE(Panel.IsAtEnd());

	Scroll(Panel);
	Panel.Type("go");
	Panel.Click("[ Start ]");
	EXPECT_TRUE(Panel.IsAtEnd()) << "a button's own scroll";
	FMainLoop::RunFor(11.0);

	GetMutableDefault<UKestrinSettings>()->AutoScrollPauseSeconds = 2.0f;
	Scroll(Panel);
	FMainLoop::RunFor(2.1);
	Show("e");
	EXPECT_TRUE(Panel.IsAtEnd());
	GetMutableDefault<UKestrinSettings>()->AutoScrollPauseSeconds = 10.0f;
}

TEST(PanelBlocks, ADiffShowsAllLinesWithTheirNumbers)
{
	const FPanel Panel;
	Show("Compiling...");
	FKestrinInterface::Get().OnAddDiffMessage(TEXT("A.txt"), TEXT("one\ntwo\nthree\n"), TEXT("ONE\r\n2\r\nthree"));
	FKestrinInterface::Get().OnAddDiffMessage(TEXT("B.txt"), TEXT(""), TEXT("new"));
	FKestrinInterface::Get().OnAddDiffMessage(TEXT("C.txt"), TEXT("gone"), TEXT(""));
	EXPECT_THAT(Panel.GetBlocks(),
		ElementsAre("Compiling...", "A.txt", "1|1|  one", "2||- two", "|2|+ 2", "3|3|  three", "B.txt", "|1|+ new", "C.txt", "1||- gone"))
		<< "a diff ends no transient line";
	EXPECT_TRUE(Panel.IsAtEnd());
	EXPECT_EQ(Panel.GetLog(), "\n> A.txt\n\n\n> ONE\r\n2\r\nthree\n\n\n> B.txt\n\n\n> new\n\n\n> C.txt\n\n\n> \n\n");

	GetMutableDefault<UKestrinSettings>()->bDisplayFileChangesInChat = false;
	FKestrinInterface::Get().OnAddDiffMessage(TEXT("D.txt"), TEXT(""), TEXT("new"));
	Show("Done");
	EXPECT_THAT(Panel.GetBlocks(), testing::Not(testing::Contains("D.txt")));
}

TEST(PanelBlocks, ADiffIsLaidOutInColumns)
{
	const FPanel Panel;
	FKestrinInterface::Get().OnAddDiffMessage(TEXT("A.txt"), TEXT("old"), TEXT("new"));
	const Texts Lines = Outline(Panel.GetDriver().GetRoot());
	const auto First = std::ranges::find_if(Lines, [](const std::string& Line) { return Line.starts_with("    SBorder padding=(5"); });
	const std::string Plain = " padding=(0 0 0 0) halign=fill valign=fill :";
	const std::string Text = "font={name=Regular size=10} style=NormalText justify=";
	const std::string Separator[] = { "       SBox size=auto" + Plain + " padding=(0 0 0 0) width=1",
		"        SBorder" + Plain + " color=(0.3 0.3 0.3 1) image=Menu.Background padding=(2 2 2 2)" };
	const auto NumberColumn = [&](const char* const(&Rows)[2][2])
	{
		Texts Column = { "       SBox size=auto padding=(2 0 0 0) halign=fill valign=fill : padding=(4 4 4 4) min_width=45",
			"        SVerticalBox padding=(4 4 4 4) halign=fill valign=fill :" };
		for (const auto& [Color, Number] : Rows)
		{
			Column.push_back("         SBorder size=auto" + Plain + " color=(" + Color + ") image=Menu.Background padding=(2 2 2 2)");
			Column.push_back("          STextBlock padding=(2 2 2 2) halign=fill valign=fill : text=" + std::string(Number) +
				" color=(0.5 0.5 0.5 1) " + Text + "right");
		}
		return Column;
	};
	Texts Expected = {
		"    SBorder padding=(5 5 5 5) halign=fill valign=fill : color=(0.1 0.1 0.1 0.6) image=Menu.Background padding=(2 2 2 2)",
		"     SVerticalBox padding=(2 2 2 2) halign=fill valign=fill :",
		"      STextBlock size=auto padding=(4 4 4 4) halign=fill valign=fill : text=A.txt color=(0.9 0.9 0.9 1) font={name=Bold size=10} "
		"style=NormalText justify=left",
		"      SHorizontalBox size=auto padding=(4 4 4 4) halign=fill valign=fill :",
	};
	const auto Add = [&Expected](const Texts& More) { Expected.insert(Expected.end(), More.begin(), More.end()); };
	Add(NumberColumn({ { "0.2 0 0 0.3", "1" }, { "0 0 0 0", "" } }));
	Add({ Separator[0], Separator[1] });
	Add(NumberColumn({ { "0 0 0 0", "" }, { "0 0.2 0 0.3", "1" } }));
	Add({ Separator[0], Separator[1], "       SVerticalBox size=fill value=1" + Plain });
	struct FRow
	{
		const char* RowColor;
		const char* Prefix;
		const char* Line;
		const char* TextColor;
	};
	for (const FRow& Row : { FRow{ "0.2 0 0 0.3", "- ", "old", "0.8 0.2 0.2 1" }, FRow{ "0 0.2 0 0.3", "+ ", "new", "0.2 0.8 0.2 1" } })
	{
		const std::string Tail = std::string(" color=(") + Row.TextColor + ") " + Text + "left";
		Add({ "        SBorder size=auto" + Plain + " color=(" + Row.RowColor + ") image=Menu.Background padding=(4 2 4 2)",
			"         SHorizontalBox padding=(4 2 4 2) halign=fill valign=fill :",
			"          STextBlock size=auto" + Plain + " text=" + Row.Prefix + Tail,
			"          STextBlock size=fill value=1" + Plain + " text=" + Row.Line + Tail });
	}
	ASSERT_GE(Lines.end() - First, static_cast<std::ptrdiff_t>(Expected.size()));
	EXPECT_EQ(Texts(First, First + static_cast<std::ptrdiff_t>(Expected.size())), Expected);
}

TEST(PanelBlocks, TheNewestPanelHasTheChat)
{
	FPanel Panel;
	Show(User + "a");
	Panel.Reopen();
	EXPECT_TRUE(Panel.GetBlocks().empty());
	Show(Kestrin + "b");
	EXPECT_THAT(Panel.GetBlocks(), ElementsAre("b"));
}

TEST(PanelBlocks, TenMegabytesAndALineOfOne)
{
	const FPanel Panel;
	std::string Large;
	while (Large.size() < 10 << 20)
	{
		Large += "a line of some length with **marks** in it\n";
	}
	Show(Large);
	Show("x" + std::string(1 << 20, 'y'));
	const Texts Blocks = Panel.GetBlocks();
	ASSERT_EQ(Blocks.size(), 2u);
	EXPECT_EQ(Blocks[0].substr(0, 40), "a line of some length with marks in it\na");
	EXPECT_EQ(Blocks[1].size(), (1u << 20) + 1);
}
}
