#include "LeafSize.h"

#include "SlateHost/WidgetDriver.h"
#include "SlateLook.h"
#include "TextDocument.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <cmath>

namespace
{
/** Around the label of a picker, and for its arrow. */
constexpr qreal PickerRoom = 44.0;
constexpr qreal PickerPadding = 12.0;

qreal GetLongestLine(const QString& Text, const QFontMetricsF& Metrics)
{
	qreal Longest = 0.0;
	for (const QString& Line : Text.split(QLatin1Char('\n')))
	{
		Longest = std::max(Longest, Metrics.horizontalAdvance(Line));
	}
	return std::ceil(Longest);
}

QFontMetricsF GetPickerMetrics()
{
	return QFontMetricsF(QGuiApplication::font());
}
}

qreal GetLabelWidth(const STextBlock& Text)
{
	return GetLongestLine(ToShownText(Text.GetText().ToString()), GetQtFont(Text.GetFont()).Metrics);
}

qreal GetLabelHeight(const STextBlock& Text)
{
	const FString& Shown = Text.GetText().ToString();
	const auto Breaks = std::count(*Shown, *Shown + Shown.Len(), TEXT('\n'));
	return static_cast<qreal>(Breaks + 1) * GetQtFont(Text.GetFont()).LineHeight;
}

qreal GetEditorWidth(const SMultiLineEditableText& Text)
{
	return Text.GetAutoWrapText() ? 0.0 : GetLongestLine(ToQString(Text.GetText().ToString()), GetQtFont(Text.GetFont()).Metrics);
}

qreal GetEditorHeight(const SMultiLineEditableText& Text, qreal Width)
{
	QTextDocument Document;
	PrepareTextDocument(Document, Text);
	Document.setUndoRedoEnabled(false);
	Document.setTextWidth(Width);
	Document.setPlainText(ToQString(Text.GetText().ToString()));
	return std::ceil(Document.size().height());
}

qreal GetPickerWidth(const SOptionPicker& Picker)
{
	qreal Widest = 0.0;
	for (int32 Index = 0; Index < Picker.GetNumOptions(); ++Index)
	{
		const QString Label = ToQString(FWidgetDriver::GetShownText(Picker.GenerateOption(Index)));
		Widest = std::max(Widest, GetPickerMetrics().horizontalAdvance(Label));
	}
	return std::ceil(Widest) + PickerRoom;
}

qreal GetLeastPickerWidth()
{
	return 2.0 * PickerRoom;
}

qreal GetPickerHeight()
{
	return std::ceil(GetPickerMetrics().height()) + PickerPadding;
}
