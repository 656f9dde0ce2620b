#pragma once

#include "SlateQtHost/Qt.h"

class SMultiLineEditableText;

/** How an editable text is laid out, for whoever shows or measures it: no margins, its font, lines that break where there is no blank. */
void PrepareTextDocument(QTextDocument& Document, const SMultiLineEditableText& Text);

/** The text in Qt's notation of paragraphs, read back without losing what Qt would replace in a plain text. */
FString GetDocumentText(const QTextDocument& Document);
