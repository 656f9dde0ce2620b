#include "KestrinSettings.h"
#include "Support/Panel.h"
#include "Widgets/Input/SComboBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
const char* const Welcome = R"_( [ Kestrin ] 

I'm Kestrin, your AI-powered assistant for Unreal Engine 5.4+, here to accelerate gameplay mechanics development. As a "project-aware" assistant, I understand your game, enabling me to support your mechanics development workflow—from generating fresh gameplay variations to implementing entire systems, troubleshooting, and optimizing—helping you find the fun faster.


Here's how I can help:

  1. 🛠️ UE5 Assistant – Navigate your project with intelligent file search, dependency tracing, diagnostics, and UE5 feature integration best practices.

  2. 💻 Code Copilot – Assist with building, refactoring, debugging, and analyzing C++ code, ensuring it follows your game's architecture and guidelines.

  3. 🔹 Blueprint Designer – Get step-by-step instructions for building, optimizing, and debugging gameplay logic and AI using UE5's visual scripting.


Tips for Working with Me:

  1. Provide context – The more I know about your goal, the better I can help. Start with what you're trying to build before giving instructions.

  2. Be specific – Think of me like a teammate. Clear, direct instructions work best.

  3. Reference key files – I can search your project, but if you know relevant classes, files, or assets, let me know!

  4. Access past chats – You can find conversation history in the "Logs" folder of your kestrin-unreal plugin.


Let's build something amazing! 🚀
)_";

// What a fresh panel is, from the outside in; "slot : what it has". Colours and fonts of the buttons stand for themselves below.
const std::vector<std::string> FreshPanel = {
	"SKestrinWidget :",
	" SVerticalBox padding=(0 0 0 0) halign=fill valign=fill :",
	"  SBorder size=fill value=1 padding=(8 8 8 8) halign=fill valign=fill : color=(0.1 0.1 0.1 1) image=Menu.Background padding=(0 0 0 0)",
	"   SScrollBox padding=(0 0 0 0) halign=fill valign=fill :",
	"    SBorder padding=(0 0 0 8) halign=fill valign=fill : color=(0.976471 0.611765 0.223529 1) image=Border padding=(8 8 8 8)",
	"     SMultiLineEditableText padding=(8 8 8 8) halign=fill valign=fill : text=" + std::string(Welcome) +
		" hint= color=(0.9 0.9 0.9 1) font={name=Bold size=10} style=NormalText read_only=true wrap=true",
	"  SBorder size=auto padding=(8 8 8 8) halign=fill valign=fill : color=(0.2 0.2 0.2 1) image=Menu.Background padding=(8 8 8 8)",
	"   SVerticalBox padding=(8 8 8 8) halign=fill valign=fill :",
	"    SBox size=auto padding=(0 0 0 0) halign=fill valign=fill : padding=(0 0 0 0) min_height=80",
	"     SBorder padding=(0 0 0 0) halign=fill valign=fill : color=(0.15 0.15 0.15 1) image=Menu.Background padding=(0 0 0 8)",
	"      SMultiLineEditableText padding=(0 0 0 8) halign=fill valign=fill : text= hint=Enter your prompt here... color=(0.9 0.9 0.9 1) "
	"font={name=Regular size=10} style=NormalText read_only=false wrap=true",
	"    SHorizontalBox size=auto padding=(0 8 0 0) halign=fill valign=fill :",
	"     SBox size=auto padding=(0 0 0 0) halign=right valign=fill : padding=(0 0 0 0) min_height=30",
	"      SHorizontalBox padding=(0 0 0 0) halign=fill valign=fill :",
	"       SComboBox size=auto padding=(0 0 8 0) halign=fill valign=fill : options=(Explainer Mode Explainer And Implementer Mode) "
	"selected=Explainer Mode",
	"        STextBlock padding=(0 0 0 0) halign=fill valign=fill : text=Explainer Mode color=(1 1 1 1) font={name=Regular size=10} "
	"style=NormalText justify=left",
};

struct FButtonRow
{
	const char* Label;
	const char* Width;
	const char* TextColor;
	const char* Normal;
	const char* Hovered;
	const char* Pressed;
};

const char* const Blue[] = { "(-0.0411765 0.221569 0.656863 1)", "(0.258824 0.521569 0.956863 1)", "(0.358824 0.621569 1.05686 1)" };

const FButtonRow Buttons[] = {
	{ "[ Start ]", "100", "1 1 1", Blue[0], Blue[1], Blue[2] },
	{ "Continue", "100", "0.7 0.7 0.7", Blue[0], Blue[1], Blue[2] },
	{ "Approve", "100", "0.7 0.7 0.7", Blue[0], Blue[1], Blue[2] },
	{ "Pause", "100", "0.7 0.7 0.7", "(0.4 0.2 -0.3 1)", "(0.7 0.5 0 1)", "(0.8 0.6 0.1 1)" },
	{ "Undo", "80", "0.7 0.7 0.7", Blue[0], Blue[1], Blue[2] },
	{ "Redo", "80", "0.7 0.7 0.7", Blue[0], Blue[1], Blue[2] },
	{ "[ End ]", "100", "1 1 1", "(0.7 0.092 0.092 1)", "(1 0.392 0.392 1)", "(1.1 0.492 0.492 1)" },
};

TEST(PanelTree, AFreshPanelIsLaidOutAsItIsToBe)
{
	std::vector<std::string> Expected = FreshPanel;
	for (const FButtonRow& Row : Buttons)
	{
		const std::string Centered = " padding=(0 0 0 0) halign=center valign=center :";
		Expected.push_back("       SButton size=auto padding=(0 0 8 0) halign=fill valign=fill : brushes={normal=" +
			std::string(Row.Normal) + " hovered=" + Row.Hovered + " pressed=" + Row.Pressed + " disabled=(0.2 0.2 0.2 0.5)}");
		Expected.push_back(
			"        SBox padding=(4 2 4 2) halign=center valign=center : padding=(0 0 0 0) min_width=" + std::string(Row.Width));
		Expected.push_back("         STextBlock" + Centered + " text=" + Row.Label + " color=(" + Row.TextColor +
			" 1) font={name=Bold size=10} style=NormalText justify=left");
	}
	const FPanel Panel;
	EXPECT_EQ(Outline(Panel.GetDriver().GetRoot()), Expected);
	EXPECT_TRUE(Panel.IsAtEnd());
	EXPECT_TRUE(Panel.ReadLog().ends_with("] " + std::string(Welcome) + "\n\n")) << "the welcome goes to the prompt log";
}

TEST(PanelTree, ThePickerShowsAndWritesTheMode)
{
	const FPanel Panel;
	EKestrinMode& Mode = GetMutableDefault<UKestrinSettings>()->Mode;
	const auto Shown = [&Panel] { return ToUtf8(FWidgetDriver::GetShownText(Panel.GetDriver().FindPicker().ToSharedRef())); };
	FString Error;
	EXPECT_TRUE(Panel.GetDriver().Pick(TEXT("Explainer And Implementer Mode"), Error));
	EXPECT_EQ(Mode, EKestrinMode::ExplainerAndImplementerMode);
	EXPECT_EQ(Shown(), "Explainer And Implementer Mode");
	Mode = EKestrinMode::ExplainerMode;
	EXPECT_EQ(Shown(), "Explainer Mode") << "changed elsewhere";
}
}
