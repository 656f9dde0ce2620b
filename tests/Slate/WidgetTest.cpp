#include "CoreHost/Clock.h"
#include "CoreHost/MainLoop.h"
#include "SlateHost/WidgetDriver.h"
#include "Styling/AppStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
class FManualClock
{
public:
	FManualClock()
	{
		FHostClock::SetManual(true);
		FMainLoop::Tick();
	}
	~FManualClock() { FHostClock::SetManual(false); }
};

TEST(Widgets, AttributesAreReadAnewAndOutliveTheirObject)
{
	struct FOwner : TSharedFromThis<FOwner>
	{
		FText Get() const { return FText::FromString(FString::FromInt(Number)); }
		int32 Number = 1;
	};
	TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
	const TSharedRef<STextBlock> Text = SNew(STextBlock).Text(Owner.Get(), &FOwner::Get);
	EXPECT_TRUE(Text->GetText().ToString() == TEXT("1"));
	Owner->Number = 2;
	EXPECT_TRUE(Text->GetText().ToString() == TEXT("2"));
	Owner.Reset();
	EXPECT_TRUE(Text->GetText().ToString() == TEXT("2"));
}

TEST(Widgets, AChildKnowsItsParentAsLongAsItHasAPlace)
{
	TSharedPtr<SScrollBox> Box;
	const TSharedRef<SWidget> Root = SNew(SBorder)[SAssignNew(Box, SScrollBox)];
	const TSharedRef<SWidget> Early = SNew(STextBlock);
	const TSharedRef<SWidget> Late = SNew(STextBlock);
	Box->AddSlot().Padding(1.0f)[Early];
	Box->AddSlot()[Late];
	EXPECT_TRUE(Box->GetParentWidget() == Root.ToSharedPtr());
	EXPECT_TRUE(Early->GetParentWidget() == TSharedPtr<SWidget>(Box));
	Box->RemoveSlot(Early);
	EXPECT_FALSE(Early->GetParentWidget().IsValid());
	ASSERT_EQ(Box->GetChildren()->Num(), 1);
	EXPECT_TRUE(Box->GetChildren()->GetChildAt(0) == Late);
}

TEST(Widgets, TheViewStaysAtTheEndOnlyWhereItWasBrought)
{
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox);
	EXPECT_TRUE(Box->IsAtEnd());
	Box->AddSlot()[SNew(STextBlock)];
	EXPECT_FALSE(Box->IsAtEnd());
	Box->ScrollToEnd();
	EXPECT_TRUE(Box->IsAtEnd());
	const TSharedRef<SWidget> Passing = SNew(STextBlock);
	Box->AddSlot()[Passing];
	EXPECT_FALSE(Box->IsAtEnd());
	Box->RemoveSlot(Passing);
	EXPECT_TRUE(Box->IsAtEnd());
	Box->ScrollByUser(0.0f, false);
	EXPECT_FALSE(Box->IsAtEnd());
	Box->ScrollByUser(0.0f, true);
	EXPECT_TRUE(Box->IsAtEnd());
}

TEST(Widgets, ActiveTimersFollowTheClockUntilTheyEnd)
{
	const FManualClock Clock;
	TSharedPtr<SWidget> Widget = SNew(STextBlock);
	int32 Calls = 0;
	int32 Last = 100;
	const auto Count = [&](double, float) { return ++Calls < Last ? EActiveTimerReturnType::Continue : EActiveTimerReturnType::Stop; };
	const TSharedRef<FActiveTimerHandle> Timer = Widget->RegisterActiveTimer(0.5f, FWidgetActiveTimerDelegate::CreateLambda(Count));
	FMainLoop::RunFor(0.45);
	EXPECT_EQ(Calls, 0);
	FMainLoop::RunFor(1.1);
	EXPECT_EQ(Calls, 3);
	Widget->UnRegisterActiveTimer(Timer);
	FMainLoop::RunFor(2.0);
	EXPECT_EQ(Calls, 3) << "unregistered";
	Last = 5;
	Widget->RegisterActiveTimer(0.5f, FWidgetActiveTimerDelegate::CreateLambda(Count));
	FMainLoop::RunFor(5.0);
	EXPECT_EQ(Calls, 5) << "it answered Stop";
	Last = 100;
	Widget->RegisterActiveTimer(0.5f, FWidgetActiveTimerDelegate::CreateLambda(Count));
	Widget.Reset();
	FMainLoop::RunFor(2.0);
	EXPECT_EQ(Calls, 5) << "it went with its widget";
}

TEST(Widgets, AKeyGoesUpUntilItIsHandled)
{
	struct SRoot : SBorder
	{
		FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override
		{
			Keys += Event.GetKey().ToString() + (Event.IsShiftDown() ? TEXT("+") : TEXT(" "));
			return FReply::Handled();
		}
		FString Keys;
	};
	bool bTakeAll = false;
	TSharedPtr<SRoot> Root;
	TSharedPtr<SMultiLineEditableText> Input;
	SAssignNew(Root, SRoot)[SAssignNew(Input, SMultiLineEditableText)
								.OnKeyDownHandler_Lambda([&bTakeAll](const FGeometry&, const FKeyEvent&)
									{ return bTakeAll ? FReply::Handled() : FReply::Unhandled(); })];
	const FWidgetDriver Driver(Root.ToSharedRef());
	FString Error;
	struct FCase
	{
		const char* Key;
		bool bShift;
		bool bHandled;
		const TCHAR* Text;
		const TCHAR* RootKeys;
	};
	const FCase Cases[] = {
		{ "Enter", false, true, TEXT("ab"), TEXT("") },
		{ "Enter", false, false, TEXT("ab\n"), TEXT("") },
		{ "A", false, false, TEXT("ab\n"), TEXT("A ") },
		{ "BackSpace", false, false, TEXT("ab"), TEXT("A ") },
		{ "Escape", true, false, TEXT("ab"), TEXT("A Escape+") },
	};
	ASSERT_TRUE(Driver.Type(TEXT("ab"), Error));
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Key);
		bTakeAll = Case.bHandled;
		EXPECT_TRUE(Driver.PressKey(FKey(Case.Key), Case.bShift, Error));
		EXPECT_TRUE(Input->GetText().ToString().Equals(Case.Text));
		EXPECT_TRUE(Root->Keys.Equals(Case.RootKeys));
	}
	EXPECT_FALSE(Driver.PressKey("Entre", false, Error));
	Input->SetEnabled(false);
	EXPECT_FALSE(Driver.Type(TEXT("c"), Error));
	EXPECT_TRUE(Driver.PressKey("Enter", false, Error));
	EXPECT_TRUE(Root->Keys.EndsWith(TEXT("Enter ")));
}

TEST(Widgets, EditingHappensAtTheCaret)
{
	const TSharedRef<SMultiLineEditableText> Text = SNew(SMultiLineEditableText);
	Text->InsertTextAtCursor(TEXT("ac"));
	Text->SetCaret(1);
	Text->InsertTextAtCursor(TEXT("b"));
	EXPECT_TRUE(Text->GetText().ToString().Equals(TEXT("abc")));
	Text->SetText(FText::FromString(TEXT("abcd")));
	EXPECT_EQ(Text->GetCaret(), 2);
	Text->GoTo(ETextLocation::EndOfDocument);
	Text->InsertTextAtCursor(TEXT("\U0001F680"));
	EXPECT_EQ(Text->GetCaret(), 6);
	Text->OnKeyDown(FGeometry(), FKeyEvent(EKeys::BackSpace, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_TRUE(Text->GetText().ToString().Equals(TEXT("abcd"))) << "a character of two units goes whole";
	Text->SetText(FText());
	EXPECT_EQ(Text->GetCaret(), 0);
}

TEST(Widgets, AButtonIsClickedOnlyWhereAUserCould)
{
	int32 Clicks = 0;
	TSharedPtr<SBorder> Around;
	TSharedPtr<SButton> Button;
	const auto OnClicked = [&Clicks]
	{
		++Clicks;
		return FReply::Handled();
	};
	// clang-format off
	const TSharedRef<SWidget> Root = SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		[
			SAssignNew(Around, SBorder)
			[
				SAssignNew(Button, SButton)
				.OnClicked_Lambda(OnClicked)
				[
					SNew(STextBlock).Text(INVTEXT("Go"))
				]
			]
		];
	// clang-format on
	const FWidgetDriver Driver(Root);
	FString Error;
	EXPECT_FALSE(Driver.Click(TEXT("go"), Error));
	EXPECT_TRUE(Driver.Click(TEXT("Go"), Error));
	EXPECT_TRUE(Driver.PressKey(EKeys::SpaceBar, false, Error)) << "a click gives the focus";
	EXPECT_EQ(Clicks, 2);
	Button->SetEnabled(false);
	EXPECT_FALSE(Driver.Click(TEXT("Go"), Error));
	Button->SetEnabled(true);
	Around->SetVisibility(EVisibility::Hidden);
	EXPECT_FALSE(Driver.Click(TEXT("Go"), Error));
	Around->SetVisibility(EVisibility::Visible);
	Around->SetEnabled(false);
	EXPECT_FALSE(Driver.Click(TEXT("Go"), Error));
	EXPECT_EQ(Clicks, 2);
}
}
