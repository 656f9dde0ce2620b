#include "Panel.h"

#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"
#include "SlateHost/WidgetTree.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>
#include <regex>

namespace
{
const FName TabName("Kestrin");

std::string Read(const TSharedPtr<FJsonValue>& Value);

std::string ReadNumbers(const TArray<TSharedPtr<FJsonValue>>& Values)
{
	std::string Text;
	for (const TSharedPtr<FJsonValue>& Value : Values)
	{
		Text += (Text.empty() ? "" : " ") + Read(Value);
	}
	return Text;
}

/** Short: numbers with six digits, objects as "name=value" and a blank between. */
std::string Read(const TSharedPtr<FJsonValue>& Value)
{
	switch (Value->Type)
	{
	case EJson::Number:
	{
		char Digits[32];
		std::snprintf(Digits, sizeof(Digits), "%.6g", Value->AsNumber());
		return Digits;
	}
	case EJson::Boolean: return Value->AsBool() ? "true" : "false";
	case EJson::Array: return "(" + ReadNumbers(Value->AsArray()) + ")";
	case EJson::Object:
	{
		std::string Text;
		for (const auto& [Name, Field] : Value->AsObject()->Values)
		{
			Text += (Text.empty() ? "" : " ") + ToUtf8(Name) + "=" + Read(Field);
		}
		return "{" + Text + "}";
	}
	default: return ToUtf8(Value->AsString());
	}
}

void AddOutline(const FJsonObject& Widget, int32 Depth, std::vector<std::string>& Lines)
{
	std::string Line = std::string(static_cast<size_t>(Depth), ' ') + ToUtf8(Widget.GetStringField(TEXT("type")));
	for (const TCHAR* const Part : { TEXT("slot"), TEXT("props") })
	{
		for (const auto& [Name, Value] : Widget.GetObjectField(Part)->Values)
		{
			Line += " " + ToUtf8(Name) + "=" + Read(Value);
		}
		Line += Part == FString(TEXT("slot")) ? " :" : "";
	}
	Lines.push_back(Line);
	for (const TSharedPtr<FJsonValue>& Child : Widget.GetArrayField(TEXT("children")))
	{
		AddOutline(*Child->AsObject(), Depth + 1, Lines);
	}
}

std::string TextOf(const TSharedRef<SWidget>& Widget)
{
	if (const auto* const Editable = dynamic_cast<const SMultiLineEditableText*>(&*Widget))
	{
		return ToUtf8(Editable->GetText().ToString());
	}
	const auto* const Block = dynamic_cast<const STextBlock*>(&*Widget);
	std::string Text = Block ? ToUtf8(Block->GetText().ToString()) : "";
	for (int32 Index = 0; Index < Widget->GetChildren()->Num(); ++Index)
	{
		Text += TextOf(Widget->GetChildren()->GetChildAt(Index));
	}
	return Text;
}

TSharedRef<SWidget> ChildOf(const TSharedRef<SWidget>& Widget, std::initializer_list<int32> Path)
{
	TSharedRef<SWidget> Found = Widget;
	for (const int32 Index : Path)
	{
		Found = Found->GetChildren()->GetChildAt(Index);
	}
	return Found;
}

void AddBlock(const TSharedRef<SWidget>& Block, std::vector<std::string>& Lines)
{
	const TSharedRef<SWidget> Content = ChildOf(Block, { 0 });
	if (Content->GetChildren()->Num() == 0)
	{
		Lines.push_back(TextOf(Content));
		return;
	}
	Lines.push_back(TextOf(ChildOf(Content, { 0 })));
	const TSharedRef<SWidget> Columns = ChildOf(Content, { 1 });
	const TSharedRef<SWidget> Rows = ChildOf(Columns, { 4 });
	for (int32 Row = 0; Row < Rows->GetChildren()->Num(); ++Row)
	{
		Lines.push_back(
			TextOf(ChildOf(Columns, { 0, 0, Row })) + "|" + TextOf(ChildOf(Columns, { 2, 0, Row })) + "|" + TextOf(ChildOf(Rows, { Row })));
	}
}
}

FPanel::FPanel()
{
	FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
	FModuleManager::Get().LoadModule("Kestrin");
	// The time that the machine took before the clock stood still is no part of what a test measures.
	FMainLoop::Tick();
	Reopen();
}

FPanel::~FPanel()
{
	FGlobalTabmanager::Get()->CloseAllTabs();
	FModuleManager::Get().UnloadModule("Kestrin");
}

void FPanel::Reopen()
{
	FGlobalTabmanager::Get()->CloseAllTabs();
	FGlobalTabmanager::Get()->TryInvokeTab(TabName);
	WelcomeLength = ReadLog().size();
}

FWidgetDriver FPanel::GetDriver() const
{
	return FWidgetDriver(FGlobalTabmanager::Get()->FindExistingLiveTab(TabName)->GetContent());
}

void FPanel::Type(const char* Text) const
{
	FString Error;
	EXPECT_TRUE(GetDriver().Type(FUtf8::Decode(Text), Error)) << ToUtf8(Error);
}

void FPanel::Press(const char* Key, bool bShift) const
{
	FString Error;
	EXPECT_TRUE(GetDriver().PressKey(FKey(Key), bShift, Error)) << ToUtf8(Error);
}

void FPanel::Click(const char* Label) const
{
	FString Error;
	EXPECT_TRUE(GetDriver().Click(Label, Error)) << ToUtf8(Error);
}

std::string FPanel::GetInput() const
{
	return ToUtf8(GetDriver().FindInput()->GetText().ToString());
}

void FPanel::SetInput(const char* Text) const
{
	GetDriver().FindInput()->SetText(FText::FromString(Text));
}

std::string FPanel::GetButton(const char* Label) const
{
	const TSharedPtr<SButton> Button = GetDriver().FindButton(Label);
	if (!Button.IsValid())
	{
		return "missing";
	}
	const EVisibility Visibility = Button->GetVisibility();
	return Visibility == EVisibility::Collapsed ? "collapsed" : Button->IsEnabled() ? "visible" : "disabled";
}

std::vector<std::string> FPanel::GetBlocks() const
{
	std::vector<std::string> Lines;
	FChildren& Blocks = *GetDriver().FindScrollBox()->GetChildren();
	for (int32 Index = 1; Index < Blocks.Num(); ++Index)
	{
		AddBlock(Blocks.GetChildAt(Index), Lines);
	}
	return Lines;
}

bool FPanel::IsAtEnd() const
{
	return GetDriver().FindScrollBox()->IsAtEnd();
}

std::string FPanel::GetLog() const
{
	static const std::regex Time("\n\\[[0-9:]{8}\\] ");
	return std::regex_replace(ReadLog().substr(WelcomeLength), Time, "\n> ");
}

std::string FPanel::ReadLog() const
{
	const std::string File = ToUtf8(FKestrinInterface::Get().GetPromptLogFilePath());
	return Talk.Project.Read(File.substr(ToUtf8(Talk.Project.Dir()).size()));
}

std::vector<std::string> Outline(const TSharedRef<SWidget>& Root)
{
	std::vector<std::string> Lines;
	AddOutline(*DescribeWidgetTree(Root), 0, Lines);
	return Lines;
}
