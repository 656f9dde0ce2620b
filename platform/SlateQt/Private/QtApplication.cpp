#include "SlateQtHost/SlateView.h"

#include "Containers/Ticker.h"
#include "Framework/Application/SlateApplication.h"

#include <clocale>

namespace
{
/** Draws with what Qt has loaded. */
class FQtRenderer final : public FSlateRenderer
{
public:
	void ReloadTextureResources() override { QPixmapCache::clear(); }
};

/** Fusion, with boxes whose edges can be seen on a dark ground. */
class FEditorStyle final : public QProxyStyle
{
public:
	FEditorStyle()
		: QProxyStyle(QStringLiteral("Fusion"))
	{
	}

	void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override
	{
		QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
		if (Element == PE_IndicatorCheckBox)
		{
			Painter->setPen(Option->palette.color(QPalette::PlaceholderText));
			Painter->setBrush(Qt::NoBrush);
			Painter->drawRect(Option->rect.adjusted(0, 0, -1, -1));
		}
	}
};

QPalette MakeDarkPalette()
{
	QPalette Palette(QColor(48, 48, 48), QColor(36, 36, 36));
	Palette.setColor(QPalette::WindowText, QColor(224, 224, 224));
	Palette.setColor(QPalette::Base, QColor(26, 26, 26));
	Palette.setColor(QPalette::AlternateBase, QColor(32, 32, 32));
	Palette.setColor(QPalette::Text, QColor(224, 224, 224));
	Palette.setColor(QPalette::ButtonText, QColor(224, 224, 224));
	Palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
	Palette.setColor(QPalette::ToolTipBase, QColor(56, 56, 56));
	Palette.setColor(QPalette::ToolTipText, QColor(224, 224, 224));
	Palette.setColor(QPalette::Highlight, QColor(38, 110, 190));
	Palette.setColor(QPalette::HighlightedText, Qt::white);
	Palette.setColor(QPalette::Link, QColor(110, 170, 250));
	for (const QPalette::ColorRole Role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
	{
		Palette.setColor(QPalette::Disabled, Role, QColor(125, 125, 125));
	}
	return Palette;
}
}

struct FQtApplication::FState
{
	int ArgumentCount = 1;
	char Name[15] = "kestrin-editor";
	char* Arguments[2] = { Name, nullptr };
	QApplication Application{ ArgumentCount, Arguments };
	FTSTicker::FDelegateHandle Ticker;
};

FQtApplication::FQtApplication()
	: State(MakeUnique<FState>())
{
	// Qt takes on the user's locale; numbers are written to files and to the wire with a point.
	std::setlocale(LC_NUMERIC, "C");
	QApplication::setQuitOnLastWindowClosed(false);
	QApplication::setStyle(new FEditorStyle);
	QApplication::setPalette(MakeDarkPalette());
	FSlateApplication::Create(MakeShared<FQtRenderer>());
	State->Ticker = FTSTicker::GetCoreTicker().AddTicker(TEXT("FQtApplication"), 0.0f,
		[](float)
		{
		QCoreApplication::processEvents();
		// Outside a loop of Qt's own these would wait for ever.
		QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
		return true;
	});
}

FQtApplication::~FQtApplication()
{
	FTSTicker::RemoveTicker(State->Ticker);
	FSlateApplication::Shutdown();
}
