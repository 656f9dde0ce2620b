#include "SlateQtHost/SlateView.h"

#include "Containers/Ticker.h"
#include "ViewContents.h"

namespace
{
/** Scrolls sideways, or down, where it is given less room than the tree needs. */
class FSlateView final : public QScrollArea
{
public:
	FSlateView(const TSharedRef<SWidget>& Root, QWidget* Parent)
		: QScrollArea(Parent)
		, Canvas(*new FCanvas(this))
		, Contents(Root, Canvas)
	{
		setFrameShape(QFrame::NoFrame);
		// Only what is in it takes part in the round of the Tab key.
		setFocusPolicy(Qt::NoFocus);
		Canvas.setFocusPolicy(Qt::ClickFocus);
		setWidgetResizable(true);
		setWidget(&Canvas);
		Ticker = FTSTicker::GetCoreTicker().AddTicker(TEXT("FSlateView"), 0.0f,
			[this](float)
			{
			if (isVisible())
			{
				Refresh();
			}
			return true;
		});
	}
	~FSlateView() override { FTSTicker::RemoveTicker(Ticker); }

protected:
	void resizeEvent(QResizeEvent* Event) override
	{
		QScrollArea::resizeEvent(Event);
		Refresh();
	}
	void focusInEvent(QFocusEvent* Event) override
	{
		QScrollArea::focusInEvent(Event);
		QWidget* const Input = Contents.FindInput();
		(Input ? Input : &Canvas)->setFocus(Event->reason());
	}
	void keyPressEvent(QKeyEvent* Event) override
	{
		// A key that a widget of the tree has seen went up to the root already.
		if (!Canvas.hasFocus() || !OfferKey(Contents.GetRoot(), *Event))
		{
			Event->ignore();
		}
	}

private:
	void Refresh()
	{
		Contents.Refresh();
		if (const QSize Least = Contents.GetLeastSize(); Canvas.minimumSize() != Least)
		{
			Canvas.setMinimumSize(Least);
			Contents.Refresh();
		}
	}

	FCanvas& Canvas;
	FViewContents Contents;
	FTSTicker::FDelegateHandle Ticker;
};
}

QWidget* MakeSlateView(const TSharedRef<SWidget>& Root, QWidget* Parent)
{
	return new FSlateView(Root, Parent);
}
