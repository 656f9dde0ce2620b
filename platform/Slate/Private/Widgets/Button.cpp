#include "Widgets/Input/SButton.h"
#include "Widgets/SNullWidget.h"

void SButton::Construct(const FArguments& InArgs)
{
	Style = InArgs._ButtonStyle;
	OnClicked = InArgs._OnClicked;
	ChildSlot.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._ContentPadding)[InArgs._Content.IsValid() ? InArgs._Content.ToSharedRef() : SNullWidget::NullWidget];
}

FReply SButton::ExecuteOnClick()
{
	return OnClicked.IsBound() ? OnClicked.Execute() : FReply::Handled();
}

FReply SButton::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	return IsEnabled() && (Key == EKeys::Enter || Key == EKeys::SpaceBar) ? ExecuteOnClick() : FReply::Unhandled();
}
