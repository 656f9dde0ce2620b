#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

void STextBlock::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	TextStyle = InArgs._TextStyle;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Justification = InArgs._Justification;
}

void STextBlock::SetText(TAttribute<FText> InText)
{
	Text = MoveTemp(InText);
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SMultiLineEditableText::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	HintText = InArgs._HintText;
	TextStyle = InArgs._TextStyle;
	Font = InArgs._Font;
	AutoWrapText = InArgs._AutoWrapText;
	IsReadOnly = InArgs._IsReadOnly;
	OnKeyDownHandler = InArgs._OnKeyDownHandler;
}

void SMultiLineEditableText::SetText(TAttribute<FText> InText)
{
	Text = MoveTemp(InText);
	SetCaret(Caret);
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SMultiLineEditableText::SetCaret(int32 NewCaret)
{
	Caret = FMath::Clamp(NewCaret, 0, GetText().ToString().Len());
}

void SMultiLineEditableText::GoTo(const ETextLocation NewLocation)
{
	SetCaret(NewLocation == ETextLocation::BeginningOfDocument ? 0 : GetText().ToString().Len());
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SMultiLineEditableText::InsertTextAtCursor(const FString& InString)
{
	FString Edited = GetText().ToString();
	SetCaret(Caret);
	Edited.InsertAt(Caret, InString);
	SetText(FText::FromString(Edited));
	SetCaret(Caret + InString.Len());
}

void SMultiLineEditableText::DeleteBeforeCaret()
{
	FString Edited = GetText().ToString();
	SetCaret(Caret);
	// Of a character of two code units, both go.
	const bool bPair = Caret >= 2 && (Edited[Caret - 1] & 0xFC00) == 0xDC00 && (Edited[Caret - 2] & 0xFC00) == 0xD800;
	const int32 Count = FMath::Min(Caret, bPair ? 2 : 1);
	Edited.RemoveAt(Caret - Count, Count);
	Caret -= Count;
	SetText(FText::FromString(Edited));
}

FReply SMultiLineEditableText::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (OfferToKeyDownHandler(MyGeometry, InKeyEvent).IsEventHandled())
	{
		return FReply::Handled();
	}
	if (CanEdit() && InKeyEvent.GetKey() == EKeys::Enter)
	{
		InsertTextAtCursor(TEXT("\n"));
		return FReply::Handled();
	}
	if (CanEdit() && InKeyEvent.GetKey() == EKeys::BackSpace)
	{
		DeleteBeforeCaret();
		return FReply::Handled();
	}
	return FReply::Unhandled();
}
