#pragma once

#include "Canvas.h"
#include "Input/Events.h"
#include "SlateQtHost/Qt.h"
#include "Widgets/SWidget.h"

class FViewContents;

/**
 * The Qt side of one widget that can be seen: the second base of a class of Qt widgets, which Qt deletes. That may be some events after it
 * has been dropped, and after the Slate widget is gone.
 */
class FNativeWidget
{
public:
	explicit FNativeWidget(SWidget& InSlate)
		: SlateWidget(InSlate.AsShared())
	{
	}
	virtual ~FNativeWidget() = default;
	UE_NONCOPYABLE(FNativeWidget)

	virtual QWidget& GetQt() = 0;
	/** Makes the Qt widget what the Slate widget is now. Its place and whether it is enabled are set already. */
	virtual void Follow(FViewContents& Contents) = 0;
	/** The widget, or something below this child of it, has changed in a way that may change sizes. */
	virtual void OnChanged(const SWidget& WidgetOrChild) {}
	/** Whether it has something that the user would miss when it scrolls out of view. */
	virtual bool IsWorthKeeping() const { return false; }

	/** Null once it is gone, or this was dropped: then nothing is to be done any more. */
	TSharedPtr<SWidget> GetSlate() const { return SlateWidget.Pin(); }
	/** Nobody shows it any more. */
	void Drop();

	/** In which pass it was seen last. */
	int64 LastPass = 0;
	bool bEnabled = true;

private:
	TWeakPtr<SWidget> SlateWidget;
};

/** Makes the native widget for the Slate widget's class, on its parent; null for one that needs none. */
FNativeWidget* MakeNativeWidget(SWidget& Widget, QWidget* Parent);

// What each kind is made by.
FNativeWidget* MakeNativeLabel(SWidget& TextBlock, QWidget* Parent);
FNativeWidget* MakeNativeEditor(SWidget& EditableText, QWidget* Parent);
FNativeWidget* MakeNativeButton(SWidget& Button, QWidget* Parent);
FNativeWidget* MakeNativePicker(SWidget& Picker, QWidget* Parent);
FNativeWidget* MakeNativeScroller(SWidget& ScrollBox, QWidget* Parent);

/** The event as Slate's widgets know it. */
FKeyEvent ToKeyEvent(const QKeyEvent& Event);
/** To the widget and those above it, until one handles it. @return whether one did */
bool OfferKey(TSharedPtr<SWidget> Widget, const QKeyEvent& Event);
