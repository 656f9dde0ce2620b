#include "NativeWidget.h"

#include "SlateHost/WidgetDriver.h"
#include "SlateLook.h"
#include "ViewContents.h"
#include "Widgets/Input/SButton.h"

namespace
{
/** Draws itself in its state's fill; what is on it stands on a canvas. */
class FButtonFace final : public QAbstractButton
{
public:
	explicit FButtonFace(QWidget* Parent)
		: QAbstractButton(Parent)
	{
		setAttribute(Qt::WA_Hover);
		Content.setAttribute(Qt::WA_TransparentForMouseEvents);
	}

	FCanvas Content{ this };
	TWeakPtr<SWidget> Slate;

protected:
	void paintEvent(QPaintEvent*) override
	{
		const TSharedPtr<SWidget> Button = Slate.Pin();
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
		Event->setAccepted(OfferKey(Slate.Pin(), *Event));
	}
};

class FNativeButton final : public FNativeWidget
{
public:
	FNativeButton(SButton& Button, QWidget* Parent)
		: FNativeWidget(Button, new FButtonFace(Parent))
	{
		GetFace().Slate = GetSlate();
		QObject::connect(&GetFace(), &QAbstractButton::clicked, &GetFace(),
			[Slate = GetFace().Slate]
			{
			if (const TSharedPtr<SWidget> Clicked = Slate.Pin())
			{
				static_cast<SButton&>(*Clicked).ExecuteOnClick();
			}
		});
	}

	void Follow(FViewContents& Contents) override
	{
		const TSharedPtr<SWidget> Button = GetSlate();
		FButtonFace& Face = GetFace();
		Face.Content.setGeometry(Face.rect());
		Face.Content.BeginFills();
		Contents.PlaceChildren(*Button, Face.Content);
		Face.Content.EndFills();
		if (const QString Name = ToQString(FWidgetDriver::GetShownText(Button.ToSharedRef())); Face.accessibleName() != Name)
		{
			Face.setAccessibleName(Name);
		}
	}

private:
	FButtonFace& GetFace() { return static_cast<FButtonFace&>(*GetQt()); }
};
}

TUniquePtr<FNativeWidget> MakeNativeButton(SWidget& Button, QWidget* Parent)
{
	return MakeUnique<FNativeButton>(static_cast<SButton&>(Button), Parent);
}
