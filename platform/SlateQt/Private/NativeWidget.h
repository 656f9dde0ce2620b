#pragma once

#include "Canvas.h"
#include "Input/Events.h"
#include "SlateQtHost/Qt.h"
#include "Widgets/SWidget.h"

class FViewContents;

/** The Qt side of one widget that can be seen. The Slate widget is alive while Follow runs; for events it is asked for anew. */
class FNativeWidget
{
public:
	/** @param InQt is this one's from now on */
	FNativeWidget(SWidget& InSlate, QWidget* InQt)
		: SlateWidget(InSlate.AsShared())
		, QtWidget(InQt)
	{
	}
	virtual ~FNativeWidget();
	UE_NONCOPYABLE(FNativeWidget)

	/** Makes the Qt widget what the Slate widget is now. Its place and whether it is enabled are set already. */
	virtual void Follow(FViewContents& Contents) = 0;
	/** The widget, or something below this child of it, has changed in a way that may change sizes. */
	virtual void OnChanged(const SWidget& WidgetOrChild) {}
	/** Whether it has something that the user would miss when it scrolls out of view. */
	virtual bool IsWorthKeeping() const { return false; }

	/** Null once Qt has deleted it. */
	QWidget* GetQt() const { return QtWidget; }
	TSharedPtr<SWidget> GetSlate() const { return SlateWidget.Pin(); }

	/** In which pass it was seen last. */
	int64 LastPass = 0;
	bool bEnabled = true;

private:
	TWeakPtr<SWidget> SlateWidget;
	QPointer<QWidget> QtWidget;
};

/** Makes the native widget for the Slate widget's class; null for one that needs none. */
TUniquePtr<FNativeWidget> MakeNativeWidget(SWidget& Widget, QWidget* Parent);

// What each kind is made by.
TUniquePtr<FNativeWidget> MakeNativeLabel(SWidget& TextBlock, QWidget* Parent);
TUniquePtr<FNativeWidget> MakeNativeEditor(SWidget& EditableText, QWidget* Parent);
TUniquePtr<FNativeWidget> MakeNativeButton(SWidget& Button, QWidget* Parent);
TUniquePtr<FNativeWidget> MakeNativePicker(SWidget& Picker, QWidget* Parent);
TUniquePtr<FNativeWidget> MakeNativeScroller(SWidget& ScrollBox, QWidget* Parent);

/** The event as Slate's widgets know it. */
FKeyEvent ToKeyEvent(const QKeyEvent& Event);
/** To the widget and those above it, until one handles it. @return whether one did */
bool OfferKey(TSharedPtr<SWidget> Widget, const QKeyEvent& Event);
