#pragma once

#include "SlateQtHost/Qt.h"

class SMultiLineEditableText;
class SOptionPicker;
class STextBlock;

// What widgets ask for that have no children to place, in pixels.

qreal GetLabelWidth(const STextBlock& Text);
qreal GetLabelHeight(const STextBlock& Text);
/** A text that wraps takes what it gets. */
qreal GetEditorWidth(const SMultiLineEditableText& Text);
/** Of the whole text. */
qreal GetEditorHeight(const SMultiLineEditableText& Text, qreal Width);
/** Enough for its widest option. */
qreal GetPickerWidth(const SOptionPicker& Picker);
/** Enough to be picked from. */
qreal GetLeastPickerWidth();
qreal GetPickerHeight();
