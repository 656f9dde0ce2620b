#pragma once

#include "NativeWidget.h"
#include "WidgetLayout.h"

#include <memory>
#include <unordered_map>

/**
 * A tree as it shows: in each pass it is walked from the root, and every widget that shows gets its place, its fill on the canvas or its
 * native widget. What no longer shows loses its native widget.
 */
class FViewContents
{
public:
	FViewContents(const TSharedRef<SWidget>& InRoot, FCanvas& InCanvas);
	~FViewContents();
	UE_NONCOPYABLE(FViewContents)

	/** Brings what is to be seen up to date. */
	void Refresh();
	/** What the tree needs at least. */
	QSize GetLeastSize();

	// For the native widgets that hold others, from inside Follow.
	FWidgetLayout& GetLayout() { return Layout; }
	void PlaceChildren(SWidget& Parent, FCanvas& Canvas) { PlaceChildren(Parent, Canvas.rect(), Canvas); }
	void Place(SWidget& Widget, const QRectF& Area, FCanvas& Canvas);

	const TSharedRef<SWidget>& GetRoot() const { return Root; }
	/** The first text that can be edited now; null when there is none to be seen. */
	QWidget* FindInput() const;

private:
	void PlaceChildren(SWidget& Parent, const QRectF& Area, FCanvas& Canvas);
	void OnInvalidated(SWidget& Widget, EInvalidateWidgetReason Reason);
	/** Null for a widget that needs none. */
	FNativeWidget* FindOrMakeNative(SWidget& Widget, FCanvas& Canvas);
	FNativeWidget* FindNative(const SWidget& Widget) const;
	void Show(FNativeWidget& Native, const QRectF& Area);
	/** What has the focus can't be used for a while; the canvas keeps it for it. */
	void TakeFocus(const FNativeWidget& From);
	/** Gives it to the input, or else back, as soon as one of them can be used. */
	void ReturnFocus();
	void DropUnseen();
	/** @return whether it is kept, hidden, for when it shows again; else it was dropped */
	bool HideUnseen(FNativeWidget& Native);
	void OrderFocus();

	TSharedRef<SWidget> Root;
	FCanvas& RootCanvas;
	FWidgetLayout Layout;
	/** Deleted by Qt: it is there as long as its Qt widget is. */
	struct FShownNative
	{
		FNativeWidget* Native;
		QPointer<QWidget> QtWidget;
	};
	std::unordered_map<const SWidget*, FShownNative> Natives;
	int64 Pass = 0;
	bool bEnabled = true;
	std::vector<QPointer<QWidget>> FocusOrder;
	std::vector<QPointer<QWidget>> NextFocusOrder;
	TWeakPtr<SWidget> LostFocus;
	FDelegateHandle InvalidatedHandle;
};
