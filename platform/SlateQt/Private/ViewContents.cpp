#include "ViewContents.h"

#include "SlateLook.h"
#include "Widgets/Layout/SBorder.h"

namespace
{
/** Whether it is a text that is for writing. */
bool IsWritten(const QWidget* Qt)
{
	const QTextEdit* const Text = qobject_cast<const QTextEdit*>(Qt);
	return Text && !Text->isReadOnly();
}

/** Whether that can be done now. */
bool IsInput(const QWidget* Qt)
{
	return IsWritten(Qt) && Qt->isEnabled();
}
}

FViewContents::FViewContents(const TSharedRef<SWidget>& InRoot, FCanvas& InCanvas)
	: Root(InRoot)
	, RootCanvas(InCanvas)
{
	InvalidatedHandle = SWidget::OnInvalidated().AddRaw(this, &FViewContents::OnInvalidated);
}

FViewContents::~FViewContents()
{
	SWidget::OnInvalidated().Remove(InvalidatedHandle);
	// The focus moves on while they go, and whoever gets it may ask for the input.
	FocusOrder.clear();
	for (const auto& [Widget, Shown] : Natives)
	{
		if (Shown.QtWidget)
		{
			Shown.Native->Drop();
		}
	}
}

void FViewContents::OnInvalidated(SWidget& Widget, EInvalidateWidgetReason Reason)
{
	if (Reason == EInvalidateWidgetReason::Paint)
	{
		return;
	}
	const SWidget* Below = &Widget;
	for (TSharedPtr<SWidget> Each = Widget.AsShared(); Each.IsValid(); Each = Each->GetParentWidget())
	{
		Layout.Forget(*Each);
		if (FNativeWidget* const Native = FindNative(*Each))
		{
			Native->OnChanged(*Below);
		}
		Below = Each.Get();
	}
}

void FViewContents::Refresh()
{
	++Pass;
	NextFocusOrder.clear();
	RootCanvas.BeginFills();
	Place(*Root, RootCanvas.rect(), RootCanvas);
	RootCanvas.EndFills();
	DropUnseen();
	Layout.DropUnused();
	OrderFocus();
	ReturnFocus();
}

QSize FViewContents::GetLeastSize()
{
	const qreal Width = Layout.GetLeastWidth(*Root);
	const qreal Given = std::max(Width, static_cast<qreal>(RootCanvas.width()));
	return QSize(qRound(Width), qRound(Layout.GetHeight(*Root, Given)));
}

void FViewContents::Place(SWidget& Widget, const QRectF& Area, FCanvas& Canvas)
{
	// In this order: a widget may change its enabled state when it is asked whether it shows.
	if (!Widget.GetVisibility().IsVisible() || !Area.intersects(Canvas.rect()))
	{
		return;
	}
	const TGuardValue<bool> Above(bEnabled, bEnabled && Widget.IsEnabled());
	if (FNativeWidget* const Native = FindOrMakeNative(Widget, Canvas))
	{
		Show(*Native, Area);
		Native->Follow(*this);
		return;
	}
	if (const SBorder* const Border = dynamic_cast<const SBorder*>(&Widget))
	{
		Canvas.AddFill(Area, GetFill(*Border->GetBorderImage(), Border->GetBorderBackgroundColor().GetSpecifiedColor()));
	}
	PlaceChildren(Widget, Area, Canvas);
}

void FViewContents::PlaceChildren(SWidget& Parent, const QRectF& Area, FCanvas& Canvas)
{
	Layout.PlaceChildren(Parent, Area, Canvas.rect(), [&](SWidget& Child, const QRectF& ChildArea) { Place(Child, ChildArea, Canvas); });
}

FNativeWidget* FViewContents::FindNative(const SWidget& Widget) const
{
	const auto Found = Natives.find(&Widget);
	const bool bThere = Found != Natives.end() && Found->second.QtWidget && Found->second.Native->GetSlate().Get() == &Widget;
	return bThere ? Found->second.Native : nullptr;
}

FNativeWidget* FViewContents::FindOrMakeNative(SWidget& Widget, FCanvas& Canvas)
{
	FNativeWidget* const Known = FindNative(Widget);
	if (Known && Known->GetQt().parentWidget() == &Canvas)
	{
		return Known;
	}
	FNativeWidget* const Made = MakeNativeWidget(Widget, &Canvas);
	if (Made)
	{
		FShownNative& Shown = Natives[&Widget];
		if (Shown.QtWidget)
		{
			Shown.Native->Drop();
		}
		Shown = { Made, &Made->GetQt() };
	}
	return Made;
}

void FViewContents::Show(FNativeWidget& Native, const QRectF& Area)
{
	QWidget& Qt = Native.GetQt();
	Native.LastPass = Pass;
	if (const QRect Pixels = ToPixels(Area); Qt.geometry() != Pixels)
	{
		Qt.setGeometry(Pixels);
	}
	if (Native.bEnabled != bEnabled)
	{
		Native.bEnabled = bEnabled;
		if (!bEnabled && Qt.hasFocus())
		{
			TakeFocus(Native);
		}
		Qt.setEnabled(bEnabled);
	}
	if (const QString ToolTip = ToQString(Native.GetSlate()->GetToolTipText().ToString()); Qt.toolTip() != ToolTip)
	{
		Qt.setToolTip(ToolTip);
	}
	if (Qt.isHidden())
	{
		Qt.show();
	}
	if ((Qt.focusPolicy() & Qt::TabFocus) != 0)
	{
		// The canvas has the focus in place of an input that can't be used; the Tab key goes on from there.
		if (IsWritten(&Qt))
		{
			NextFocusOrder.push_back(&RootCanvas);
		}
		NextFocusOrder.push_back(&Qt);
	}
}

void FViewContents::DropUnseen()
{
	for (auto Each = Natives.begin(); Each != Natives.end();)
	{
		const FShownNative& Shown = Each->second;
		const bool bStays = Shown.QtWidget && (Shown.Native->LastPass == Pass || HideUnseen(*Shown.Native));
		Each = bStays ? std::next(Each) : Natives.erase(Each);
	}
}

bool FViewContents::HideUnseen(FNativeWidget& Native)
{
	if (Native.GetQt().hasFocus())
	{
		TakeFocus(Native);
	}
	if (Native.GetSlate().IsValid() && Native.IsWorthKeeping())
	{
		Native.GetQt().hide();
		return true;
	}
	Native.Drop();
	return false;
}

void FViewContents::OrderFocus()
{
	if (FocusOrder == NextFocusOrder)
	{
		return;
	}
	FocusOrder = NextFocusOrder;
	for (SIZE_T Index = 1; Index < FocusOrder.size(); ++Index)
	{
		QWidget::setTabOrder(FocusOrder[Index - 1], FocusOrder[Index]);
	}
}

QWidget* FViewContents::FindInput() const
{
	const auto Found = std::find_if(FocusOrder.begin(), FocusOrder.end(), [](const QPointer<QWidget>& Each) { return IsInput(Each); });
	return Found == FocusOrder.end() ? nullptr : Found->data();
}

void FViewContents::TakeFocus(const FNativeWidget& From)
{
	LostFocus = From.GetSlate();
	RootCanvas.setFocus(Qt::OtherFocusReason);
}

void FViewContents::ReturnFocus()
{
	if (!RootCanvas.hasFocus())
	{
		return;
	}
	const TSharedPtr<SWidget> Lost = LostFocus.Pin();
	FNativeWidget* const Native = Lost.IsValid() ? FindNative(*Lost) : nullptr;
	QWidget* const Before = Native && Native->LastPass == Pass && Native->bEnabled ? &Native->GetQt() : nullptr;
	// Whoever clicked a button goes on by typing; a space that was meant for the input would click it again.
	QWidget* const Input = IsInput(Before) ? Before : FindInput();
	if (QWidget* const To = Input ? Input : Before)
	{
		LostFocus.Reset();
		To->setFocus(Qt::OtherFocusReason);
	}
}
