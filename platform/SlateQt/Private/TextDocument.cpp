#include "TextDocument.h"

#include "SlateLook.h"
#include "Widgets/Text/SMultiLineEditableText.h"

void PrepareTextDocument(QTextDocument& Document, const SMultiLineEditableText& Text)
{
	const FQtFont& Font = GetQtFont(Text.GetFont());
	Document.setDocumentMargin(0.0);
	Document.setDefaultFont(Font.Font);
	QTextOption Option;
	Option.setWrapMode(Text.GetAutoWrapText() ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
	Option.setTabStopDistance(Font.Metrics.horizontalAdvance(QLatin1Char(' ')) * 4.0);
	Document.setDefaultTextOption(Option);
}

FString GetDocumentText(const QTextDocument& Document)
{
	QString Text = Document.toRawText();
	Text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
	Text.replace(QChar::LineSeparator, QLatin1Char('\n'));
	return ToFString(Text);
}
