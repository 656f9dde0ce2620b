#include "SettingsWindow.h"

#include "CoreHost/Project.h"
#include "ISettingsModule.h"
#include "KestrinSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "WindowSupport.h"
#include "WindowTestSettings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::Not;

namespace
{
const char* const PluginFile = "Config/DefaultEditorPerUserSettings.ini";
const char* const TestFile = "Config/DefaultWindowTest.ini";

UKestrinSettings& Plugin()
{
	return *GetMutableDefault<UKestrinSettings>();
}

UWindowTestSettings& Subject()
{
	return *GetMutableDefault<UWindowTestSettings>();
}

ISettingsModule& Module()
{
	return *FModuleManager::LoadModulePtr<ISettingsModule>("Settings");
}

QStringList Texts(const QListView& List)
{
	QStringList Result;
	for (int Row = 0; Row < List.model()->rowCount(); ++Row)
	{
		Result.append(List.model()->index(Row, 0).data().toString());
	}
	return Result;
}

/** Gives a class's default object back the values that it has now. */
class FKeptDefaults
{
public:
	explicit FKeptDefaults(UClass* InClass)
		: Class(InClass)
		, Kept(NewObject<UObject>(GetTransientPackage(), InClass))
	{
	}
	void Restore() const
	{
		for (TFieldIterator<FProperty> Property(Class); Property; ++Property)
		{
			Property->CopyCompleteValue_InContainer(Class->GetDefaultObject(), Kept.Get());
		}
	}

private:
	UClass* Class;
	TStrongObjectPtr<UObject> Kept;
};

/** A project of its own, the window open on its settings. */
class SettingsWindow : public testing::Test
{
protected:
	static void SetUpTestSuite()
	{
		// Made while no project is open, so that they have the defaults of the sources.
		KeptPlugin = MakeUnique<FKeptDefaults>(UKestrinSettings::StaticClass());
		KeptSubject = MakeUnique<FKeptDefaults>(UWindowTestSettings::StaticClass());
		FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
	}
	static void TearDownTestSuite()
	{
		KeptPlugin.Reset();
		KeptSubject.Reset();
	}
	void SetUp() override
	{
		KeptPlugin->Restore();
		KeptSubject->Restore();
		Directory.Write("Game.uproject", "{}");
		FHostProject::Set(Directory / "Game.uproject");
		FHostProject::SetEngineDir(Directory / "Engine");
		Module();
	}
	void TearDown() override
	{
		Window.reset();
		Module().UnregisterSettings("Project", "Test", "Subject");
		FModuleManager::Get().UnloadModule("Kestrin");
		FHostProject::Set(FString());
	}

	void OpenPlugin()
	{
		FModuleManager::Get().LoadModule("Kestrin");
		OpenWindow();
	}
	void OpenSubject()
	{
		Module().RegisterSettings("Project", "Test", "Subject", INVTEXT("Subject"), INVTEXT("Of a test"), &Subject());
		OpenWindow();
	}
	void OpenWindow()
	{
		Window.reset(MakeSettingsWindow(nullptr));
		Open(*Window);
	}

	template <typename T>
	T& Find(const char* Name) const
	{
		T* const Found = Window->findChild<T*>(QLatin1String(Name));
		EXPECT_TRUE(Found) << Name;
		return *Found;
	}
	/** Types over what is in a widget and presses Enter. */
	void Enter(const char* Name, const QString& Text) const
	{
		Find<QWidget>(Name).setFocus();
		TypeOver(Text);
		Press(Qt::Key_Return);
	}
	void Choose(const char* Name, int Index) const
	{
		QComboBox& Box = Find<QComboBox>(Name);
		Box.setCurrentIndex(Index);
		Q_EMIT Box.activated(Index);
	}
	void ClickOfList(const char* Name, const char* Button) const { FindButton(*Find<QListView>(Name).parentWidget(), Button)->click(); }
	/** The names of the rows that can be seen, in order. */
	QStringList VisibleRows() const
	{
		QStringList Result;
		for (const QLabel* const Label : Window->findChildren<QLabel*>())
		{
			if (Label->buddy() && Label->isVisible())
			{
				Result.append(Label->text());
			}
		}
		return Result;
	}

	inline static TUniquePtr<FKeptDefaults> KeptPlugin;
	inline static TUniquePtr<FKeptDefaults> KeptSubject;
	const FTestDirectory Directory;
	std::unique_ptr<QWidget> Window;
};

TEST_F(SettingsWindow, ShowsEverySettingOfThePluginUnderItsCategory)
{
	struct FCase
	{
		const char* Name;
		const char* Category;
		const char* Label;
		const char* ToolTip;
		const char* Widget;
	};
	const char* const Extensions = "Kestrin|Filtering|File|Extensions";
	const char* const Directories = "Kestrin|Filtering|File|Directories";
	const FCase Cases[] = {
		{ "ApiKey", "Kestrin|Authentication", "API Key", "Authentication key required to access Kestrin AI services", "QLineEdit" },
		{ "bDisplayFileChangesInChat", "Kestrin|Interface", "Display File Changes In Chat",
			"Enables or disables the display of file modifications, creations, and deletions in the chat interface", "QCheckBox" },
		{ "bResetSupportedFileExtensions", Extensions, "Reset Supported File Extensions", "Reset Supported File Extensions", "QCheckBox" },
		{ "SupportedFileExtensions", Extensions, "Supported File Extensions",
			"Additional file extensions beyond UE4's default types (py, cs, json, cpp, h, uasset, umap, ini, uproject, csv)", "QListView" },
		{ "bResetExcludedDirectories", Directories, "Reset Excluded Directories", "Reset Excluded Directories", "QCheckBox" },
		{ "ExcludedDirectories", Directories, "Excluded Directories", "Directories to exclude from the file tree", "QListView" },
		{ "LogRetentionPolicy", "Kestrin|Logs", "Log Retention Policy",
			"Defines how long log files should be kept before automatic deletion", "QComboBox" },
	};
	OpenPlugin();
	// The page as it is read, from the top.
	QString Heading;
	size_t Index = 0;
	for (const QLabel* const Label : Window->findChildren<QLabel*>())
	{
		if (!Label->buddy())
		{
			Heading = Label->objectName();
			continue;
		}
		ASSERT_LT(Index, std::size(Cases)) << Label->text().toStdString();
		const FCase& Case = Cases[Index++];
		SCOPED_TRACE(Case.Name);
		EXPECT_EQ(Label->text().toStdString(), Case.Label);
		EXPECT_EQ(Heading.toStdString(), Case.Category);
		const QWidget* const Editor = Label->buddy()->focusProxy() ? Label->buddy()->focusProxy() : Label->buddy();
		EXPECT_EQ(Editor->objectName().toStdString(), Case.Name);
		EXPECT_EQ(Editor->accessibleName().toStdString(), Case.Label);
		EXPECT_EQ(Editor->accessibleDescription().toStdString(), Case.ToolTip);
		EXPECT_THAT(Label->toolTip().toStdString(), HasSubstr(Case.ToolTip));
		EXPECT_EQ(Editor->toolTip(), Label->toolTip());
		EXPECT_TRUE(Editor->inherits(Case.Widget));
		EXPECT_TRUE(Editor->focusPolicy() & Qt::TabFocus);
	}
	EXPECT_EQ(Index, std::size(Cases));
	EXPECT_THAT(Find<QComboBox>("LogRetentionPolicy").itemText(0).toStdString(), "Always Delete All Logs");
	EXPECT_EQ(Find<QComboBox>("LogRetentionPolicy").count(), 3);
	EXPECT_EQ(Find<QComboBox>("LogRetentionPolicy").itemData(1, Qt::ToolTipRole), "Maintains a rolling 30-day log history");
	EXPECT_EQ(Texts(Find<QListView>("SupportedFileExtensions")).size(), 10);
	const QTreeWidget* const Sections = Window->findChild<QTreeWidget*>();
	EXPECT_EQ(Sections->currentItem()->text(0), "Kestrin");
	EXPECT_EQ(Sections->currentItem()->parent()->text(0), "Project - Plugins");
	EXPECT_EQ(Sections->currentItem()->toolTip(0), "Configure My Plugin settings");
}

TEST_F(SettingsWindow, EditsReachTheObjectAndTheFileAsASaveDoes)
{
	OpenPlugin();
	Enter("ApiKey", "k\"e=y; ü");
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "k\"e=y; ü");
	EXPECT_THAT(Directory.Read(PluginFile), HasSubstr("ApiKey="));
	Find<QCheckBox>("bDisplayFileChangesInChat").click();
	EXPECT_FALSE(Plugin().bDisplayFileChangesInChat);
	Choose("LogRetentionPolicy", 2);
	EXPECT_EQ(Plugin().LogRetentionPolicy, EKestrinLogDeletionPolicy::KeepAll);

	const std::string OfPage = Directory.Read(PluginFile);
	EXPECT_THAT(OfPage, HasSubstr("bDisplayFileChangesInChat=False\n"));
	EXPECT_THAT(OfPage, HasSubstr("LogRetentionPolicy=KeepAll\n"));
	EXPECT_THAT(OfPage, Not(HasSubstr("bReset")));
	std::filesystem::remove(Directory.Native(PluginFile));
	Plugin().SaveConfig();
	std::istringstream Lines(OfPage);
	for (std::string Line; std::getline(Lines, Line);)
	{
		EXPECT_THAT(Directory.Read(PluginFile), HasSubstr(Line + "\n"));
	}
}

TEST_F(SettingsWindow, WhatIsWrittenToTheFileMeanwhileStaysInIt)
{
	OpenPlugin();
	Directory.Write(PluginFile, "; mine\n[/Script/Kestrin.KestrinSettings]\nApiKey=by hand\nNew=1\n");
	Choose("LogRetentionPolicy", 2);
	EXPECT_EQ(Directory.Read(PluginFile), "; mine\n[/Script/Kestrin.KestrinSettings]\nApiKey=by hand\nNew=1\nLogRetentionPolicy=KeepAll\n");
}

TEST_F(SettingsWindow, AResetBoxActsAsAButton)
{
	Plugin().ExcludedDirectories = { TEXT("Mine") };
	OpenPlugin();
	EXPECT_EQ(Texts(Find<QListView>("ExcludedDirectories")), QStringList{ "Mine" });
	Find<QCheckBox>("bResetExcludedDirectories").click();
	EXPECT_FALSE(Find<QCheckBox>("bResetExcludedDirectories").isChecked());
	EXPECT_EQ(Texts(Find<QListView>("ExcludedDirectories")).size(), 10);
	EXPECT_THAT(Directory.Read(PluginFile), HasSubstr("ExcludedDirectories=.git\n"));
}

TEST_F(SettingsWindow, ListsAreEditedInPlace)
{
	Plugin().SupportedFileExtensions = { TEXT("a"), TEXT("b"), TEXT("c") };
	OpenPlugin();
	QListView& List = Find<QListView>("SupportedFileExtensions");
	const auto Expect = [&](const QStringList& Expected)
	{
		EXPECT_EQ(Texts(List).join(' ').toStdString(), Expected.join(' ').toStdString());
		EXPECT_EQ(ToUtf8(FString::Join(Plugin().SupportedFileExtensions, TEXT(" "))), Expected.join(' ').toStdString());
	};
	const char* const Name = "SupportedFileExtensions";
	ClickOfList(Name, "Add");
	TypeOver("d");
	Press(Qt::Key_Return);
	Expect({ "a", "b", "c", "d" });
	EXPECT_FALSE(FindButton(*List.parentWidget(), "Move Down")->isEnabled());
	ClickOfList(Name, "Move Up");
	ClickOfList(Name, "Move Up");
	Expect({ "a", "d", "b", "c" });
	ClickOfList(Name, "Move Down");
	Expect({ "a", "b", "d", "c" });
	List.setFocus();
	Press(Qt::Key_Return);
	TypeOver("dd");
	Press(Qt::Key_Return);
	Expect({ "a", "b", "dd", "c" });
	EXPECT_EQ(List.currentIndex().row(), 2);
	Press(Qt::Key_F2);
	TypeOver("called off");
	Press(Qt::Key_Escape);
	Expect({ "a", "b", "dd", "c" });
	ClickOfList(Name, "Add");
	TypeOver("called off");
	Press(Qt::Key_Escape);
	Expect({ "a", "b", "dd", "c" });
	List.setCurrentIndex(List.model()->index(0, 0));
	Press(Qt::Key_Delete);
	ClickOfList(Name, "Remove");
	Expect({ "dd", "c" });
	EXPECT_THAT(Directory.Read(PluginFile), HasSubstr("SupportedFileExtensions=dd\n+SupportedFileExtensions=c\n"));
	ClickOfList(Name, "Remove");
	ClickOfList(Name, "Remove");
	Expect({});
	EXPECT_FALSE(FindButton(*List.parentWidget(), "Remove")->isEnabled());
}

TEST_F(SettingsWindow, FollowsWhatChangesElsewhereAndLeavesAnEditAlone)
{
	OpenPlugin();
	QLineEdit& Key = Find<QLineEdit>("ApiKey");
	QListView& List = Find<QListView>("ExcludedDirectories");
	Plugin().ApiKey = TEXT("from elsewhere");
	Plugin().LogRetentionPolicy = EKestrinLogDeletionPolicy::DeleteAllOnStart;
	Plugin().ExcludedDirectories = { TEXT("One"), TEXT("Two") };
	EXPECT_TRUE(Await([&Key] { return Key.text() == "from elsewhere"; }));
	EXPECT_EQ(Find<QComboBox>("LogRetentionPolicy").currentIndex(), 0);
	EXPECT_EQ(Texts(List), (QStringList{ "One", "Two" }));

	Key.setFocus();
	TypeOver("half a k");
	Plugin().ApiKey = TEXT("again");
	Plugin().ExcludedDirectories = { TEXT("Three") };
	EXPECT_TRUE(Await([&List] { return Texts(List) == QStringList{ "Three" }; }));
	EXPECT_EQ(Key.text(), "half a k");
	EXPECT_TRUE(Key.hasFocus());
	Press(Qt::Key_Escape);
	EXPECT_EQ(Key.text(), "again");

	// The value goes on changing while the untouched text has the focus; leaving it changes nothing.
	Plugin().ApiKey = TEXT("newest");
	List.setFocus();
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "newest");

	Press(Qt::Key_F2);
	TypeOver("Thr");
	Plugin().ApiKey = TEXT("during the edit of an element");
	Plugin().ExcludedDirectories = { TEXT("Zero"), TEXT("Three") };
	EXPECT_TRUE(Await([&Key] { return Key.text() == "during the edit of an element"; }));
	Press(Qt::Key_Return);
	EXPECT_EQ(Plugin().ExcludedDirectories, (TArray<FString>{ TEXT("Zero"), TEXT("Three") })) << "another element is in its place";
	EXPECT_TRUE(Await([&List] { return Texts(List) == QStringList{ "Zero", "Three" }; }));
}

TEST_F(SettingsWindow, AnEditIsTakenWhenTheFocusOrTheWindowGoes)
{
	OpenPlugin();
	QLineEdit& Key = Find<QLineEdit>("ApiKey");
	Key.setFocus();
	TypeOver("typed");
	EXPECT_NE(ToUtf8(Plugin().ApiKey), "typed");
	Press(Qt::Key_Tab);
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "typed");
	Key.setFocus();
	TypeOver("closed");
	Window->close();
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "closed");
	Open(*Window);
	Key.setFocus();
	TypeOver("away");
	{
		QWidget Other;
		Open(Other);
		EXPECT_EQ(ToUtf8(Plugin().ApiKey), "away");
	}
	Open(*Window);
	Key.setFocus();
	TypeOver("ended");
	Window.reset();
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "ended");
}

TEST_F(SettingsWindow, EveryKindOfValueIsEdited)
{
	struct FCase
	{
		const char* Name;
		QString Typed;
		/** As the property's text, with what the widget shows then. */
		const TCHAR* Value;
		const char* Shown;
	};
	const FCase Cases[] = {
		{ "Text", "some <b>text</b>", TEXT("some <b>text</b>"), "some <b>text</b>" },
		{ "Name", "SomeName", TEXT("SomeName"), "SomeName" },
		{ "Title", "A title", TEXT("A title"), "A title" },
		{ "Small", "256", TEXT("250"), "250" },
		{ "Small", "255", TEXT("255"), "255" },
		{ "Number", "-2147483648", TEXT("-2147483648"), "-2147483648" },
		{ "Number", "2147483648", TEXT("-2147483648"), "-2147483648" },
		{ "Wide", "9007199254740993", TEXT("9007199254740993"), "9007199254740993" },
		{ "Widest", "18446744073709551615", TEXT("18446744073709551615"), "18446744073709551615" },
		{ "Ratio", "0.3", TEXT("0.300000"), "0.3" },
		{ "Ratio", "1e39", TEXT("0.300000"), "0.3" },
		{ "Exact", "-1000000.25", TEXT("-1000000.250000"), "-1000000.25" },
		{ "Count", "12", TEXT("12"), "12" },
	};
	OpenSubject();
	EXPECT_EQ(Find<QAbstractSpinBox>("Ratio").text(), "0.1");
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Name) + " " + Case.Typed.toStdString());
		Enter(Case.Name, Case.Typed);
		const bool bOfPart = FString(Case.Name) == TEXT("Count");
		const UStruct* const Owner = bOfPart ? static_cast<UStruct*>(FWindowTestPart::StaticStruct()) : Subject().GetClass();
		const FProperty* const Property = Owner->FindPropertyByName(Case.Name);
		void* const Container = bOfPart ? static_cast<void*>(&Subject().Part) : &Subject();
		FString Value;
		Property->ExportTextItem_Direct(Value, Property->ContainerPtrToValuePtr<void>(Container), nullptr, nullptr, PPF_None);
		EXPECT_EQ(ToUtf8(Value), ToUtf8(Case.Value));
		const QWidget& Widget = Find<QWidget>(Case.Name);
		EXPECT_EQ(Widget.property("text").toString().toStdString(), Case.Shown);
	}
	EXPECT_EQ(Subject().Edits.Last(), FName("Part")) << "the class's own property";
	EXPECT_THAT(Directory.Read(TestFile), HasSubstr("Widest=18446744073709551615\n"));
	EXPECT_THAT(Directory.Read(TestFile), HasSubstr("Part=(Count=12"));
	EXPECT_THAT(Directory.Read(TestFile), Not(HasSubstr("Title")));

	QComboBox& Choice = Find<QComboBox>("Choice");
	EXPECT_EQ(Choice.count(), 2) << "neither the hidden one nor the end";
	EXPECT_EQ(Choice.itemText(1), "Number Two");
	EXPECT_EQ(Choice.itemData(0, Qt::ToolTipRole).toString(), "");
	Choose("Choice", 1);
	EXPECT_EQ(Subject().Choice, EWindowTestChoice::Second);
	Choose("OldChoice", 1);
	EXPECT_EQ(Subject().OldChoice, Choice_B);
	ClickOfList("ManyChoices", "Add");
	Press(Qt::Key_Escape);
	EXPECT_TRUE(Subject().ManyChoices.IsEmpty());
	ClickOfList("Numbers", "Add");
	TypeOver("x5");
	Press(Qt::Key_Return);
	EXPECT_EQ(Subject().Numbers, TArray<int32>{ 5 });
}

TEST_F(SettingsWindow, ArrowsStepToTheEndsOfTheType)
{
	Subject().Small = 254;
	Subject().Wide = INT64_MIN + 1;
	Subject().Widest = 1;
	Subject().Ratio = 0.5f;
	OpenSubject();
	for (const char* const Name : { "Small", "Wide", "Widest", "Ratio" })
	{
		Find<QAbstractSpinBox>(Name).setFocus();
		const int Key = std::string_view(Name) == "Small" ? Qt::Key_Up : Qt::Key_Down;
		Press(Key);
		Press(Key);
	}
	EXPECT_EQ(Subject().Small, 255);
	EXPECT_EQ(Subject().Wide, INT64_MIN);
	EXPECT_EQ(Subject().Widest, 0u);
	EXPECT_EQ(Subject().Ratio, -1.5f);
}

TEST_F(SettingsWindow, ShowsWhatItCannotEdit)
{
	Subject().Map = { { TEXT("a"), 1 } };
	OpenSubject();
	EXPECT_EQ(Find<QLineEdit>("Map").text(), "((\"a\", 1))");
	EXPECT_EQ(Find<QLineEdit>("Fixed").text(), "7");
	EXPECT_TRUE(Find<QLineEdit>("Map").isReadOnly() && Find<QLineEdit>("Fixed").isReadOnly());
	EXPECT_FALSE(Window->findChild<QWidget*>("OfInstances"));
	EXPECT_FALSE(Window->findChild<QWidget*>("Hidden"));
	EXPECT_FALSE(Window->findChild<QWidget*>("Inner"));
	EXPECT_TRUE(VisibleRows().contains("Salt && Pepper"));
	EXPECT_THAT(Find<QCheckBox>("bSalt").toolTip().toStdString(), HasSubstr("&lt;b&gt;"));
}

TEST_F(SettingsWindow, SearchFiltersByName)
{
	OpenPlugin();
	QLineEdit* const Search = Window->findChild<QLineEdit*>();
	ASSERT_EQ(Search->accessibleName(), "Search settings");
	Search->setText("EXCLUDED");
	EXPECT_EQ(VisibleRows(), (QStringList{ "Reset Excluded Directories", "Excluded Directories" }));
	EXPECT_TRUE(Find<QLabel>("Kestrin|Filtering|File|Directories").isVisible());
	EXPECT_TRUE(Find<QLabel>("Kestrin").isVisible());
	EXPECT_FALSE(Find<QLabel>("Kestrin|Filtering|File|Extensions").isVisible());
	EXPECT_FALSE(Find<QLabel>("Kestrin|Logs").isVisible());
	Search->setText("nothing like it");
	EXPECT_TRUE(VisibleRows().isEmpty());
	EXPECT_FALSE(Find<QLabel>("Kestrin").isVisible());
	Search->clear();
	EXPECT_EQ(VisibleRows().size(), 7);
}

TEST_F(SettingsWindow, TellsOfAFileThatCannotBeWritten)
{
	Directory.Write("Config", "a file in the place of the folder");
	OpenPlugin();
	const auto IsTold = [this]
	{
		const QList<QLabel*> Labels = Window->findChildren<QLabel*>();
		return std::any_of(Labels.begin(), Labels.end(),
			[](const QLabel* Label) { return Label->isVisible() && Label->text().contains("can't be saved"); });
	};
	EXPECT_FALSE(IsTold());
	Enter("ApiKey", "unsaved");
	EXPECT_EQ(ToUtf8(Plugin().ApiKey), "unsaved") << "holds for as long as the editor runs";
	EXPECT_TRUE(IsTold());
	std::filesystem::remove(Directory.Native("Config"));
	Enter("ApiKey", "saved");
	EXPECT_FALSE(IsTold());
}

TEST_F(SettingsWindow, SectionsComeAndGo)
{
	OpenWindow();
	const QTreeWidget* const Sections = Window->findChild<QTreeWidget*>();
	EXPECT_EQ(Sections->topLevelItemCount(), 0);
	Module().RegisterSettings("Project", "Test", "Subject", INVTEXT("Subject"), INVTEXT("Of a test"), &Subject());
	EXPECT_TRUE(Await([Sections] { return Sections->topLevelItemCount() == 1; }));
	Find<QLineEdit>("Text").setFocus();
	FModuleManager::Get().LoadModule("Kestrin");
	EXPECT_TRUE(Await([Sections] { return Sections->topLevelItemCount() == 2; }));
	EXPECT_EQ(Sections->currentItem()->text(0), "Subject") << "the chosen one stays";
	FModuleManager::Get().UnloadModule("Kestrin");
	Module().UnregisterSettings("Project", "Test", "Subject");
	EXPECT_TRUE(Await([Sections] { return Sections->topLevelItemCount() == 0; }));
	EXPECT_TRUE(VisibleRows().isEmpty());
}
}
