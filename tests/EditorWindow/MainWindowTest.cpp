#include "CoreHost/Project.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "MainWindow.h"
#include "Modules/ModuleManager.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "Widgets/Text/STextBlock.h"
#include "WindowSupport.h"

#include <QtTest/QTest>
#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MainWindowTest"

namespace
{
const FName Assistant(TEXT("Kestrin"));
const FName Notes(TEXT("Notes"));

class FWindowTestCommands final : public TCommands<FWindowTestCommands>
{
public:
	FWindowTestCommands()
		: TCommands<FWindowTestCommands>("WindowTest", INVTEXT("Test"), NAME_None, NAME_None)
	{
	}
	void RegisterCommands() override
	{
		UI_COMMAND(Light, "Light & Dark", "Lights the lantern", EUserInterfaceActionType::ToggleButton, FInputChord());
	}

	TSharedPtr<FUICommandInfo> Light;
};

/** A project with two kinds of tabs, and its main window. */
class MainWindow : public testing::Test
{
protected:
	MainWindow()
	{
		FModuleManager::Get().LoadModule("UnrealEd");
		FHostProject::Set(ToFString(Folder.filePath(QStringLiteral("Lantern.uproject"))));
		for (const FName& Id : { Assistant, Notes })
		{
			FGlobalTabmanager::Get()
				->RegisterNomadTabSpawner(Id,
					FOnSpawnTab::CreateLambda([](const FSpawnTabArgs&) { return SNew(SDockTab)[SNew(STextBlock).Text(INVTEXT("Text"))]; }))
				.SetDisplayName(FText::FromString(Id.ToString() + TEXT(" title")));
		}
		Open();
	}
	~MainWindow() override
	{
		Window.Reset();
		FGlobalTabmanager::Get()->CloseAllTabs();
		FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(Assistant);
		FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(Notes);
		GEditor->ResetTransaction(FText::GetEmpty());
		FHostProject::Set(FString());
	}

	void Open()
	{
		Window = MakeUnique<FMainWindow>();
		::Open(*Window);
		Frames();
	}
	/** As a user who closes the editor and starts it again. */
	void Reopen()
	{
		Window->SaveLayout();
		Window.Reset();
		FGlobalTabmanager::Get()->CloseAllTabs();
		Open();
	}
	static void Frames()
	{
		for (int32 Frame = 0; Frame < 5; ++Frame)
		{
			FMainLoop::Tick();
		}
	}
	TSharedPtr<SDockTab> Invoke(const FName& Id) const
	{
		const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->TryInvokeTab(Id);
		Frames();
		return Tab;
	}

	QDockWidget* FindDock(const char* Name) const { return Window->findChild<QDockWidget*>(QString::fromLatin1(Name)); }
	bool IsShown(const char* Name) const { return FindDock(Name) && FindDock(Name)->isVisible(); }
	/** The texts of a pull-down's entries as the user sees them, "-" for a line; nothing when it is not there. */
	QStringList GetPullDown(const char* Title) const
	{
		QStringList Texts;
		for (const QAction* const PullDown : Window->menuBar()->actions())
		{
			if (PullDown->isVisible() && PullDown->text() == QString::fromLatin1(Title))
			{
				for (const QAction* const Entry : PullDown->menu()->actions())
				{
					Texts << (Entry->isSeparator() ? QStringLiteral("-") : Entry->text());
				}
			}
		}
		return Texts;
	}
	QAction* FindAction(const QString& Text) const
	{
		const QList<QAction*> Actions = Window->findChildren<QAction*>();
		const auto Found = std::find_if(Actions.begin(), Actions.end(), [&Text](const QAction* Each) { return Each->text() == Text; });
		return Found == Actions.end() ? nullptr : *Found;
	}
	static QStringList List(std::initializer_list<const char*> Texts)
	{
		QStringList Strings;
		for (const char* const Text : Texts)
		{
			Strings << QString::fromLatin1(Text);
		}
		return Strings;
	}
	QString GetLayoutFile() const { return Folder.filePath(QStringLiteral("Saved/Config/EditorWindow.ini")); }

	const QTemporaryDir Folder;
	TUniquePtr<FMainWindow> Window;
};

/** As the window system brings it: shortcuts come before what has the focus. */
void PressChord(Qt::Key Key, Qt::KeyboardModifiers Modifiers)
{
	QWidget* const Focused = QApplication::focusWidget();
	ASSERT_NE(Focused, nullptr);
	QTest::keyClick(Focused, Key, Modifiers);
}

TEST_F(MainWindow, ShowsTheMenusAsTheyAreNow)
{
	EXPECT_EQ(GetPullDown("&File"), List({ "Exit" }));
	EXPECT_EQ(GetPullDown("&Edit"), List({ "Undo", "Redo", "-", "Project Settings..." }));
	EXPECT_EQ(GetPullDown("&Window"), List({ "Output Log" }));
	EXPECT_TRUE(FindAction(QStringLiteral("Exit"))->isEnabled());
	EXPECT_FALSE(FindAction(QStringLiteral("Undo"))->isEnabled());

	FWindowTestCommands::Register();
	const TSharedPtr<FUICommandInfo> Light = FWindowTestCommands::Get().Light;
	bool bCan = false;
	bool bLit = false;
	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	Commands->MapAction(Light, FExecuteAction::CreateLambda([&bLit] { bLit = !bLit; }),
		FCanExecuteAction::CreateLambda([&bCan] { return bCan; }), FIsActionChecked::CreateLambda([&bLit] { return bLit; }));
	const int32 Owner = 0;
	for (const char* const Menu :
		{ "LevelEditor.MainMenu.Window", "LevelEditor.MainMenu.Lanterns", "LevelEditor.LevelEditorToolBar.PlayToolBar" })
	{
		const FToolMenuOwnerScoped Scope(&Owner);
		UToolMenus::Get()->ExtendMenu(Menu)->FindOrAddSection("WindowLayout").AddMenuEntryWithCommandList(Light, Commands);
	}
	Frames();
	EXPECT_EQ(GetPullDown("&Window"), List({ "Light && Dark", "-", "Output Log" }));
	EXPECT_EQ(GetPullDown("&Lanterns"), List({ "Light && Dark" }));
	const QToolBar* const ToolBar = Window->findChild<QToolBar*>();
	ASSERT_EQ(ToolBar->actions().size(), 1);
	EXPECT_EQ(ToolBar->actions()[0]->text(), QStringLiteral("Light && Dark"));
	QAction* const Entry = FindAction(QStringLiteral("Light && Dark"));
	EXPECT_EQ(Entry->toolTip(), QStringLiteral("Lights the lantern"));
	EXPECT_FALSE(Entry->isEnabled());
	EXPECT_TRUE(Entry->isCheckable());
	bCan = true;
	Frames();
	Entry->trigger();
	EXPECT_TRUE(bLit);
	Entry->trigger();
	Frames();
	EXPECT_FALSE(Entry->isChecked());

	UToolMenus::UnregisterOwner(&Owner);
	Frames();
	EXPECT_EQ(GetPullDown("&Window"), List({ "Output Log" }));
	EXPECT_EQ(GetPullDown("&Lanterns"), QStringList());
	EXPECT_TRUE(ToolBar->actions().isEmpty());
	FWindowTestCommands::Unregister();
}

TEST_F(MainWindow, UndoesTheEditorsTransactionsUnlessATextHasTheFocus)
{
	for (const TCHAR* const Title : { TEXT("Add\tone"), TEXT("Add two") })
	{
		const FScopedTransaction Transaction(FText::FromString(Title));
		UObject* const Object = NewObject<UPackage>(nullptr, Title, RF_Transactional);
		Object->Modify();
	}
	Frames();
	EXPECT_EQ(GetPullDown("&Edit").mid(0, 2), List({ "Undo Add two", "Redo" }));

	Window->activateWindow();
	Window->setFocus();
	Frames();
	PressChord(Qt::Key_Z, Qt::ControlModifier);
	Frames();
	EXPECT_EQ(GEditor->Trans->GetUndoCount(), 1);
	EXPECT_EQ(GetPullDown("&Edit").mid(0, 2), List({ "Undo Add one", "Redo Add two" }));

	QLineEdit* const Text = new QLineEdit(QStringLiteral("lantern"), Window.Get());
	Text->show();
	Text->setFocus();
	Frames();
	Text->insert(QStringLiteral("s"));
	PressChord(Qt::Key_Z, Qt::ControlModifier);
	EXPECT_EQ(Text->text(), QStringLiteral("lantern"));
	EXPECT_EQ(GEditor->Trans->GetUndoCount(), 1);
	delete Text;

	Window->setFocus();
	PressChord(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
	EXPECT_EQ(GEditor->Trans->GetUndoCount(), 0);
	PressChord(Qt::Key_Z, Qt::ControlModifier);
	PressChord(Qt::Key_Y, Qt::ControlModifier);
	EXPECT_EQ(GEditor->Trans->GetUndoCount(), 0);
}

TEST_F(MainWindow, DocksTheTabsThatAreOpen)
{
	QWidget* const Page = Window->centralWidget();
	ASSERT_TRUE(IsShown("Kestrin")) << "in a first run";
	EXPECT_EQ(FindDock("Kestrin")->windowTitle(), QStringLiteral("Kestrin title"));
	EXPECT_FALSE(Page->isVisible());

	FindDock("Kestrin")->close();
	Frames();
	EXPECT_FALSE(FGlobalTabmanager::Get()->FindExistingLiveTab(Assistant).IsValid());
	EXPECT_FALSE(IsShown("Kestrin"));
	EXPECT_TRUE(Page->isVisible());

	TSharedPtr<SDockTab> Tab = Invoke(Assistant);
	EXPECT_TRUE(IsShown("Kestrin"));
	EXPECT_TRUE(Tab->RequestCloseTab());
	Frames();
	EXPECT_FALSE(IsShown("Kestrin")) << "closed by somebody else";
	const TWeakPtr<SDockTab> Closed = Tab;
	Tab.Reset();
	EXPECT_FALSE(Closed.IsValid()) << "nobody keeps what was closed";

	Invoke(Assistant);
	Invoke(Notes);
	EXPECT_EQ(Window->tabifiedDockWidgets(FindDock("Kestrin")), QList<QDockWidget*>{ FindDock("Notes") });
	EXPECT_TRUE(FindDock("Kestrin")->visibleRegion().isEmpty());
	Invoke(Assistant);
	EXPECT_FALSE(FindDock("Kestrin")->visibleRegion().isEmpty()) << "to the front";

	FindDock("Kestrin")->setFloating(true);
	FindDock("Notes")->close();
	Frames();
	EXPECT_TRUE(Page->isVisible()) << "the only tab stands by itself";
	FindDock("Kestrin")->close();
	Invoke(Assistant);
	EXPECT_TRUE(FindDock("Kestrin")->isFloating()) << "in its old place";
}

TEST_F(MainWindow, OpensAsItWasClosed)
{
	FindDock("Kestrin")->close();
	Invoke(Notes);
	FindDock("Notes")->setFloating(true);
	Frames();
	FindAction(QStringLiteral("Output Log"))->trigger();
	Frames();
	Window->resize(640, 480);
	Frames();
	EXPECT_LT(FindDock("OutputLog")->height(), Window->height() / 2);
	Reopen();
	EXPECT_FALSE(FGlobalTabmanager::Get()->FindExistingLiveTab(Assistant).IsValid());
	EXPECT_TRUE(IsShown("Notes") && FindDock("Notes")->isFloating());
	EXPECT_TRUE(IsShown("OutputLog"));
	EXPECT_TRUE(FindAction(QStringLiteral("Output Log"))->isChecked());
	EXPECT_EQ(Window->size(), QSize(640, 480));

	FindAction(QStringLiteral("Output Log"))->trigger();
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(Notes);
	Reopen();
	EXPECT_FALSE(IsShown("Notes")) << "nobody brings it any more";
	EXPECT_FALSE(IsShown("OutputLog"));
}

TEST_F(MainWindow, TakesALayoutThatIsNotItsOwnForAFirstRun)
{
	FindDock("Kestrin")->close();
	Window->SaveLayout();
	const auto Read = [this]
	{
		QFile File(GetLayoutFile());
		EXPECT_TRUE(File.open(QIODevice::ReadOnly));
		return File.readAll();
	};
	const QByteArray Own = Read();
	QByteArray Changed = Own;
	// A length within the docks' state becomes a huge one.
	Changed.replace(Changed.indexOf("Docks=@ByteArray(") + 17, 8, "\\x7f\\xff\\x7f\\xff");
	for (const QByteArray& Bytes :
		{ QByteArray(), QByteArray("[General]\nVersion=1\n"), QByteArray("\0\xff\xfe[", 4), Own.left(Own.size() / 2), Changed })
	{
		SCOPED_TRACE(Bytes.toStdString());
		Window.Reset();
		FGlobalTabmanager::Get()->CloseAllTabs();
		QFile File(GetLayoutFile());
		ASSERT_TRUE(File.open(QIODevice::WriteOnly | QIODevice::Truncate));
		File.write(Bytes);
		File.close();
		Open();
		EXPECT_TRUE(IsShown("Kestrin"));
		FindDock("Kestrin")->close();
		Window->SaveLayout();
		EXPECT_EQ(Read(), Own) << "and keeps its own in its place";
	}
}

TEST_F(MainWindow, EndsTheProgramWithTheWindow)
{
	EXPECT_FALSE(IsEngineExitRequested());
	FindAction(QStringLiteral("Exit"))->trigger();
	EXPECT_TRUE(IsEngineExitRequested());
	EXPECT_FALSE(Window->isVisible());
	GIsRequestingExit = false;
	Reopen();
	EXPECT_TRUE(IsShown("Kestrin")) << "what was open when it was closed is open again";
}
}

#undef LOCTEXT_NAMESPACE
