#pragma once

#include "SettingsHost/SettingsSections.h"
#include "SlateQtHost/Qt.h"
#include "UObject/WeakObjectPtr.h"

class FProperty;

/** The properties of a section's object that can be edited, below the headings of their categories. */
class FSettingsPage final : public QScrollArea
{
public:
	FSettingsPage(const ISettingsSection& Section, QWidget* Parent);

	/** Shows the object's values as they are now, but leaves an edit that the user is at alone. */
	void Refresh();
	/** Shows the rows with this in their name, ignoring case, and the headings above them. */
	void SetFilter(const QString& Text);

	/** What a page shows, so that it can be told when it is to be made anew: the object and its properties, not their values. */
	static QString Describe(const ISettingsSection& Section);

protected:
	void resizeEvent(QResizeEvent* Event) override;

private:
	struct FRow
	{
		QWidget* Widget;
		/** Empty for a heading. */
		QString Name;
		/** How many headings it stands under. */
		int Depth;
		TFunction<void()> Refresh;
	};
	struct FCategory;

	void AddCategory(const FCategory& Category, int Depth);
	void AddHeading(const QString& Name, const QString& Path, int Depth);
	void AddProperty(FProperty& Property, int Depth);
	void FinishEdit(FProperty& Property);

	TWeakObjectPtr<UObject> Object;
	QFormLayout* Form;
	QLabel* Problem;
	QLabel* NoMatch;
	TArray<FRow> Rows;
};
