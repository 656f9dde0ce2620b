#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/Text/ISlateEditableTextWidget.h"

/** A text of many lines that can be selected and copied and, unless it is read-only, edited. Its characters are shown as they are. */
class SLATE_API SMultiLineEditableText : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiLineEditableText)
		: _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
	{
	}
	SLATE_ATTRIBUTE(FText, Text)
	/** Shown while the text is empty. */
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	/** The style's unless it is given. */
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(bool, AutoWrapText)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	/** Gets each key first; what it does not handle goes on to the text. */
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return Text.Get(); }
	/** The caret stays where it is, as far as the new text goes. */
	void SetText(TAttribute<FText> InText);
	FText GetHintText() const { return HintText.Get(); }
	FSlateFontInfo GetFont() const { return Font.Get(TextStyle->Font); }
	FSlateColor GetForegroundColor() const { return TextStyle->ColorAndOpacity; }
	const FTextBlockStyle& GetTextStyle() const { return *TextStyle; }
	bool GetAutoWrapText() const { return AutoWrapText.Get(); }
	bool IsTextReadOnly() const { return IsReadOnly.Get(); }

	/** Moves the caret. */
	void GoTo(const ETextLocation NewLocation);
	/** At the caret, which then stands behind it. */
	void InsertTextAtCursor(const FString& InString);
	/** Enter writes a line end, BackSpace takes a character away; other editing is for what shows the text. */
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	/** The stand-in's own: to the handler alone, for what shows the text and edits it by itself. */
	FReply OfferToKeyDownHandler(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
	{
		return OnKeyDownHandler.IsBound() ? OnKeyDownHandler.Execute(MyGeometry, InKeyEvent) : FReply::Unhandled();
	}
	/** The stand-in's own: the caret's place, counted in the text's code units; and moving it. */
	int32 GetCaret() const { return Caret; }
	void SetCaret(int32 NewCaret);

private:
	bool CanEdit() const { return IsEnabled() && !IsTextReadOnly(); }
	void DeleteBeforeCaret();

	TAttribute<FText> Text;
	TAttribute<FText> HintText;
	const FTextBlockStyle* TextStyle = nullptr;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<bool> AutoWrapText;
	TAttribute<bool> IsReadOnly;
	FOnKeyDown OnKeyDownHandler;
	int32 Caret = 0;
};
