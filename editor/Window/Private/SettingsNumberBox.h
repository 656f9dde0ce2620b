#pragma once

#include "SlateQtHost/Qt.h"

class FNumericProperty;

/** The shortest text that is read back as the same number. */
QString DescribeNumber(const FNumericProperty& Property, const void* Value);
/** @param OutNumber one value of the property's type. @return false, with nothing written, when Text is none that the type can hold */
bool ParseNumber(const FNumericProperty& Property, const QString& Text, void* OutNumber);

/** A spin box for numbers of every size, which goes as far as the property's type does. */
class FNumberBox final : public QAbstractSpinBox
{
public:
	FNumberBox(const FNumericProperty& InProperty, QWidget* Parent);

	void SetText(const QString& Text);
	bool IsInEdit() const;
	/** What was done so far is no longer an edit in progress. @return whether there was one */
	bool EndEdit();

	void stepBy(int Steps) override;
	QValidator::State validate(QString& Text, int& Position) const override;

protected:
	StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

private:
	const FNumericProperty& Property;
	/** What was shown before the edit; the line edit forgets that it is modified as soon as Enter is pressed. */
	QString Unedited;
};
