#pragma once

#include "Containers/Ticker.h"
#include "EditorCommands.h"
#include "MainMenu.h"
#include "TabDocks.h"

/**
 * The editor's main window: the menus, the tool bar and the tabs that modules bring, the output log and the settings. It follows them in
 * each frame of the main loop.
 */
class FMainWindow final : public QMainWindow
{
public:
	/** In the place and with the tabs that the project's last window had; with the assistant open in a project's first. */
	FMainWindow();
	~FMainWindow() override;

	/** Keeps its place and its tabs for the project's next window. */
	void SaveLayout() const;

protected:
	/** Asks the engine to exit: the program goes with its window. */
	void closeEvent(QCloseEvent* Event) override;
	QMenu* createPopupMenu() override { return nullptr; }

private:
	void MakeOutputLogDock();
	void RestoreLayout();
	void ToggleOutputLog();
	void ShowSettings();
	FMainWindowActions MakeActions();
	void Follow();

	QDockWidget* OutputLog = nullptr;
	QWidget* Settings = nullptr;
	QWidget* EmptyPage = nullptr;
	FTabDocks Tabs{ *this };
	FMainMenu MainMenu{ *menuBar() };
	FToolMenuActions ToolBar;
	TUniquePtr<FEditorCommands> Commands;
	FTSTicker::FDelegateHandle Ticker;
};
