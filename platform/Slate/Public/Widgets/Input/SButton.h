#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SCompoundWidget.h"

class SLATE_API SButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
		, _ContentPadding(FMargin(4.0f, 2.0f))
	{
	}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FButtonStyle& GetButtonStyle() const { return *Style; }
	/** A click, by mouse or key, on a button that can be clicked. */
	FReply ExecuteOnClick();
	/** Enter and the space bar click. */
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	const FButtonStyle* Style = nullptr;
	FOnClicked OnClicked;
};
