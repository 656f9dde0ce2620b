#pragma once

#include "SlateQtHost/Qt.h"
#include "Templates/Function.h"

class FProperty;

/** A value on a page: where it is kept, and whom to tell of an edit. */
struct FSettingsValue
{
	FProperty* Property;
	/** Where the value is now; null when what it is part of is gone. */
	TFunction<void*()> Find;
	/** To be called after an edit. */
	TFunction<void()> Changed;
};

/** What shows and edits a value. */
struct FSettingsWidget
{
	QWidget* Widget;
	/** Shows the value as it is now, but leaves an edit that the user is at alone. */
	TFunction<void()> Refresh;
};

/** How a value of this type is edited; without an editor for it, its text is shown. */
FSettingsWidget MakeSettingsWidget(const FSettingsValue& Value, QWidget* Parent);

/** Names and explains a widget: the tool tip also tells those who hear the page what it is for. */
void Describe(QWidget& Widget, const FProperty& Property);
/** A property's label, whose mnemonic and click lead to the widget. */
QLabel* MakeLabel(const FProperty& Property, QWidget* Widget);
