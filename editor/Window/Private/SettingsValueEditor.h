#pragma once

#include "SlateQtHost/Qt.h"
#include "Templates/Function.h"

class FProperty;

/** How values of one kind are edited: with which widget, and how a value gets into it and out of it. Where it is kept is not known here. */
class IValueEditor
{
public:
	virtual ~IValueEditor() = default;

	virtual QWidget* Make(const FProperty& Property, QWidget* Parent) const = 0;
	/** Calls Do when the user has finished an edit: Enter, a click, or the focus is gone. */
	virtual void OnCommitted(QWidget& Widget, TFunction<void()> Do) const = 0;
	/** Whether the user has begun an edit and not finished it. */
	virtual bool IsInEdit(const QWidget& Widget) const = 0;
	/** Shows the value; an edit that is not finished is lost. */
	virtual void Show(QWidget& Widget, const FProperty& Property, const void* Value) const = 0;
	/** Makes the value what the widget shows. @return false when it is that already, or the widget shows no value */
	virtual bool Read(const QWidget& Widget, const FProperty& Property, void* Value) const = 0;
	/** The value in one line, as the widget shows it. */
	virtual QString Describe(const FProperty& Property, const void* Value) const = 0;
};

/** Null when there is none for the property's type. */
const IValueEditor* FindValueEditor(const FProperty& Property);
