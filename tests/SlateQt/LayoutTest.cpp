#include "Shown.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
/** Something of a known size that can be found again: a button of its own for each letter. */
TSharedRef<SWidget> Block(float Width, float Height)
{
	return SNew(SButton).ContentPadding(0.0f)[SNew(SBox).MinDesiredWidth(Width).MinDesiredHeight(Height)];
}

std::vector<QRect> GetButtons(const FShown& Shown)
{
	std::vector<QRect> Places;
	for (const QAbstractButton* const Button : Shown.FindAll<QAbstractButton>())
	{
		Places.push_back(Shown.GetPlace(*Button));
	}
	std::sort(Places.begin(), Places.end(), [](const QRect& A, const QRect& B) { return A.x() + 1000 * A.y() < B.x() + 1000 * B.y(); });
	return Places;
}

struct FCase
{
	const char* Name;
	TSharedRef<SWidget> (*Make)();
	std::vector<QRect> Places;
};

// clang-format off
const FCase Cases[] = {
	{ "a column gives what is left to the child that stretches",
		[]() -> TSharedRef<SWidget> {
			return SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()[Block(10.0f, 20.0f)]
				+ SVerticalBox::Slot().FillHeight(1.0f)[Block(10.0f, 20.0f)]
				+ SVerticalBox::Slot().AutoHeight().Padding(5.0f, 6.0f, 7.0f, 8.0f)[Block(10.0f, 30.0f)];
		},
		{ QRect(0, 0, 400, 20), QRect(0, 20, 400, 236), QRect(5, 262, 388, 30) } },
	{ "shares are by value",
		[]() -> TSharedRef<SWidget> {
			return SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().FillWidth(1.0f)[Block(10.0f, 20.0f)]
				+ SHorizontalBox::Slot().AutoWidth()[Block(40.0f, 20.0f)]
				+ SHorizontalBox::Slot().FillWidth(3.0f)[Block(10.0f, 20.0f)];
		},
		{ QRect(0, 0, 90, 300), QRect(90, 0, 40, 300), QRect(130, 0, 270, 300) } },
	{ "aligned children have their own size",
		[]() -> TSharedRef<SWidget> {
			return SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().FillWidth(1.0f).HAlign(HAlign_Right).VAlign(VAlign_Bottom)[Block(10.0f, 20.0f)]
				+ SHorizontalBox::Slot().FillWidth(1.0f).HAlign(HAlign_Center).VAlign(VAlign_Center)[Block(10.0f, 20.0f)];
		},
		{ QRect(295, 140, 10, 20), QRect(190, 280, 10, 20) } },
	{ "what is collapsed takes no room, what is hidden does",
		[]() -> TSharedRef<SWidget> {
			return SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight().Padding(9.0f)
				[ SNew(SBox).MinDesiredHeight(50.0f).Visibility(EVisibility::Collapsed) ]
				+ SVerticalBox::Slot().AutoHeight()[ SNew(SBox).MinDesiredHeight(40.0f).Visibility(EVisibility::Hidden)[Block(1.0f, 1.0f)] ]
				+ SVerticalBox::Slot().AutoHeight()[Block(10.0f, 20.0f)];
		},
		{ QRect(0, 40, 400, 20) } },
	{ "a fixed width beats what the content asks for",
		[]() -> TSharedRef<SWidget> {
			return SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().AutoWidth()[ SNew(SBox).WidthOverride(30.0f).Padding(2.0f)[Block(90.0f, 20.0f)] ]
				+ SHorizontalBox::Slot().AutoWidth()[ SNew(SBorder).Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f))[Block(90.0f, 20.0f)] ];
		},
		{ QRect(2, 2, 26, 296), QRect(31, 2, 90, 294) } },
};
// clang-format on

TEST(SlateLayout, ChildrenGoWhereTheRulesPutThem)
{
	for (const FCase& Case : Cases)
	{
		const FShown Shown(Case.Make());
		std::vector<QRect> Expected = Case.Places;
		std::sort(
			Expected.begin(), Expected.end(), [](const QRect& A, const QRect& B) { return A.x() + 1000 * A.y() < B.x() + 1000 * B.y(); });
		EXPECT_EQ(GetButtons(Shown), Expected) << Case.Name;
	}
}

TEST(SlateLayout, ATextThatWrapsGetsHigherWhenItGetsNarrower)
{
	FString Long;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Long += TEXT("words ");
	}
	const TSharedRef<SMultiLineEditableText> Text =
		SNew(SMultiLineEditableText).Text(FText::FromString(Long)).AutoWrapText(true).IsReadOnly(true);
	FShown Shown(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Text]);
	const int Wide = Shown.FindOne<QTextEdit>()->height();
	Shown.View->resize(200, 300);
	Shown.Refresh();
	const int Narrow = Shown.FindOne<QTextEdit>()->height();
	EXPECT_GT(Narrow, Wide + Wide / 2);
	Text->SetText(FText::FromString(TEXT("one line")));
	Shown.Refresh();
	EXPECT_LT(Shown.FindOne<QTextEdit>()->height(), Wide / 2);
	// The text fits: nothing of it is cut off.
	EXPECT_EQ(Shown.FindOne<QTextEdit>()->verticalScrollBar()->maximum(), 0);
}

TEST(SlateLayout, OfALongColumnOnlyTheRowsThatShowHaveWidgets)
{
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	for (int32 Index = 0; Index < 5000; ++Index)
	{
		Column->AddSlot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(FString::FromInt(Index)))];
	}
	const FShown Shown(SNew(SScrollBox) + SScrollBox::Slot()[SNew(SBox)[Column]]);
	EXPECT_EQ(Shown.GetLabels().front(), "0");
	EXPECT_LT(Shown.GetLabels().size(), 40u);
	EXPECT_GT(Shown.GetLabels().size(), 10u);
}

TEST(SlateLayout, ARowThatDoesNotFitTakesFromWhatIsOnlyAskedFor)
{
	// 100 are asked for three times where 50, 30 and 10 are needed.
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox) +
		SHorizontalBox::Slot().AutoWidth()[SNew(SBox).MinDesiredWidth(100.0f)[SNew(SBox).WidthOverride(50.0f)[Block(1.0f, 20.0f)]]] +
		SHorizontalBox::Slot().AutoWidth()[SNew(SBox).MinDesiredWidth(100.0f)[SNew(SBox).WidthOverride(30.0f)[Block(1.0f, 20.0f)]]] +
		SHorizontalBox::Slot().AutoWidth()[SNew(SBox).MinDesiredWidth(100.0f)[SNew(SBox).WidthOverride(10.0f)[Block(1.0f, 20.0f)]]];
	const struct
	{
		int Width;
		std::vector<int> Widths;
	} Rows[] = { { 400, { 100, 100, 100 } }, { 195, { 75, 65, 55 } }, { 90, { 50, 30, 10 } }, { 60, { 50, 30, 10 } } };
	for (const auto& Each : Rows)
	{
		const FShown Shown(Row, QSize(Each.Width, 100));
		std::vector<int> Widths;
		for (const QRect& Place : GetButtons(Shown))
		{
			Widths.push_back(Place.width());
		}
		EXPECT_EQ(Widths, Each.Widths) << Each.Width;
	}
}

TEST(SlateLayout, WhatNeedsMoreRoomThanThereIsCanBeScrolledTo)
{
	const FShown Shown(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SNew(SBox).WidthOverride(900.0f)]);
	auto* const Area = qobject_cast<QScrollArea*>(Shown.View);
	ASSERT_TRUE(Area);
	EXPECT_GE(Area->horizontalScrollBar()->maximum(), 500);
}

TEST(SlateLayout, LabelsShowTheirTextAsItIs)
{
	FString OneLine;
	while (OneLine.Len() < 1 << 20)
	{
		OneLine += TEXT("far out ");
	}
	const FShown Shown(SNew(SVerticalBox) +
		SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("a\tb & <b>c</b>\x01")))] +
		SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(OneLine))]);
	const std::vector<std::string> Labels = Shown.GetLabels();
	EXPECT_EQ(Labels[0], "a   b & <b>c</b>\x01");
	// More than any screen is wide.
	EXPECT_GE(Labels[1].size(), 4000u);
	EXPECT_LE(Labels[1].size(), 5000u);
}

TEST(SlateLayout, BordersFillTheirAreas)
{
	const FShown Shown(SNew(SBorder)
						   .BorderBackgroundColor(FLinearColor(1.0f, 0.5f, 0.0f, 1.0f))
						   .Padding(20.0f)[SNew(SBorder).BorderBackgroundColor(FLinearColor(-1.0f, 0.0f, 7.0f, 1.0f))]);
	const QImage Picture = Shown.View->grab().toImage();
	const QColor Outer = Picture.pixelColor(5, 5);
	const QColor Inner = Picture.pixelColor(200, 150);
	EXPECT_GT(Outer.red(), Outer.green());
	EXPECT_GT(Outer.green(), 0);
	EXPECT_EQ(Outer.blue(), 0);
	EXPECT_EQ(Inner.red() + Inner.green(), 0);
	EXPECT_GT(Inner.blue(), 0);
}
}
