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
class FScrollFace final : public QWidget
{
public:
	explicit FScrollFace(QWidget* Parent)
		: QWidget(Parent)
	{
		setFocusPolicy(Qt::StrongFocus);
		Bar.setSingleStep(qRound(LineStep));
	}

	FCanvas Canvas{ this };
	QScrollBar Bar{ Qt::Vertical, this };
	std::function<void(qreal Distance)> OnScrolled;

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
		OnScrolled(Pixels.isNull() ? -Event->angleDelta().y() / Notch * LineStep * 1.5 : -Pixels.y());
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
				OnScrolled(Distance);
				return;
			}
		}
		QWidget::keyPressEvent(Event);
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
};

class FNativeScroller final : public FNativeWidget
{
public:
	FNativeScroller(SScrollBox& Box, QWidget* Parent)
		: FNativeWidget(Box, new FScrollFace(Parent))
	{
		GetFace().OnScrolled = [this](qreal Distance) { ScrollByUser(Distance); };
		QObject::connect(&GetFace().Bar, &QScrollBar::valueChanged, &GetFace(),
			[this](int Value)
			{
			const int Before = std::exchange(LastBarValue, Value);
			ScrollByUser(Value - Before);
		});
	}

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

	void Follow(FViewContents& Contents) override
	{
		Shown = &Contents;
		const TSharedPtr<SWidget> Slate = GetSlate();
		const bool bAtEnd = static_cast<SScrollBox&>(*Slate).TakeScrollToEnd();
		const FChildren& Children = *Slate->GetChildren();
		if (std::exchange(bChildrenChanged, false))
		{
			Column.SetChildren(Children);
		}
		FCanvas& Canvas = GetFace().Canvas;
		Column.SetWidth(Canvas.width());
		Canvas.BeginFills();
		for (const FScrollColumn::FShown& Each : Column.Show(Canvas.height(), bAtEnd, GetMeasure(Contents)))
		{
			const FSlotBase& Slot = Children.GetSlotAt(Each.Index);
			const QRectF Area(0.0, Each.Top, Canvas.width(), Each.Height);
			Contents.Place(*Slot.GetWidget(), Contents.GetLayout().PlaceInSlot(Slot, Area), Canvas);
		}
		Canvas.EndFills();
		FollowBar(bAtEnd);
	}

private:
	FScrollFace& GetFace() { return static_cast<FScrollFace&>(*GetQt()); }

	std::function<qreal(int32 Index)> GetMeasure(FViewContents& Contents)
	{
		return [this, &Contents](int32 Index)
		{
			const FSlotBase& Slot = GetSlate()->GetChildren()->GetSlotAt(Index);
			return Contents.GetLayout().GetSlotHeight(Slot, GetFace().Canvas.width());
			};
	}

	void ScrollByUser(qreal Distance)
	{
		const TSharedPtr<SWidget> Slate = GetSlate();
		if (!Slate.IsValid() || !Shown || Distance == 0.0)
		{
			return;
		}
		const bool bToEnd = Column.ScrollBy(Distance, GetFace().Canvas.height(), GetMeasure(*Shown));
		static_cast<SScrollBox&>(*Slate).ScrollByUser(static_cast<float>(Column.GetPosition()), bToEnd);
		Shown->Refresh();
	}

	void FollowBar(bool bAtEnd)
	{
		QScrollBar& Bar = GetFace().Bar;
		const int Page = GetFace().Canvas.height();
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

	FScrollColumn Column;
	bool bChildrenChanged = true;
	int LastBarValue = 0;
	/** Set by the first pass; holds this widget. */
	FViewContents* Shown = nullptr;
};
}

TUniquePtr<FNativeWidget> MakeNativeScroller(SWidget& ScrollBox, QWidget* Parent)
{
	return MakeUnique<FNativeScroller>(static_cast<SScrollBox&>(ScrollBox), Parent);
}
