#include "Shown.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
/** A chat of labels, each 50 high; the view shows six of them. */
class SlateScroll : public testing::Test
{
protected:
	SlateScroll()
	{
		for (int32 Index = 0; Index < 3000; ++Index)
		{
			Add(FString::FromInt(Index));
		}
	}

	TSharedRef<SWidget> Add(const FString& Text)
	{
		const TSharedRef<SWidget> Block = SNew(SBox).MinDesiredHeight(50.0f)[SNew(STextBlock).Text(FText::FromString(Text))];
		Box->AddSlot()[Block];
		return Block;
	}
	QWidget& GetFace(const FShown& Shown) const { return *Shown.FindOne<QScrollBar>()->parentWidget(); }

	int32 TimesScrolled = 0;
	TSharedRef<SScrollBox> Box = SNew(SScrollBox).OnUserScrolled_Lambda([this](float) { ++TimesScrolled; });
};

using Labels = std::vector<std::string>;

TEST_F(SlateScroll, TheEndShowsOnlyWhereItWasAskedFor)
{
	FShown Shown(Box);
	EXPECT_EQ(Shown.GetLabels(), (Labels{ "0", "1", "2", "3", "4", "5" }));
	Box->ScrollToEnd();
	// What is added in the same frame belongs to the end.
	Add(TEXT("last"));
	Shown.Refresh();
	EXPECT_EQ(Shown.GetLabels(), (Labels{ "2995", "2996", "2997", "2998", "2999", "last" }));
	Add(TEXT("below"));
	Shown.Refresh();
	EXPECT_EQ(Shown.GetLabels().back(), "last");
	EXPECT_EQ(TimesScrolled, 0);
}

TEST_F(SlateScroll, APassingBlockAtTheEndLeavesTheViewWhereItIs)
{
	FShown Shown(Box);
	TSharedRef<SWidget> Passing = Add(TEXT("passing 0"));
	Box->ScrollToEnd();
	Shown.Refresh();
	for (const TCHAR* const Next : { TEXT("passing 1"), TEXT("passing 2") })
	{
		const TSharedRef<SWidget> Before = Passing;
		Passing = Add(Next);
		Box->RemoveSlot(Before);
		Shown.Refresh();
	}
	EXPECT_EQ(Shown.GetLabels(), (Labels{ "2995", "2996", "2997", "2998", "2999", "passing 2" }));
}

TEST_F(SlateScroll, TheUsersPlaceStaysWhileBlocksComeAndGo)
{
	FShown Shown(Box);
	const TSharedRef<SWidget> First = Box->GetChildren()->GetChildAt(0);
	for (int Turn = 0; Turn < 10; ++Turn)
	{
		Shown.TurnWheel(GetFace(Shown), -1);
	}
	EXPECT_EQ(TimesScrolled, 10);
	EXPECT_EQ(Shown.GetLabels().front(), "12");
	Box->RemoveSlot(First);
	Add(TEXT("new"));
	Shown.Refresh();
	EXPECT_EQ(Shown.GetLabels().front(), "12");
	EXPECT_FALSE(Box->IsAtEnd());
}

TEST_F(SlateScroll, KeysAndTheBarReachEveryPlace)
{
	FShown Shown(Box);
	GetFace(Shown).setFocus();
	Shown.Press(Qt::Key_End);
	EXPECT_TRUE(Box->IsAtEnd());
	EXPECT_EQ(Shown.GetLabels().back(), "2999");
	Shown.Press(Qt::Key_PageUp);
	EXPECT_FALSE(Box->IsAtEnd());
	Shown.Press(Qt::Key_PageDown);
	EXPECT_TRUE(Box->IsAtEnd());
	Shown.Press(Qt::Key_Home);
	EXPECT_EQ(Shown.GetLabels().front(), "0");
	QScrollBar& Bar = *Shown.FindOne<QScrollBar>();
	Bar.setValue(Bar.maximum() / 2);
	Shown.Refresh();
	EXPECT_NEAR(std::stoi(Shown.GetLabels().front()), 1497, 5);
	Bar.setValue(Bar.maximum());
	Shown.Refresh();
	EXPECT_TRUE(Box->IsAtEnd());
}

TEST_F(SlateScroll, OnlyWhatShowsHasWidgets)
{
	FShown Shown(Box);
	const qsizetype AtFirst = Shown.View->findChildren<QWidget*>().size();
	for (int Turn = 0; Turn < 200; ++Turn)
	{
		Shown.TurnWheel(GetFace(Shown), -1);
	}
	EXPECT_LT(Shown.View->findChildren<QWidget*>().size(), AtFirst + 10);
	EXPECT_LT(AtFirst, 40);
}

TEST(SlateScrollBar, ShowsWhenThereIsMoreThanTheViewHolds)
{
	const TSharedRef<SScrollBox> Box = SNew(SScrollBox);
	FShown Shown(Box);
	EXPECT_EQ(Shown.FindOne<QScrollBar>(), nullptr);
	for (int32 Index = 0; Index < 7; ++Index)
	{
		Box->AddSlot()[SNew(SBox).MinDesiredHeight(50.0f)];
	}
	Shown.Refresh();
	EXPECT_NE(Shown.FindOne<QScrollBar>(), nullptr);
	while (Box->GetChildren()->Num() > 0)
	{
		Box->RemoveSlot(Box->GetChildren()->GetChildAt(0));
	}
	Shown.Refresh();
	EXPECT_EQ(Shown.FindOne<QScrollBar>(), nullptr);
}
}
