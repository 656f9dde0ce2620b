#pragma once

#include "SettingsWidget.h"

class FArrayProperty;
class FScriptArrayHelper;
class IValueEditor;

/**
 * The elements of an array as they are shown. The array may change elsewhere: what is done to an element is done to the one that is shown
 * in its row, or not at all.
 */
class FSettingsListModel final : public QAbstractListModel
{
public:
	FSettingsListModel(const FSettingsValue& InValue, const IValueEditor& InEditor, QObject* Parent);

	/** Shows the array as it is now. */
	void Refresh();
	/** @return the new element's row, or -1 */
	int AddEmpty();
	void Remove(int Row);
	/** @return whether the element now is at the row To */
	bool Move(int From, int To);

	/** The editor of an element, its value put into it and taken from it. */
	QWidget* MakeEditor(QWidget* Parent) const;
	void Show(QWidget& Widget, int Row) const;
	void Read(const QWidget& Widget, int Row);

	int rowCount(const QModelIndex& Parent = {}) const override { return Parent.isValid() ? 0 : int(Texts.size()); }
	QVariant data(const QModelIndex& Index, int Role) const override;
	Qt::ItemFlags flags(const QModelIndex& Index) const override { return QAbstractListModel::flags(Index) | Qt::ItemIsEditable; }

private:
	using FChange = TFunctionRef<bool(FScriptArrayHelper& Elements)>;
	/** Does something to the array and tells of the edit, if Do says that it was one. */
	bool EditArray(FChange Do);
	/** The same to an element, when it is the one that is shown. */
	bool EditElement(int Row, FChange Do);
	QStringList DescribeElements() const;

	const FSettingsValue Value;
	const FArrayProperty& Property;
	const IValueEditor& Editor;
	QStringList Texts;
};
