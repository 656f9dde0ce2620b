#include "Widget.h"

#include "Agent/KestrinInterface.h"
#include "Brushes/SlateColorBrush.h"
#include "HAL/PlatformTime.h"
#include "KestrinSettings.h"
#include "Styling/AppStyle.h"
#include "Styling/CoreStyle.h"
#include "WelcomeText.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "SKestrinWidget"

// What the panel is made of; Controls.cpp tells what it does.

bool SKestrinWidget::bUserScrolled = false;
float SKestrinWidget::LastUserScrollTime = 0.0f;

/** A button of the row below the input. */
struct SKestrinWidget::FControl
{
	FText Label;
	const FButtonStyle& Style;
	float MinDesiredWidth;
	FLinearColor TextColor;
	FReply (SKestrinWidget::*OnClicked)();
	TAttribute<bool> Enabled;
	TAttribute<EVisibility> Visible;
};

namespace
{
const FLinearColor StrongText(1.0f, 1.0f, 1.0f, 1.0f);
const FLinearColor PlainText(0.7f, 0.7f, 0.7f, 1.0f);

FLinearColor Shifted(const FLinearColor& Base, float Amount)
{
	return FLinearColor(Base.R + Amount, Base.G + Amount, Base.B + Amount, 1.0f);
}

void SetBrushes(FButtonStyle& Style, const FLinearColor& Base)
{
	Style.SetNormal(FSlateColorBrush(Shifted(Base, -0.3f)))
		.SetHovered(FSlateColorBrush(Base))
		.SetPressed(FSlateColorBrush(Shifted(Base, 0.1f)))
		.SetDisabled(FSlateColorBrush(FLinearColor(0.2f, 0.2f, 0.2f, 0.5f)));
}

SHorizontalBox::FSlot::FSlotArguments ControlSlot(const TSharedRef<SWidget>& Control)
{
	SHorizontalBox::FSlot::FSlotArguments Slot = SHorizontalBox::Slot();
	Slot.AutoWidth().Padding(0.0f, 0.0f, 8.0f, 0.0f)[Control];
	return Slot;
}
}

void SKestrinWidget::Construct(const FArguments& InArgs)
{
	SetCanTick(true);
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.OnAddStatusMessageDelegate.BindSP(this, &SKestrinWidget::AddStatusMessage);
	Interface.OnAddDiffMessageDelegate.BindSP(this, &SKestrinWidget::AddDiffMessage);
	ModeOptions = { MakeShared<FString>(TEXT("Explainer Mode")), MakeShared<FString>(TEXT("Explainer And Implementer Mode")) };
	MakeStyles();
	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().FillHeight(1.0f).Padding(8.0f)
		[
			MakeChat()
		]
		+ SVerticalBox::Slot().AutoHeight().Padding(8.0f)
		[
			SNew(SBorder)
			.BorderImage(FAppStyle::Get().GetBrush("Menu.Background"))
			.BorderBackgroundColor(FLinearColor(0.2f, 0.2f, 0.2f, 1.0f))
			.Padding(8.0f)
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()
				[
					MakeInput()
				]
				+ SVerticalBox::Slot().AutoHeight().Padding(0.0f, 8.0f, 0.0f, 0.0f)
				[
					SNew(SHorizontalBox)
					+ SHorizontalBox::Slot().AutoWidth().HAlign(HAlign_Right).Padding(0.0f)
					[
						SNew(SBox)
						.MinDesiredHeight(30.0f)
						[
							MakeControls()
						]
					]
				]
			]
		]
	];
	// clang-format on
	AddStatusMessage(GetWelcomeText(), FKestrinInterface::KestrinColor, FKestrinInterface::BoldFontName, 10.0f);
}

SKestrinWidget::~SKestrinWidget()
{
	// A newer panel may have taken them over.
	FKestrinInterface& Interface = FKestrinInterface::Get();
	if (Interface.OnAddStatusMessageDelegate.IsBoundToObject(this))
	{
		Interface.OnAddStatusMessageDelegate.Unbind();
	}
	if (Interface.OnAddDiffMessageDelegate.IsBoundToObject(this))
	{
		Interface.OnAddDiffMessageDelegate.Unbind();
	}
	StopDotAnimation();
}

void SKestrinWidget::MakeStyles()
{
	SetBrushes(PrimaryButtonStyle, FKestrinInterface::UserColor);
	PauseButtonStyle = PrimaryButtonStyle;
	SetBrushes(PauseButtonStyle, FLinearColor(0.7f, 0.5f, 0.0f, 1.0f));
	EndButtonStyle = PrimaryButtonStyle;
	SetBrushes(EndButtonStyle, FLinearColor(1.0f, 0.392f, 0.392f, 1.0f));
	ButtonFont = FCoreStyle::GetDefaultFontStyle("Bold", 10);
}

TSharedRef<SWidget> SKestrinWidget::MakeChat()
{
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FAppStyle::Get().GetBrush("Menu.Background"))
		.BorderBackgroundColor(FLinearColor(0.1f, 0.1f, 0.1f, 1.0f))
		.Padding(0.0f)
		[
			SAssignNew(ChatScrollBox, SScrollBox)
			.OnUserScrolled(this, &SKestrinWidget::OnUserScrolledChat)
		];
	// clang-format on
}

TSharedRef<SWidget> SKestrinWidget::MakeInput()
{
	// clang-format off
	return SNew(SBox)
		.MinDesiredHeight(80.0f)
		[
			SNew(SBorder)
			.BorderImage(FAppStyle::Get().GetBrush("Menu.Background"))
			.BorderBackgroundColor(FLinearColor(0.15f, 0.15f, 0.15f, 1.0f))
			.Padding(FMargin(0.0f, 0.0f, 0.0f, 8.0f))
			[
				SAssignNew(InputTextBox, SMultiLineEditableText)
				.HintText(LOCTEXT("Hint", "Enter your prompt here..."))
				.TextStyle(&FAppStyle::Get(), "NormalText")
				.AutoWrapText(true)
				.IsEnabled(this, &SKestrinWidget::CanType)
				.OnKeyDownHandler(this, &SKestrinWidget::OnKeyDown)
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SKestrinWidget::MakeControls()
{
	const auto Enabled = [this](bool (SKestrinWidget::*Rule)() const) { return TAttribute<bool>::CreateSP(this, Rule); };
	const auto Visible = [this](EVisibility (SKestrinWidget::*Rule)() const) { return TAttribute<EVisibility>::CreateSP(this, Rule); };
	const TAttribute<EVisibility> Always(EVisibility::Visible);

	StartButton = MakeButton({ LOCTEXT("Start", "[ Start ]"), PrimaryButtonStyle, 100.0f, StrongText, &SKestrinWidget::OnStartClicked,
		Enabled(&SKestrinWidget::CanStart), Always });
	ContinueButton = MakeButton({ LOCTEXT("Continue", "Continue"), PrimaryButtonStyle, 100.0f, PlainText,
		&SKestrinWidget::OnContinueClicked, true, Visible(&SKestrinWidget::GetContinueVisibility) });
	const TSharedRef<SWidget> ApproveButton = MakeButton({ LOCTEXT("Approve", "Approve"), PrimaryButtonStyle, 100.0f, PlainText,
		&SKestrinWidget::OnApproveClicked, true, Visible(&SKestrinWidget::GetApproveVisibility) });
	PauseButton = MakeButton({ LOCTEXT("Pause", "Pause"), PauseButtonStyle, 100.0f, PlainText, &SKestrinWidget::OnPauseClicked, true,
		Visible(&SKestrinWidget::GetPauseVisibility) });
	const TSharedRef<SWidget> UndoButton = MakeButton({ LOCTEXT("Undo", "Undo"), PrimaryButtonStyle, 80.0f, PlainText,
		&SKestrinWidget::OnUndoClicked, Enabled(&SKestrinWidget::CanUndo), Always });
	const TSharedRef<SWidget> RedoButton = MakeButton({ LOCTEXT("Redo", "Redo"), PrimaryButtonStyle, 80.0f, PlainText,
		&SKestrinWidget::OnRedoClicked, Enabled(&SKestrinWidget::CanRedo), Always });
	EndButton = MakeButton({ LOCTEXT("End", "[ End ]"), EndButtonStyle, 100.0f, StrongText, &SKestrinWidget::OnEndClicked,
		Enabled(&SKestrinWidget::CanEnd), Always });

	// clang-format off
	return SNew(SHorizontalBox)
		+ ControlSlot(MakeModePicker())
		+ ControlSlot(StartButton.ToSharedRef())
		+ ControlSlot(ContinueButton.ToSharedRef())
		+ ControlSlot(ApproveButton)
		+ ControlSlot(PauseButton.ToSharedRef())
		+ ControlSlot(UndoButton)
		+ ControlSlot(RedoButton)
		+ ControlSlot(EndButton.ToSharedRef());
	// clang-format on
}

TSharedRef<SButton> SKestrinWidget::MakeButton(const FControl& Control)
{
	// clang-format off
	return SNew(SButton)
		.ButtonStyle(&Control.Style)
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)
		.IsEnabled(Control.Enabled)
		.Visibility(Control.Visible)
		.OnClicked(this, Control.OnClicked)
		[
			SNew(SBox)
			.MinDesiredWidth(Control.MinDesiredWidth)
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock)
				.Text(Control.Label)
				.Font(ButtonFont)
				.ColorAndOpacity(Control.TextColor)
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SKestrinWidget::MakeModePicker()
{
	// clang-format off
	return SNew(SComboBox<TSharedPtr<FString>>)
		.OptionsSource(&ModeOptions)
		.OnGenerateWidget_Lambda([](TSharedPtr<FString> Label) { return SNew(STextBlock).Text(FText::FromString(*Label)); })
		.OnSelectionChanged(this, &SKestrinWidget::OnModePicked)
		[
			SNew(STextBlock)
			.Text(this, &SKestrinWidget::GetModeLabel)
		];
	// clang-format on
}

FText SKestrinWidget::GetModeLabel() const
{
	return FText::FromString(*ModeOptions[static_cast<int32>(GetDefault<UKestrinSettings>()->Mode)]);
}

void SKestrinWidget::OnModePicked(TSharedPtr<FString> Label, ESelectInfo::Type SelectInfo)
{
	const int32 Index = ModeOptions.Find(Label);
	if (Index != INDEX_NONE)
	{
		GetMutableDefault<UKestrinSettings>()->Mode = static_cast<EKestrinMode>(Index);
	}
}

void SKestrinWidget::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	const double SinceScroll = FPlatformTime::Seconds() - static_cast<double>(LastUserScrollTime);
	if (ChatScrollBox.IsValid() && bUserScrolled && SinceScroll > GetDefault<UKestrinSettings>()->AutoScrollPauseSeconds)
	{
		bUserScrolled = false;
	}
}

void SKestrinWidget::OnUserScrolledChat(float ScrollOffset)
{
	bUserScrolled = true;
	LastUserScrollTime = static_cast<float>(FPlatformTime::Seconds());
}

#undef LOCTEXT_NAMESPACE
