#pragma once

// SlateCore: the tree of widgets that a user interface is, how it is written down in code, and what it looks like by name: attributes,
// slots, visibility, active timers, key events, brushes, fonts, style sets.
//
// The tree is the truth and is complete without a window: it can be built, asked, driven by keys and clocks. Places and sizes, drawing and
// the mouse belong to what shows it. It leaves out what the widgets here do not need: painting, hit tests, drag and drop, animation.

#include "Application/ActiveTimerHandle.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Children.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Types/WidgetActiveTimerDelegate.h"
#include "Widgets/InvalidateWidgetReason.h"

/** What every widget can be given where it is declared. */
struct FSlateBaseNamedArgs
{
	TAttribute<bool> _IsEnabled = true;
	TAttribute<EVisibility> _Visibility = EVisibility::Visible;
	TAttribute<FText> _ToolTipText;
};

/** A node of the tree. Made by SNew, owned by its parent's slot. Game thread. */
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
public:
	SWidget() = default;
	virtual ~SWidget();
	UE_NONCOPYABLE(SWidget)

	/** By SNew, before the class's own Construct. @param TypeName lives as long as the process */
	void SWidgetConstruct(const ANSICHAR* TypeName, const FSlateBaseNamedArgs& Args);

	/** As SNew named it. */
	FString GetTypeAsString() const { return WidgetType; }
	virtual FChildren* GetChildren() = 0;
	/** Null at the root, and for a widget that has no place yet or any more. */
	TSharedPtr<SWidget> GetParentWidget() const { return ParentWidget.Pin(); }

	EVisibility GetVisibility() const { return Visibility.Get(); }
	void SetVisibility(TAttribute<EVisibility> InVisibility) { Visibility = MoveTemp(InVisibility); }
	/** The widget's own state; one whose parent is disabled can't be used either. */
	bool IsEnabled() const { return EnabledState.Get(); }
	void SetEnabled(TAttribute<bool> InEnabledState) { EnabledState = MoveTemp(InEnabledState); }
	FText GetToolTipText() const { return ToolTipText.Get(); }

	/** Whether Tick is called each frame; it is not until this is asked for. */
	void SetCanTick(bool bInCanTick);
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) {}
	/** A key that no widget further down has handled. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) { return FReply::Unhandled(); }

	/**
	 * Calls the function whenever so many seconds of the platform's clock have gone by, for the first time after that period; 0 is every
	 * frame. It ends when the function answers Stop, when it is unregistered, and with the widget.
	 */
	TSharedRef<FActiveTimerHandle> RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction);
	void UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle);

	/** Tells what shows the tree that it must look here again. */
	void Invalidate(EInvalidateWidgetReason InvalidateReason);

	/** The stand-in's own: fired by Invalidate of any widget, from inside the call. */
	static TMulticastDelegate<SWidget&, EInvalidateWidgetReason>& OnInvalidated();

private:
	friend class FSlotBase;

	const ANSICHAR* WidgetType = "";
	TWeakPtr<SWidget> ParentWidget;
	TAttribute<EVisibility> Visibility;
	TAttribute<bool> EnabledState;
	TAttribute<FText> ToolTipText;
	FTSTicker::FDelegateHandle TickHandle;
	TArray<TSharedRef<FActiveTimerHandle>> ActiveTimers;
};

#include "Widgets/DeclarativeSyntaxSupport.h"
