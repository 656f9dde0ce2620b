#include "NativeWidget.h"

#include "SlateHost/WidgetDriver.h"
#include "SlateLook.h"
#include "ViewContents.h"
#include "Widgets/Input/SButton.h"

namespace
{
/** Draws itself in its state's fill; what is on it stands on a canvas. */
class FNativeButton final : public QAbstractButton, public FNativeWidget
{
public:
	FNativeButton(SButton& Button, QWidget* Parent)
		: QAbstractButton(Parent)
		, FNativeWidget(Button)
	{
		setAttribute(Qt::WA_Hover);
		Content.setAttribute(Qt::WA_TransparentForMouseEvents);
		connect(this, &QAbstractButton::clicked, this,
			[this]
			{
			if (const TSharedPtr<SWidget> Clicked = GetSlate())
			{
				static_cast<SButton&>(*Clicked).ExecuteOnClick();
			}
		});
	}

	QWidget& GetQt() override { return *this; }

	void Follow(FViewContents& Contents) override
	{
		const TSharedPtr<SWidget> Button = GetSlate();
		Content.setGeometry(rect());
		Content.BeginFills();
		Contents.PlaceChildren(*Button, Content);
		Content.EndFills();
		if (const QString Name = ToQString(FWidgetDriver::GetShownText(Button.ToSharedRef())); accessibleName() != Name)
		{
			setAccessibleName(Name);
		}
	}

protected:
	void paintEvent(QPaintEvent*) override
	{
		const TSharedPtr<SWidget> Button = GetSlate();
		if (!Button.IsValid())
		{
			return;
		}
		const FButtonStyle& Style = static_cast<const SButton&>(*Button).GetButtonStyle();
		const FSlateBrush& Brush = !isEnabled() ? Style.Disabled : isDown() ? Style.Pressed : underMouse() ? Style.Hovered : Style.Normal;
		QPainter Painter(this);
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setBrush(GetFill(Brush));
		Painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Text), 1.5) : QPen(Qt::NoPen));
		Painter.drawRoundedRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), 3.0, 3.0);
	}
	void keyPressEvent(QKeyEvent* Event) override
	{
		// The space bar clicks when it comes up, as everywhere in Qt.
		if (Event->key() == Qt::Key_Space)
		{
			QAbstractButton::keyPressEvent(Event);
			return;
		}
		Event->setAccepted(OfferKey(GetSlate(), *Event));
	}

private:
	FCanvas Content{ this };
};
}

FNativeWidget* MakeNativeButton(SWidget& Button, QWidget* Parent)
{
	return new FNativeButton(static_cast<SButton&>(Button), Parent);
}
