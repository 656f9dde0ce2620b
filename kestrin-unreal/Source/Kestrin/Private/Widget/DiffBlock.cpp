#include "Widget.h"

#include "Agent/KestrinInterface.h"
#include "KestrinSettings.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

// How a file's change is shown: its path, and below it the lines of both texts with their numbers in the old and the new one.

namespace
{
const FSlateBrush* GetBackground()
{
	return FAppStyle::Get().GetBrush("Menu.Background");
}

struct FLineLook
{
	FLinearColor RowColor;
	FText Prefix;
	FLinearColor TextColor;
};

const FLineLook& GetLook(EDiffLineType Type)
{
	static const FLineLook Looks[] = {
		{ FLinearColor::Transparent, INVTEXT("  "), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f) },
		{ FLinearColor(0.0f, 0.2f, 0.0f, 0.3f), INVTEXT("+ "), FLinearColor(0.2f, 0.8f, 0.2f, 1.0f) },
		{ FLinearColor(0.2f, 0.0f, 0.0f, 0.3f), INVTEXT("- "), FLinearColor(0.8f, 0.2f, 0.2f, 1.0f) },
	};
	return Looks[static_cast<uint8>(Type)];
}

TSharedRef<SWidget> MakeSeparator()
{
	// clang-format off
	return SNew(SBox)
		.WidthOverride(1.0f)
		[
			SNew(SBorder)
			.BorderImage(GetBackground())
			.BorderBackgroundColor(FLinearColor(0.3f, 0.3f, 0.3f, 1.0f))
		];
	// clang-format on
}

TSharedRef<SWidget> MakeNumberBox(const TSharedRef<SWidget>& Column)
{
	return SNew(SBox).MinDesiredWidth(45.0f).Padding(4.0f)[Column];
}
}

void SKestrinWidget::AddDiffMessage(FString FilePath, FString OldContent, FString NewContent)
{
	const UKestrinSettings* const Settings = GetDefault<UKestrinSettings>();
	if (Settings && !Settings->bDisplayFileChangesInChat)
	{
		return;
	}
	if (!ChatScrollBox.IsValid())
	{
		return;
	}
	const TArray<FDiffLine> Lines = ComputeLineDiff(OldContent, NewContent);
	// clang-format off
	ChatScrollBox->AddSlot()
	.Padding(5.0f)
	[
		SNew(SBorder)
		.BorderImage(GetBackground())
		.BorderBackgroundColor(FLinearColor(0.1f, 0.1f, 0.1f, 0.6f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight().Padding(4.0f)
			[
				SNew(STextBlock)
				.Text(FText::FromString(FilePath))
				.ColorAndOpacity(FLinearColor(0.9f, 0.9f, 0.9f, 1.0f))
				.Font(FCoreStyle::GetDefaultFontStyle(FKestrinInterface::BoldFontName, 10))
			]
			+ SVerticalBox::Slot().AutoHeight().Padding(4.0f)
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().AutoWidth().Padding(2.0f, 0.0f, 0.0f, 0.0f)
				[
					MakeNumberBox(MakeLineNumberColumn(Lines, true))
				]
				+ SHorizontalBox::Slot().AutoWidth()
				[
					MakeSeparator()
				]
				+ SHorizontalBox::Slot().AutoWidth().Padding(2.0f, 0.0f, 0.0f, 0.0f)
				[
					MakeNumberBox(MakeLineNumberColumn(Lines, false))
				]
				+ SHorizontalBox::Slot().AutoWidth()
				[
					MakeSeparator()
				]
				+ SHorizontalBox::Slot().FillWidth(1.0f)
				[
					MakeContentColumn(Lines)
				]
			]
		]
	];
	// clang-format on
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.KestrinInterfaceLogString(FilePath, Interface.GetPromptLogFilePath(), true);
	Interface.KestrinInterfaceLogString(NewContent, Interface.GetPromptLogFilePath(), true);
	FollowChat();
}

TSharedRef<SWidget> SKestrinWidget::MakeLineNumberColumn(const TArray<FDiffLine>& Lines, bool bOld)
{
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	// The kind of line that only this column has, and the one that it has not.
	const EDiffLineType Own = bOld ? EDiffLineType::Removed : EDiffLineType::Added;
	const EDiffLineType Other = bOld ? EDiffLineType::Added : EDiffLineType::Removed;
	int32 Counter = 1;
	for (const FDiffLine& Line : Lines)
	{
		const FText Number = Line.Type == Other ? FText::GetEmpty() : FText::FromString(FString::FromInt(Counter++));
		// clang-format off
		Column->AddSlot().AutoHeight()
		[
			SNew(SBorder)
			.BorderImage(GetBackground())
			.BorderBackgroundColor(Line.Type == Own ? GetLook(Own).RowColor : FLinearColor::Transparent)
			.Padding(2.0f)
			[
				SNew(STextBlock)
				.Text(Number)
				.ColorAndOpacity(FLinearColor(0.5f, 0.5f, 0.5f, 1.0f))
				.Justification(ETextJustify::Right)
			]
		];
		// clang-format on
	}
	return Column;
}

TSharedRef<SWidget> SKestrinWidget::MakeContentColumn(const TArray<FDiffLine>& Lines)
{
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
	for (const FDiffLine& Line : Lines)
	{
		const FLineLook& Look = GetLook(Line.Type);
		// clang-format off
		Column->AddSlot().AutoHeight()
		[
			SNew(SBorder)
			.BorderImage(GetBackground())
			.BorderBackgroundColor(Look.RowColor)
			.Padding(FMargin(4.0f, 2.0f, 4.0f, 2.0f))
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().AutoWidth()
				[
					SNew(STextBlock)
					.Text(Look.Prefix)
					.ColorAndOpacity(Look.TextColor)
				]
				+ SHorizontalBox::Slot().FillWidth(1.0f)
				[
					SNew(STextBlock)
					.Text(FText::FromString(Line.Text))
					.ColorAndOpacity(Look.TextColor)
				]
			]
		];
		// clang-format on
	}
	return Column;
}
