#include "OutputLog.h"

#include "Misc/OutputDeviceRedirector.h"
#include "OutputLogModel.h"

namespace
{
/** How long lines may wait before they are shown. */
constexpr int BatchMilliseconds = 50;

/** Rows of one font, as wide as the longest of them. */
class FLineDelegate final : public QStyledItemDelegate
{
public:
	using QStyledItemDelegate::QStyledItemDelegate;

	QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override
	{
		const FOutputLogModel* const Model = static_cast<const FOutputLogModel*>(Index.model());
		const QFontMetrics Metrics(Option.font);
		return { (int(Model->GetMostColumns()) + 2) * Metrics.horizontalAdvance(QLatin1Char('M')), Metrics.lineSpacing() };
	}
};

class FLineView final : public QListView
{
public:
	explicit FLineView(QWidget* Parent)
		: QListView(Parent)
		, Model(*new FOutputLogModel(this))
	{
		setModel(&Model);
		setItemDelegate(new FLineDelegate(this));
		setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
		setUniformItemSizes(true);
		setSelectionMode(ExtendedSelection);
		setTextElideMode(Qt::ElideNone);
		setHorizontalScrollMode(ScrollPerPixel);
		setAccessibleName(QStringLiteral("Output Log"));

		// What was at the end stays there, whatever comes, goes or makes the view smaller.
		connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
			[this](int Value) { bFollowing = Value == verticalScrollBar()->maximum(); });
		connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
			[this](int, int Maximum)
			{
			if (bFollowing)
			{
				verticalScrollBar()->setValue(Maximum);
			}
		});

		QAction* const Copy = new QAction(QStringLiteral("Copy"), this);
		Copy->setShortcut(QKeySequence::Copy);
		Copy->setShortcutContext(Qt::WidgetShortcut);
		connect(Copy, &QAction::triggered, this, [this] { CopySelected(); });
		addAction(Copy);
		QMenu* const Menu = new QMenu(this);
		Menu->addAction(Copy);
		Menu->addAction(QStringLiteral("Select All"), this, [this] { selectAll(); });
		setContextMenuPolicy(Qt::CustomContextMenu);
		connect(this, &QWidget::customContextMenuRequested, Menu,
			[this, Menu](const QPoint& Point) { Menu->popup(viewport()->mapToGlobal(Point)); });
	}

	/** Shows more lines; those in view stay where they are when the user has scrolled away from the end. */
	void Append(std::deque<FOutputLogModel::FLine>& Lines)
	{
		const int Top = verticalScrollBar()->value();
		int Dropped = 0;
		const QMetaObject::Connection Watch = connect(&Model, &QAbstractItemModel::rowsRemoved, this,
			[&Dropped](const QModelIndex&, int First, int Last) { Dropped = Last - First + 1; });
		Model.Append(Lines);
		disconnect(Watch);
		if (Dropped > 0 && !bFollowing)
		{
			executeDelayedItemsLayout();
			verticalScrollBar()->setValue(Top - Dropped);
		}
	}
	FOutputLogModel& GetModel() { return Model; }

private:
	void CopySelected() const
	{
		QModelIndexList Selected = selectionModel()->selectedIndexes();
		std::sort(Selected.begin(), Selected.end());
		QStringList Texts;
		for (const QModelIndex& Index : Selected)
		{
			Texts.append(Index.data().toString());
		}
		if (!Texts.isEmpty())
		{
			QGuiApplication::clipboard()->setText(Texts.join(QLatin1Char('\n')));
		}
	}

	FOutputLogModel& Model;
	bool bFollowing = true;
};

class FOutputLog final : public QWidget, private FOutputDevice
{
public:
	explicit FOutputLog(QWidget* Parent)
		: QWidget(Parent)
		, View(new FLineView(this))
	{
		QHBoxLayout* const Bar = new QHBoxLayout;
		AddFilter(*Bar);
		AddLevels(*Bar);
		AddClear(*Bar);
		QVBoxLayout* const Layout = new QVBoxLayout(this);
		Layout->setContentsMargins(4, 4, 4, 4);
		Layout->addLayout(Bar);
		Layout->addWidget(View);
		Batch.setSingleShot(true);
		connect(&Batch, &QTimer::timeout, this, [this] { View->Append(Waiting); });
		GLog->SerializeBacklog(this);
		GLog->EnableBacklog(false);
		GLog->AddOutputDevice(this);
	}
	~FOutputLog() override { GLog->RemoveOutputDevice(this); }

private:
	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		const ELogLevel Level = FOutputLogModel::GetLevel(Verbosity);
		const QString Text = QString::fromUtf16(Message);
		for (const QString& Line : FOutputLogModel::FormatMessage(Text, Verbosity, ToQString(Category.ToString())))
		{
			Waiting.push_back({ Line, Level });
		}
		while (Waiting.size() > FOutputLogModel::MaxLines)
		{
			Waiting.pop_front();
		}
		if (!Batch.isActive())
		{
			Batch.start(BatchMilliseconds);
		}
	}

	void AddFilter(QHBoxLayout& Bar)
	{
		QLineEdit* const Filter = new QLineEdit(this);
		Filter->setPlaceholderText(QStringLiteral("Filter"));
		Filter->setAccessibleName(QStringLiteral("Filter the log"));
		Filter->setClearButtonEnabled(true);
		connect(Filter, &QLineEdit::textChanged, this, [this](const QString& Text) { View->GetModel().SetText(Text); });
		Bar.addWidget(Filter, 1);
	}

	void AddLevels(QHBoxLayout& Bar)
	{
		static const char* const Names[] = { "Messages", "Warnings", "Errors" };
		for (size_t Index = 0; Index < std::size(Names); ++Index)
		{
			QCheckBox* const Box = new QCheckBox(QLatin1String(Names[Index]), this);
			Box->setChecked(true);
			connect(Box, &QCheckBox::toggled, this,
				[this, Level = ELogLevel(Index)](bool bShown) { View->GetModel().SetShown(Level, bShown); });
			Bar.addWidget(Box);
		}
	}

	void AddClear(QHBoxLayout& Bar)
	{
		QToolButton* const Button = new QToolButton(this);
		Button->setText(QStringLiteral("Clear"));
		Button->setFocusPolicy(Qt::StrongFocus);
		connect(Button, &QToolButton::clicked, this,
			[this]
			{
			Waiting.clear();
			View->GetModel().Clear();
		});
		Bar.addWidget(Button);
	}

	FLineView* View;
	/** Lines that are not shown yet, oldest first. */
	std::deque<FOutputLogModel::FLine> Waiting;
	QTimer Batch;
};
}

QWidget* MakeOutputLog(QWidget* Parent)
{
	return new FOutputLog(Parent);
}
