#pragma once

#include "Fonts/SlateFontInfo.h"
#include "SlateQtHost/Qt.h"
#include "Styling/SlateBrush.h"

/** A font as Qt draws it. */
struct FQtFont
{
	QFont Font;
	/** From one line to the next, in whole pixels. */
	qreal LineHeight;
	QFontMetricsF Metrics;
};

/** Lives as long as the process. Game thread. */
const FQtFont& GetQtFont(const FSlateFontInfo& Font);

/** The colour's numbers as the screen's own, each within 0 and 1. */
QColor ToQColor(const FLinearColor& Color);
/** What the brush fills an area with; transparent when it draws nothing. */
QColor GetFill(const FSlateBrush& Brush, const FLinearColor& Tint = FLinearColor::White);

/**
 * A text that is shown as it is, a line break where it has one: tabs become blanks up to the next of every four columns, and what of a line
 * no screen is wide enough for is left out.
 */
QString ToShownText(const FString& Text);
