#include "ViewContents.h"

#include "SlateLook.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Text/SMultiLineEditableText.h"

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
	Natives.clear();
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
	const qreal Width = Layout.GetWidth(*Root);
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
	return Found != Natives.end() && Found->second->GetSlate().Get() == &Widget ? Found->second.Get() : nullptr;
}

FNativeWidget* FViewContents::FindOrMakeNative(SWidget& Widget, FCanvas& Canvas)
{
	FNativeWidget* const Known = FindNative(Widget);
	if (Known && Known->GetQt() && Known->GetQt()->parentWidget() == &Canvas)
	{
		return Known;
	}
	TUniquePtr<FNativeWidget> Made = MakeNativeWidget(Widget, &Canvas);
	FNativeWidget* const Native = Made.Get();
	if (Native)
	{
		Natives[&Widget] = MoveTemp(Made);
	}
	return Native;
}

void FViewContents::Show(FNativeWidget& Native, const QRectF& Area)
{
	QWidget& Qt = *Native.GetQt();
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
	if (bEnabled && (Qt.focusPolicy() & Qt::TabFocus) != 0)
	{
		NextFocusOrder.push_back(&Qt);
	}
}

void FViewContents::DropUnseen()
{
	std::erase_if(Natives,
		[this](const auto& Entry)
		{
		FNativeWidget& Native = *Entry.second;
		QWidget* const Qt = Native.GetQt();
		if (Native.LastPass == Pass)
		{
			return false;
		}
		if (Qt && Qt->hasFocus())
		{
			TakeFocus(Native);
		}
		const bool bKeep = Qt && Native.GetSlate().IsValid() && Native.IsWorthKeeping();
		if (bKeep)
		{
			Qt->hide();
		}
		return !bKeep;
	});
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
	for (const QPointer<QWidget>& Each : FocusOrder)
	{
		const QTextEdit* const Text = qobject_cast<const QTextEdit*>(Each.data());
		if (Text && !Text->isReadOnly() && Text->isEnabled())
		{
			return Each;
		}
	}
	return nullptr;
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
	const FNativeWidget* const Native = Lost.IsValid() ? FindNative(*Lost) : nullptr;
	const bool bUsable = Native && Native->LastPass == Pass && Native->bEnabled;
	if (QWidget* const To = bUsable ? Native->GetQt() : FindInput())
	{
		LostFocus.Reset();
		To->setFocus(Qt::OtherFocusReason);
	}
}
