#include "SettingsListModel.h"

#include "SettingsValueEditor.h"
#include "UObject/UnrealType.h"

FSettingsListModel::FSettingsListModel(const FSettingsValue& InValue, const IValueEditor& InEditor, QObject* Parent)
	: QAbstractListModel(Parent)
	, Value(InValue)
	, Property(*CastField<FArrayProperty>(InValue.Property))
	, Editor(InEditor)
{
}

void FSettingsListModel::Refresh()
{
	const QStringList Now = DescribeElements();
	if (Now == Texts)
	{
		return;
	}
	if (Now.size() == Texts.size())
	{
		Texts = Now;
		Q_EMIT dataChanged(index(0), index(int(Texts.size()) - 1));
		return;
	}
	beginResetModel();
	Texts = Now;
	endResetModel();
}

int FSettingsListModel::AddEmpty()
{
	int Row = -1;
	EditArray(
		[&Row](FScriptArrayHelper& Elements)
		{
		Row = Elements.AddValue();
		return true;
	});
	Refresh();
	return Row < rowCount() ? Row : -1;
}

void FSettingsListModel::Remove(int Row)
{
	EditElement(Row,
		[Row](FScriptArrayHelper& Elements)
		{
		Elements.RemoveValues(Row);
		return true;
	});
	Refresh();
}

bool FSettingsListModel::Move(int From, int To)
{
	const bool bMoved = EditElement(From,
		[this, From, To](FScriptArrayHelper& Elements)
		{
		if (!Elements.IsValidIndex(To) || From == To)
		{
			return false;
		}
		const int Target = From < To ? To + 1 : To;
		const int Source = From < Target ? From : From + 1;
		Elements.InsertValues(Target);
		Property.Inner->CopyCompleteValue(Elements.GetRawPtr(Target), Elements.GetRawPtr(Source));
		Elements.RemoveValues(Source);
		return true;
	});
	Refresh();
	return bMoved;
}

QWidget* FSettingsListModel::MakeEditor(QWidget* Parent) const
{
	return Editor.Make(*Property.Inner, Parent);
}

void FSettingsListModel::Show(QWidget& Widget, int Row) const
{
	const void* const Array = Value.Find();
	if (Array && FScriptArrayHelper(&Property, Array).IsValidIndex(Row))
	{
		Editor.Show(Widget, *Property.Inner, FScriptArrayHelper(&Property, Array).GetRawPtr(Row));
	}
}

void FSettingsListModel::Read(const QWidget& Widget, int Row)
{
	// Not more than the row, since the editor is still open.
	EditElement(Row,
		[&](FScriptArrayHelper& Elements)
		{
		const bool bRead = Editor.Read(Widget, *Property.Inner, Elements.GetRawPtr(Row));
		Texts[Row] = Editor.Describe(*Property.Inner, Elements.GetRawPtr(Row));
		Q_EMIT dataChanged(index(Row), index(Row));
		return bRead;
	});
}

QVariant FSettingsListModel::data(const QModelIndex& Index, int Role) const
{
	const bool bText = Role == Qt::DisplayRole || Role == Qt::AccessibleTextRole;
	return bText && Index.isValid() && Index.row() < Texts.size() ? QVariant(Texts[Index.row()]) : QVariant();
}

bool FSettingsListModel::EditArray(FChange Do)
{
	void* const Array = Value.Find();
	FScriptArrayHelper Elements(&Property, Array);
	const bool bDone = Array && Do(Elements);
	if (bDone)
	{
		Value.Changed();
	}
	return bDone;
}

bool FSettingsListModel::EditElement(int Row, FChange Do)
{
	const QStringList Now = DescribeElements();
	const bool bShown = Row >= 0 && Row < Now.size() && Row < Texts.size() && Now[Row] == Texts[Row];
	return EditArray([bShown, &Do](FScriptArrayHelper& Elements) { return bShown && Do(Elements); });
}

QStringList FSettingsListModel::DescribeElements() const
{
	QStringList Result;
	if (const void* const Array = Value.Find())
	{
		const FScriptArrayHelper Elements(&Property, Array);
		for (int32 Index = 0; Index < Elements.Num(); ++Index)
		{
			Result.append(Editor.Describe(*Property.Inner, Elements.GetRawPtr(Index)));
		}
	}
	return Result;
}
