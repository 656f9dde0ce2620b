#include "SettingsList.h"

#include "SettingsListModel.h"

namespace
{
class FElementDelegate final : public QStyledItemDelegate
{
public:
	FElementDelegate(FSettingsListModel& InModel, QObject* Parent)
		: QStyledItemDelegate(Parent)
		, Model(InModel)
	{
	}

	QWidget* createEditor(QWidget* Parent, const QStyleOptionViewItem&, const QModelIndex&) const override
	{
		QWidget* const Widget = Model.MakeEditor(Parent);
		Widget->setAutoFillBackground(true);
		return Widget;
	}
	/** High enough for an editor. */
	QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override
	{
		return { QStyledItemDelegate::sizeHint(Option, Index).width(), GetRowHeight(Option.fontMetrics) };
	}
	static int GetRowHeight(const QFontMetrics& Metrics) { return Metrics.height() + 8; }
	void setEditorData(QWidget* Widget, const QModelIndex& Index) const override { Model.Show(*Widget, Index.row()); }
	void setModelData(QWidget* Widget, QAbstractItemModel*, const QModelIndex& Index) const override { Model.Read(*Widget, Index.row()); }

private:
	FSettingsListModel& Model;
};

class FElementView final : public QListView
{
public:
	FElementView(FSettingsListModel& InModel, QWidget* Parent)
		: QListView(Parent)
		, Model(InModel)
	{
		setModel(&Model);
		setItemDelegate(new FElementDelegate(Model, this));
		setEditTriggers(DoubleClicked | EditKeyPressed | SelectedClicked);
		setTabKeyNavigation(false);
		setAlternatingRowColors(true);
		setUniformItemSizes(true);
		connect(itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
			[this](QWidget*, QAbstractItemDelegate::EndEditHint Hint)
			{
			// An addition that is called off leaves nothing behind.
			if (std::exchange(bAdding, false) && Hint == QAbstractItemDelegate::RevertModelCache)
			{
				RemoveCurrent();
			}
		});
		Refresh();
	}

	void Refresh()
	{
		if (state() == EditingState)
		{
			return;
		}
		const int Row = currentIndex().row();
		Model.Refresh();
		Select(Row);
		FitHeight();
	}
	void Add()
	{
		const int Row = Model.AddEmpty();
		if (Row < 0)
		{
			return;
		}
		FitHeight();
		Select(Row);
		setFocus();
		bAdding = true;
		edit(Model.index(Row));
	}
	void RemoveCurrent()
	{
		const int Row = currentIndex().row();
		Model.Remove(Row);
		Select(Row);
		FitHeight();
	}
	void MoveCurrent(int Distance)
	{
		const int Row = currentIndex().row();
		if (Model.Move(Row, Row + Distance))
		{
			Select(Row + Distance);
		}
	}

protected:
	void keyPressEvent(QKeyEvent* Event) override
	{
		const bool bIdle = state() != EditingState && currentIndex().isValid();
		if (bIdle && (Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter))
		{
			edit(currentIndex());
		}
		else if (bIdle && Event->key() == Qt::Key_Delete)
		{
			RemoveCurrent();
		}
		else
		{
			QListView::keyPressEvent(Event);
		}
	}
	void focusInEvent(QFocusEvent* Event) override
	{
		QListView::focusInEvent(Event);
		if (!currentIndex().isValid())
		{
			Select(0);
		}
	}

private:
	/** The row, or the last one when there are fewer. */
	void Select(int Row)
	{
		const int Last = Model.rowCount() - 1;
		if (Row >= 0 && Last >= 0)
		{
			setCurrentIndex(Model.index(qMin(Row, Last)));
		}
	}
	void FitHeight()
	{
		const int Rows = qBound(2, Model.rowCount(), 12);
		setFixedHeight(Rows * FElementDelegate::GetRowHeight(fontMetrics()) + 2 * frameWidth());
	}

	FSettingsListModel& Model;
	/** The element that is edited has just been added. */
	bool bAdding = false;
};

/** The buttons below the elements; those that need a selected element are enabled when there is one that they can be used on. */
void AddButtons(QHBoxLayout& Layout, FElementView& View)
{
	struct FButton
	{
		const char* Text;
		const char* ToolTip;
		void (*Click)(FElementView& View);
		/** Whether it can be used with the current row of so many; -1 for none. */
		bool (*CanUse)(int Row, int Rows);
	};
	static const FButton Buttons[] = {
		{ "Add", "Adds an element at the end", [](FElementView& Each) { Each.Add(); }, [](int, int) { return true; } },
		{ "Remove", "Removes the selected element (Del)", [](FElementView& Each) { Each.RemoveCurrent(); },
			[](int Row, int) { return Row >= 0; } },
		{ "Move Up", "Moves the selected element up", [](FElementView& Each) { Each.MoveCurrent(-1); },
			[](int Row, int) { return Row > 0; } },
		{ "Move Down", "Moves the selected element down", [](FElementView& Each) { Each.MoveCurrent(1); },
			[](int Row, int Rows) { return Row >= 0 && Row < Rows - 1; } },
	};
	for (const FButton& Each : Buttons)
	{
		QToolButton* const Button = new QToolButton(View.parentWidget());
		Button->setText(QLatin1String(Each.Text));
		Button->setToolTip(QLatin1String(Each.ToolTip));
		Button->setFocusPolicy(Qt::StrongFocus);
		QObject::connect(Button, &QToolButton::clicked, &View, [&View, Click = Each.Click] { Click(View); });
		const auto Enable = [&View, Button, CanUse = Each.CanUse]
		{ Button->setEnabled(CanUse(View.currentIndex().row(), View.model()->rowCount())); };
		QObject::connect(View.selectionModel(), &QItemSelectionModel::currentChanged, Button, Enable);
		QObject::connect(View.model(), &QAbstractItemModel::modelReset, Button, Enable);
		Enable();
		Layout.addWidget(Button);
	}
	Layout.addStretch();
}
}

FSettingsWidget MakeSettingsList(const FSettingsValue& Value, const IValueEditor& Editor, QWidget* Parent)
{
	QWidget* const Widget = new QWidget(Parent);
	QVBoxLayout* const Layout = new QVBoxLayout(Widget);
	Layout->setContentsMargins(0, 0, 0, 0);
	FElementView* const View = new FElementView(*new FSettingsListModel(Value, Editor, Widget), Widget);
	Layout->addWidget(View);
	QHBoxLayout* const Buttons = new QHBoxLayout;
	AddButtons(*Buttons, *View);
	Layout->addLayout(Buttons);
	// A label's buddy and those who set the focus mean the elements.
	Widget->setFocusProxy(View);
	Describe(*View, *Value.Property);
	return { Widget, [View] { View->Refresh(); } };
}
