#pragma once

#include "Framework/Docking/TabManager.h"
#include "SlateQtHost/Qt.h"

/**
 * The tabs of the global tab manager as docks of a main window, from when each is first opened. A tab that is closed leaves its dock
 * behind, hidden and empty, so that it opens again in its old place.
 */
class FTabDocks
{
public:
	/** @param InWindow outlives it */
	explicit FTabDocks(QMainWindow& InWindow);
	~FTabDocks();
	UE_NONCOPYABLE(FTabDocks)

	/** In the order of their first opening. */
	TArray<FName> GetOpenTabs() const;
	/** Whether one stands in the window, and not by itself. */
	bool IsAnyInWindow() const;
	/** Shows the docks of the open tabs and hides the others, whatever a restored state says. */
	void ShowOpenTabs();

private:
	class FDock;

	void Show(const FTabSpawnerEntry& Spawner, const TSharedRef<SDockTab>& Tab);
	void Empty(const TSharedRef<SDockTab>& Tab);
	FDock& FindOrAdd(const FTabSpawnerEntry& Spawner);

	QMainWindow& Window;
	TArray<FDock*> Docks;
	FDelegateHandle InvokedHandle;
	FDelegateHandle ClosingHandle;
};
