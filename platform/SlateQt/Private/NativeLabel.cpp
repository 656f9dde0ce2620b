#include "NativeWidget.h"

#include "SlateLook.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
/** A line of text, or several; the mouse does not see it. */
class FNativeLabel final : public QLabel, public FNativeWidget
{
public:
	FNativeLabel(STextBlock& Text, QWidget* Parent)
		: QLabel(Parent)
		, FNativeWidget(Text)
	{
		setTextFormat(Qt::PlainText);
		setAttribute(Qt::WA_TransparentForMouseEvents);
		setFont(GetQtFont(Text.GetFont()).Font);
	}

	QWidget& GetQt() override { return *this; }

	void Follow(FViewContents&) override
	{
		const TSharedPtr<SWidget> Widget = GetSlate();
		const STextBlock& Text = static_cast<const STextBlock&>(*Widget);
		if (!bShown || &Shown.ToString() != &Text.GetText().ToString())
		{
			bShown = true;
			Shown = Text.GetText();
			setText(ToShownText(Shown.ToString()));
		}
		if (const QColor Now = ToQColor(Text.GetColorAndOpacity().GetSpecifiedColor()); Now != Color)
		{
			Color = Now;
			QPalette Palette;
			Palette.setColor(QPalette::WindowText, Now);
			Palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(Now.red(), Now.green(), Now.blue(), Now.alpha() * 2 / 5));
			setPalette(Palette);
		}
		constexpr Qt::Alignment Sides[] = { Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight };
		setAlignment(Sides[Text.GetJustification()] | Qt::AlignTop);
	}

private:
	bool bShown = false;
	/** Kept, so that no other text has its address. */
	FText Shown;
	QColor Color;
};
}

FNativeWidget* MakeNativeLabel(SWidget& TextBlock, QWidget* Parent)
{
	return new FNativeLabel(static_cast<STextBlock&>(TextBlock), Parent);
}
