#include "NativeWidget.h"

#include "ScrollColumn.h"
#include "ViewContents.h"
#include "Widgets/Layout/SScrollBox.h"

namespace
{
constexpr qreal LineStep = 40.0;
/** Of one notch of a wheel, in the units that Qt counts its turning in. */
constexpr qreal Notch = 120.0;

/** What shows of the column, with its bar at the side. The bar's place is always kept free, so that texts wrap the same with and without
 * it. */
class FNativeScroller final : public QWidget, public FNativeWidget
{
public:
	FNativeScroller(SScrollBox& Box, QWidget* Parent)
		: QWidget(Parent)
		, FNativeWidget(Box)
	{
		setFocusPolicy(Qt::StrongFocus);
		Bar.setSingleStep(qRound(LineStep));
		connect(&Bar, &QScrollBar::valueChanged, this,
			[this](int Value)
			{
			const int Before = std::exchange(LastBarValue, Value);
			ScrollByUser(Value - Before);
		});
	}

	QWidget& GetQt() override { return *this; }

	void OnChanged(const SWidget& WidgetOrChild) override
	{
		if (&WidgetOrChild == GetSlate().Get())
		{
			bChildrenChanged = true;
		}
		else
		{
			Column.Forget(WidgetOrChild);
		}
	}

	void Follow(FViewContents& InContents) override
	{
		Contents = &InContents;
		const TSharedPtr<SWidget> Box = GetSlate();
		const bool bAtEnd = static_cast<SScrollBox&>(*Box).TakeScrollToEnd();
		const FChildren& Children = *Box->GetChildren();
		if (std::exchange(bChildrenChanged, false))
		{
			Column.SetChildren(Children);
		}
		Column.SetWidth(Canvas.width());
		Canvas.BeginFills();
		for (const FScrollColumn::FShown& Each : Column.Show(Canvas.height(), bAtEnd, GetMeasure(Children)))
		{
			const FSlotBase& Slot = Children.GetSlotAt(Each.Index);
			const QRectF Area(0.0, Each.Top, Canvas.width(), Each.Height);
			Contents->Place(*Slot.GetWidget(), Contents->GetLayout().PlaceInSlot(Slot, Area), Canvas);
		}
		Canvas.EndFills();
		FollowBar(bAtEnd);
	}

protected:
	void resizeEvent(QResizeEvent*) override
	{
		const int Side = Bar.sizeHint().width();
		Canvas.setGeometry(0, 0, width() - Side, height());
		Bar.setGeometry(width() - Side, 0, Side, height());
	}
	void wheelEvent(QWheelEvent* Event) override
	{
		const QPoint Pixels = Event->pixelDelta();
		ScrollByUser(Pixels.isNull() ? -Event->angleDelta().y() / Notch * LineStep * 1.5 : -Pixels.y());
		Event->accept();
	}
	void keyPressEvent(QKeyEvent* Event) override
	{
		const qreal Page = height() - LineStep;
		const std::pair<int, qreal> Keys[] = { { Qt::Key_Up, -LineStep }, { Qt::Key_Down, LineStep }, { Qt::Key_PageUp, -Page },
			{ Qt::Key_PageDown, Page }, { Qt::Key_Home, -Bar.value() - Page }, { Qt::Key_End, Bar.maximum() - Bar.value() + Page } };
		for (const auto& [Key, Distance] : Keys)
		{
			if (Event->key() == Key)
			{
				ScrollByUser(Distance);
				return;
			}
		}
		Event->setAccepted(OfferKey(GetSlate(), *Event));
	}
	void paintEvent(QPaintEvent*) override
	{
		if (hasFocus())
		{
			QPainter Painter(this);
			Painter.setPen(palette().color(QPalette::Highlight));
			Painter.drawRect(rect().adjusted(0, 0, -1, -1));
		}
	}

private:
	std::function<qreal(int32 Index)> GetMeasure(const FChildren& Children)
	{
		return [this, &Children](int32 Index) { return Contents->GetLayout().GetSlotHeight(Children.GetSlotAt(Index), Canvas.width()); };
	}

	void ScrollByUser(qreal Distance)
	{
		const TSharedPtr<SWidget> Box = GetSlate();
		if (!Box.IsValid() || Distance == 0.0)
		{
			return;
		}
		const bool bToEnd = Column.ScrollBy(Distance, Canvas.height(), GetMeasure(*Box->GetChildren()));
		static_cast<SScrollBox&>(*Box).ScrollByUser(static_cast<float>(Column.GetPosition()), bToEnd);
		Contents->Refresh();
	}

	void FollowBar(bool bAtEnd)
	{
		const int Page = Canvas.height();
		const int Last = std::max(qRound(Column.GetHeight()) - Page, 0);
		Bar.setVisible(Last > 0);
		// A handle that the user holds stays under the mouse.
		if (!Bar.isSliderDown())
		{
			const QSignalBlocker Silent(Bar);
			Bar.setRange(0, Last);
			Bar.setPageStep(Page);
			Bar.setValue(bAtEnd ? Last : qRound(Column.GetPosition()));
			LastBarValue = Bar.value();
		}
	}

	FCanvas Canvas{ this };
	QScrollBar Bar{ Qt::Vertical, this };
	FScrollColumn Column;
	bool bChildrenChanged = true;
	int LastBarValue = 0;
	/** Of the last pass; it is there as long as this was not dropped. */
	FViewContents* Contents = nullptr;
};
}

FNativeWidget* MakeNativeScroller(SWidget& ScrollBox, QWidget* Parent)
{
	return new FNativeScroller(static_cast<SScrollBox&>(ScrollBox), Parent);
}
