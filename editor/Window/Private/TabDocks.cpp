#include "TabDocks.h"

#include "SlateQtHost/SlateView.h"

/** Closing it closes its tab. */
class FTabDocks::FDock final : public QDockWidget
{
public:
	FDock(const FName& InId, QWidget& Parent)
		: QDockWidget(&Parent)
		, Id(InId)
	{
		setObjectName(ToQString(Id.ToString()));
	}

	const FName& GetId() const { return Id; }
	bool IsOpen() const { return Tab.IsValid(); }
	bool Shows(const TSharedRef<SDockTab>& Other) const { return Tab.Pin().Get() == &*Other; }

	void SetTab(const TSharedRef<SDockTab>& InTab)
	{
		Tab = InTab;
		setWidget(MakeSlateView(InTab->GetContent(), this));
	}

	void Clear()
	{
		Tab.Reset();
		hide();
		// The tab may be closed by something in it.
		if (QWidget* const View = widget())
		{
			setWidget(nullptr);
			View->hide();
			View->deleteLater();
		}
	}

protected:
	void closeEvent(QCloseEvent* Event) override
	{
		const TSharedPtr<SDockTab> Closed = Tab.Pin();
		Event->setAccepted(!Closed.IsValid() || Closed->RequestCloseTab());
	}

private:
	const FName Id;
	TWeakPtr<SDockTab> Tab;
};

FTabDocks::FTabDocks(QMainWindow& InWindow)
	: Window(InWindow)
	, InvokedHandle(FGlobalTabmanager::Get()->OnTabInvoked.AddRaw(this, &FTabDocks::Show))
	, ClosingHandle(FGlobalTabmanager::Get()->OnTabClosing.AddRaw(this, &FTabDocks::Empty))
{
}

FTabDocks::~FTabDocks()
{
	FGlobalTabmanager::Get()->OnTabInvoked.Remove(InvokedHandle);
	FGlobalTabmanager::Get()->OnTabClosing.Remove(ClosingHandle);
}

TArray<FName> FTabDocks::GetOpenTabs() const
{
	TArray<FName> Ids;
	for (const FDock* const Dock : Docks)
	{
		if (Dock->IsOpen())
		{
			Ids.Add(Dock->GetId());
		}
	}
	return Ids;
}

bool FTabDocks::IsAnyInWindow() const
{
	return Docks.ContainsByPredicate([](const FDock* Dock) { return !Dock->isHidden() && !Dock->isFloating(); });
}

void FTabDocks::ShowOpenTabs()
{
	for (FDock* const Dock : Docks)
	{
		Dock->setVisible(Dock->IsOpen());
	}
}

FTabDocks::FDock& FTabDocks::FindOrAdd(const FTabSpawnerEntry& Spawner)
{
	FDock* const* const Known = Docks.FindByPredicate([&Spawner](const FDock* Dock) { return Dock->GetId() == Spawner.GetTabType(); });
	if (Known)
	{
		return **Known;
	}
	FDock* const Dock = new FDock(Spawner.GetTabType(), Window);
	if (!Window.restoreDockWidget(Dock))
	{
		FDock* const* const Neighbour = Docks.FindByPredicate([](const FDock* Each) { return !Each->isHidden() && !Each->isFloating(); });
		Window.addDockWidget(Qt::RightDockWidgetArea, Dock);
		if (Neighbour)
		{
			Window.tabifyDockWidget(*Neighbour, Dock);
		}
	}
	Docks.Add(Dock);
	return *Dock;
}

void FTabDocks::Show(const FTabSpawnerEntry& Spawner, const TSharedRef<SDockTab>& Tab)
{
	FDock& Dock = FindOrAdd(Spawner);
	Dock.setWindowTitle(ToQString(Spawner.GetDisplayName().ToString()));
	Dock.setWindowIcon(MakeQtIcon(Spawner.GetIcon()));
	if (!Dock.Shows(Tab))
	{
		Dock.Clear();
		Dock.SetTab(Tab);
	}
	Dock.show();
	Dock.raise();
	Dock.activateWindow();
	Dock.widget()->setFocus(Qt::OtherFocusReason);
}

void FTabDocks::Empty(const TSharedRef<SDockTab>& Tab)
{
	FDock* const* const Dock = Docks.FindByPredicate([&Tab](const FDock* Each) { return Each->Shows(Tab); });
	if (Dock)
	{
		(*Dock)->Clear();
	}
}
