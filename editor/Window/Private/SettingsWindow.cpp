#include "SettingsWindow.h"

#include "SettingsPage.h"

namespace
{
constexpr int PollMilliseconds = 500;

/** What tells a section from the others, for as long as it is registered. */
QString GetKey(const FSettingsEntry& Entry)
{
	return ToQString(
		FString::Printf(TEXT("%s.%s.%s"), *Entry.Container.ToString(), *Entry.Category.ToString(), *Entry.Section->GetName().ToString()));
}

class FSettingsWindow final : public QWidget
{
public:
	explicit FSettingsWindow(QWidget* Parent)
		: QWidget(Parent, Qt::Window)
	{
		setWindowTitle(QStringLiteral("Project Settings"));
		resize(900, 700);
		Sections = new QTreeWidget;
		Sections->setHeaderHidden(true);
		Sections->setRootIsDecorated(false);
		Sections->setItemsExpandable(false);
		Sections->setAccessibleName(QStringLiteral("Sections"));
		Search = new QLineEdit;
		Search->setPlaceholderText(QStringLiteral("Search settings"));
		Search->setAccessibleName(Search->placeholderText());
		Search->setClearButtonEnabled(true);
		Pages = new QStackedWidget;

		QWidget* const Right = new QWidget;
		QVBoxLayout* const RightLayout = new QVBoxLayout(Right);
		RightLayout->setContentsMargins(0, 0, 0, 0);
		RightLayout->addWidget(Search);
		RightLayout->addWidget(Pages);
		QSplitter* const Splitter = new QSplitter;
		Splitter->addWidget(Sections);
		Splitter->addWidget(Right);
		Splitter->setStretchFactor(1, 1);
		Splitter->setSizes({ 200, 700 });
		Sections->setMinimumWidth(120);
		Right->setMinimumWidth(330);
		Splitter->setChildrenCollapsible(false);
		(new QVBoxLayout(this))->addWidget(Splitter);

		connect(Sections, &QTreeWidget::currentItemChanged, this, [this] { ShowPage(); });
		connect(Search, &QLineEdit::textChanged, this, [this] { ShowPage(); });
		connect(&Poll, &QTimer::timeout, this, [this] { Follow(); });
		Follow();
	}
	~FSettingsWindow() override { TakeEdit(); }

protected:
	void showEvent(QShowEvent* Event) override
	{
		QWidget::showEvent(Event);
		Follow();
		Poll.start(PollMilliseconds);
	}
	void hideEvent(QHideEvent* Event) override
	{
		Poll.stop();
		TakeEdit();
		QWidget::hideEvent(Event);
	}
	void changeEvent(QEvent* Event) override
	{
		QWidget::changeEvent(Event);
		if (Event->type() == QEvent::ActivationChange)
		{
			isActiveWindow() ? Follow() : TakeEdit();
		}
	}

private:
	/** Takes what is typed so far, as when the focus goes to another widget; Qt itself does not when it goes with the window. */
	void TakeEdit()
	{
		if (QWidget* const Focused = focusWidget())
		{
			QFocusEvent Event(QEvent::FocusOut, Qt::OtherFocusReason);
			QCoreApplication::sendEvent(Focused, &Event);
		}
	}

	/** Brings what is shown up to date: the sections, or else the values of the page. */
	void Follow()
	{
		const TArray<FSettingsEntry> Entries = FHostSettings::GetSections();
		QStringList Now;
		for (const FSettingsEntry& Entry : Entries)
		{
			Now.append(GetKey(Entry) + QLatin1Char('\n') + FSettingsPage::Describe(*Entry.Section));
		}
		if (Now != Shown || Pages->count() == 0)
		{
			Shown = Now;
			MakePages(Entries);
		}
		else if (FSettingsPage* const Page = CurrentPage())
		{
			Page->Refresh();
		}
	}

	void MakePages(const TArray<FSettingsEntry>& Entries)
	{
		const QTreeWidgetItem* const Current = Sections->currentItem();
		const QString Kept = Current ? Current->data(0, Qt::UserRole).toString() : QString();
		const QSignalBlocker Blocker(Sections);
		Sections->clear();
		while (QWidget* const Page = Pages->widget(0))
		{
			Pages->removeWidget(Page);
			Page->deleteLater();
		}
		QTreeWidgetItem* Selected = nullptr;
		for (const FSettingsEntry& Entry : Entries)
		{
			QTreeWidgetItem* const Item = new QTreeWidgetItem(FindCategory(Entry));
			Item->setText(0, ToQString(Entry.Section->GetDisplayName().ToString()));
			Item->setToolTip(0, ToQString(Entry.Section->GetDescription().ToString()));
			Item->setData(0, Qt::UserRole, GetKey(Entry));
			Item->setData(0, Qt::UserRole + 1, Pages->addWidget(new FSettingsPage(*Entry.Section, Pages)));
			Selected = !Selected || GetKey(Entry) == Kept ? Item : Selected;
		}
		if (Entries.IsEmpty())
		{
			QLabel* const Nothing = new QLabel(QStringLiteral("There are no settings: no module has registered any."));
			Nothing->setAlignment(Qt::AlignCenter);
			Pages->addWidget(Nothing);
		}
		Sections->expandAll();
		Sections->setCurrentItem(Selected);
		ShowPage();
	}

	/** The heading that a section stands under. */
	QTreeWidgetItem* FindCategory(const FSettingsEntry& Entry)
	{
		const QString Text = ToQString(FString::Printf(TEXT("%s - %s"), *Entry.Container.ToString(), *Entry.Category.ToString()));
		const QList<QTreeWidgetItem*> Found = Sections->findItems(Text, Qt::MatchExactly);
		if (!Found.isEmpty())
		{
			return Found.front();
		}
		QTreeWidgetItem* const Item = new QTreeWidgetItem(Sections, { Text });
		Item->setFlags(Qt::ItemIsEnabled);
		QFont Font = Sections->font();
		Font.setBold(true);
		Item->setFont(0, Font);
		return Item;
	}

	void ShowPage()
	{
		const QTreeWidgetItem* const Item = Sections->currentItem();
		Pages->setCurrentIndex(Item ? Item->data(0, Qt::UserRole + 1).toInt() : 0);
		if (FSettingsPage* const Page = CurrentPage())
		{
			Page->Refresh();
			Page->SetFilter(Search->text().trimmed());
		}
	}

	/** Null when there are no sections. */
	FSettingsPage* CurrentPage() const { return dynamic_cast<FSettingsPage*>(Pages->currentWidget()); }

	QTreeWidget* Sections;
	QLineEdit* Search;
	QStackedWidget* Pages;
	QTimer Poll;
	QStringList Shown;
};
}

QWidget* MakeSettingsWindow(QWidget* Parent)
{
	return new FSettingsWindow(Parent);
}
