#include "MainWindow.h"

#include "EmptyPage.h"
#include "Misc/App.h"
#include "OutputLog.h"
#include "SettingsWindow.h"
#include "WindowLayout.h"

namespace
{
const FName AssistantTab(TEXT("Kestrin"));

QToolBar& MakeToolBar(QMainWindow& Window)
{
	QToolBar* const Bar = Window.addToolBar(QStringLiteral("Tools"));
	Bar->setObjectName(QStringLiteral("PlayToolBar"));
	Bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
	Bar->setMovable(false);
	return *Bar;
}
}

FMainWindow::FMainWindow()
	: ToolBar(MakeToolBar(*this), *UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar.PlayToolBar"))
{
	setWindowTitle(QStringLiteral("%1 - Kestrin").arg(QString::fromUtf16(FApp::GetProjectName())));
	setDockOptions(AllowNestedDocks | AllowTabbedDocks);
	setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
	EmptyPage = MakeEmptyPage(*this);
	setCentralWidget(EmptyPage);
	MakeOutputLogDock();
	Commands = MakeUnique<FEditorCommands>(MakeActions());
	RestoreLayout();
	Ticker = FTSTicker::GetCoreTicker().AddTicker(TEXT("FMainWindow"), 0.0f,
		[this](float)
		{
		Follow();
		return true;
	});
	Follow();
}

FMainWindow::~FMainWindow()
{
	FTSTicker::RemoveTicker(Ticker);
}

void FMainWindow::MakeOutputLogDock()
{
	OutputLog = new QDockWidget(QStringLiteral("Output Log"), this);
	OutputLog->setObjectName(QStringLiteral("OutputLog"));
	OutputLog->setWidget(MakeOutputLog(OutputLog));
	addDockWidget(Qt::BottomDockWidgetArea, OutputLog);
	resizeDocks({ OutputLog }, { 200 }, Qt::Vertical);
	OutputLog->hide();
}

FMainWindowActions FMainWindow::MakeActions()
{
	return {
		FExecuteAction::CreateLambda([this] { close(); }),
		FExecuteAction::CreateLambda([this] { ShowSettings(); }),
		FExecuteAction::CreateLambda([this] { ToggleOutputLog(); }),
		FIsActionChecked::CreateLambda([this] { return !OutputLog->isHidden(); }),
	};
}

void FMainWindow::RestoreLayout()
{
	const TOptional<FWindowLayout> Kept = FWindowLayout::Read();
	const TArray<FName> OpenTabs = Kept.IsSet() ? Kept.GetValue().Tabs : TArray<FName>{ AssistantTab };
	resize(QSize(1280, 800).boundedTo(screen()->availableSize()));
	for (const FName& Tab : OpenTabs)
	{
		FGlobalTabmanager::Get()->TryInvokeTab(Tab);
	}
	if (Kept.IsSet())
	{
		restoreGeometry(Kept.GetValue().Geometry);
		restoreState(Kept.GetValue().Docks);
		Tabs.ShowOpenTabs();
	}
}

void FMainWindow::SaveLayout() const
{
	FWindowLayout{ saveGeometry(), saveState(), Tabs.GetOpenTabs() }.Write();
}

void FMainWindow::ToggleOutputLog()
{
	OutputLog->setVisible(OutputLog->isHidden());
	OutputLog->raise();
}

void FMainWindow::ShowSettings()
{
	if (!Settings)
	{
		Settings = MakeSettingsWindow(this);
	}
	Settings->show();
	Settings->raise();
	Settings->activateWindow();
}

void FMainWindow::Follow()
{
	MainMenu.Follow();
	ToolBar.Follow();
	// Docks fill the window when there is nothing else in it.
	EmptyPage->setVisible(!Tabs.IsAnyInWindow());
}

void FMainWindow::closeEvent(QCloseEvent* Event)
{
	QMainWindow::closeEvent(Event);
	RequestEngineExit(TEXT("its window was closed"));
}
