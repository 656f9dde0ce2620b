#pragma once

#include "Widgets/SPanel.h"

#include <utility>

/** Where the user has scrolled to, in Slate units from the start. */
DECLARE_DELEGATE_OneParam(FOnUserScrolled, float);

/**
 * Children below each other, of which a part shows. The scroll bar shows when it is needed, and the mouse wheel scrolls.
 * Adding a child touches no other.
 */
class SLATE_API SScrollBox : public SPanel
{
public:
	class FSlot : public FSlotBase
	{
	public:
		struct FSlotArguments : TBasicLayoutWidgetSlotArguments<FSlot, FSlotArguments>
		{
		};
	};

	/** Adds the slot when the statement that makes it ends. */
	struct SLATE_API FScopedWidgetSlotArguments : FSlot::FSlotArguments
	{
		explicit FScopedWidgetSlotArguments(SScrollBox& InBox)
			: Box(InBox)
		{
		}
		~FScopedWidgetSlotArguments();
		UE_NONCOPYABLE(FScopedWidgetSlotArguments)

	private:
		SScrollBox& Box;
	};

	SLATE_BEGIN_ARGS(SScrollBox) {}
	SLATE_SLOT_ARGUMENT(SScrollBox::FSlot, Slots)
	SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
	SLATE_END_ARGS()

	SScrollBox()
		: Children(*this)
	{
	}
	void Construct(const FArguments& InArgs);
	FChildren* GetChildren() override { return &Children; }

	static FSlot::FSlotArguments Slot() { return {}; }
	/** At the end. */
	FScopedWidgetSlotArguments AddSlot() { return FScopedWidgetSlotArguments(*this); }
	/** The slot that holds this widget; without effect when none does. */
	void RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove);

	/** The view shows the last child to its end, from the next frame on. */
	void ScrollToEnd();
	/** The stand-in's own: whether the view is where ScrollToEnd would bring it. */
	bool IsAtEnd() const { return SlotsAtEnd >= Children.Num(); }
	/** The stand-in's own, for what shows the box: whether its view has to go to the end in this frame, whatever was added since. */
	bool TakeScrollToEnd() { return std::exchange(bScrollToEnd, false) || IsAtEnd(); }
	/** The stand-in's own: the user has moved the view. @param bToEnd as far as it goes */
	void ScrollByUser(float NewScrollOffset, bool bToEnd);

private:
	TPanelChildren<FSlot> Children;
	FOnUserScrolled OnUserScrolled;
	/** How many slots there were up to the place that the view's end shows; none when the user went elsewhere. */
	int32 SlotsAtEnd = 0;
	bool bScrollToEnd = false;
};
