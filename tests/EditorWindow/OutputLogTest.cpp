#include "OutputLog.h"

#include "Logging/LogMacros.h"
#include "OutputLogModel.h"
#include "WindowSupport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

DEFINE_LOG_CATEGORY_STATIC(LogWindowTest, Log, All);

using testing::HasSubstr;
using testing::MatchesRegex;

namespace
{
class OutputLog : public testing::Test
{
protected:
	OutputLog()
		: Widget(MakeOutputLog(nullptr))
		, View(Widget->findChild<QListView*>())
		, Filter(Widget->findChild<QLineEdit*>())
	{
		Widget->resize(600, 300);
		Open(*Widget);
	}

	int Rows() const { return View->model()->rowCount(); }
	std::string Row(int Index) const { return View->model()->index(Index, 0).data().toString().toStdString(); }
	bool AwaitRows(int Count) const
	{
		return Await([this, Count] { return Rows() == Count; });
	}
	/** The first row in view. */
	std::string TopRow() const { return View->indexAt({ 2, 2 }).data().toString().toStdString(); }

	std::unique_ptr<QWidget> Widget;
	QListView* View;
	QLineEdit* Filter;
};

TEST_F(OutputLog, LinesHaveTimeCategoryAndVerbosity)
{
	UE_LOG(LogWindowTest, Log, TEXT("plain"));
	UE_LOG(LogWindowTest, Warning, TEXT("two\r\nlines\n"));
	UE_LOG(LogWindowTest, Error, TEXT("\x1b[31mred\a\ttab\x202E"));
	std::thread([] { UE_LOG(LogWindowTest, Display, TEXT("")); }).join();
	ASSERT_TRUE(AwaitRows(5));
	EXPECT_THAT(Row(0), MatchesRegex("[0-2][0-9]:[0-5][0-9]:[0-5][0-9]\\.[0-9][0-9][0-9] LogWindowTest: plain"));
	EXPECT_THAT(Row(1), HasSubstr("LogWindowTest: Warning: two"));
	EXPECT_THAT(Row(2), testing::EndsWith(" LogWindowTest: Warning: lines"));
	EXPECT_THAT(Row(3), HasSubstr("LogWindowTest: Error: ^[[31mred^G    tab\uFFFD"));
	EXPECT_THAT(Row(4), HasSubstr("LogWindowTest: Display: "));
	const auto Color = [this](int Index) { return View->model()->index(Index, 0).data(Qt::ForegroundRole); };
	EXPECT_FALSE(Color(0).isValid());
	EXPECT_TRUE(Color(1).isValid());
	EXPECT_NE(Color(1), Color(3));
}

TEST_F(OutputLog, FilterAndVerbosities)
{
	UE_LOG(LogWindowTest, Log, TEXT("the Lantern burns"));
	UE_LOG(LogWindowTest, Warning, TEXT("a lantern is low"));
	UE_LOG(LogWindowTest, Error, TEXT("it is dark"));
	ASSERT_TRUE(AwaitRows(3));
	struct FCase
	{
		const char* Filter;
		const char* Off;
		int Rows;
	};
	for (const FCase& Case : { FCase{ "LANTERN", "", 2 }, { "lantern", "Warnings", 1 }, { "logwindowtest: error", "", 1 },
			 { "", "Errors", 2 }, { "", "Messages", 2 }, { "dark", "Errors", 0 }, { "", "", 3 } })
	{
		SCOPED_TRACE(std::string(Case.Filter) + " without " + Case.Off);
		Filter->setText(Case.Filter);
		QAbstractButton* const Button = *Case.Off ? FindButton(*Widget, Case.Off) : nullptr;
		if (Button)
		{
			Button->click();
		}
		EXPECT_EQ(Rows(), Case.Rows);
		if (Button)
		{
			Button->click();
		}
	}
	Filter->setText("low");
	UE_LOG(LogWindowTest, Log, TEXT("high"));
	UE_LOG(LogWindowTest, Log, TEXT("slow"));
	EXPECT_TRUE(AwaitRows(2)) << "lines that come later are filtered, too";
	Filter->clear();
	EXPECT_EQ(Rows(), 5);
	UE_LOG(LogWindowTest, Log, TEXT("not shown yet"));
	FindButton(*Widget, "Clear")->click();
	EXPECT_EQ(Rows(), 0);
	UE_LOG(LogWindowTest, Log, TEXT("after"));
	EXPECT_TRUE(AwaitRows(1));
	EXPECT_THAT(Row(0), HasSubstr("after"));
}

TEST_F(OutputLog, KeepsTheNewestLines)
{
	const int Most = int(FOutputLogModel::MaxLines);
	for (int Index = 0; Index < 100000; ++Index)
	{
		UE_LOG(LogWindowTest, Log, TEXT("line %d"), Index);
	}
	ASSERT_TRUE(AwaitRows(Most));
	EXPECT_THAT(Row(0), testing::EndsWith("line 80000"));
	Filter->setText("line 9999");
	EXPECT_EQ(Rows(), 10);
	for (int Index = 0; Index < Most - 1; ++Index)
	{
		UE_LOG(LogWindowTest, Log, TEXT("new"));
	}
	Filter->setText("line ");
	ASSERT_TRUE(AwaitRows(1));
	EXPECT_THAT(Row(0), testing::EndsWith("line 99999"));
	UE_LOG(LogWindowTest, Log, TEXT("%s"), *FString(std::u16string(1 << 20, 'x')));
	Filter->setText("xxx");
	ASSERT_TRUE(AwaitRows(1));
	EXPECT_LT(Row(0).size(), size_t(FOutputLogModel::MaxLength + 200));
	EXPECT_THAT(Row(0), HasSubstr("1044576 more characters"));
	Filter->clear();
	EXPECT_EQ(Rows(), Most);
}

TEST_F(OutputLog, FollowsTheEndUnlessTheUserLooksElsewhere)
{
	const auto Log = [this](int Count)
	{
		static int Number = 0;
		const int Before = Number;
		for (int Index = 0; Index < Count; ++Index)
		{
			UE_LOG(LogWindowTest, Log, TEXT("line %d"), Number++);
		}
		const std::string Last = "line " + std::to_string(Before + Count - 1);
		Await([this, &Last] { return Rows() > 0 && Row(Rows() - 1).ends_with(Last); });
		// Rows get their places in an event.
		QCoreApplication::processEvents();
	};
	Log(500);
	QScrollBar* const Bar = View->verticalScrollBar();
	EXPECT_GT(Bar->maximum(), 0);
	EXPECT_EQ(Bar->value(), Bar->maximum());
	Bar->setValue(200);
	const std::string Top = TopRow();
	Log(500);
	EXPECT_EQ(TopRow(), Top);
	Log(19100);
	EXPECT_EQ(TopRow(), Top) << "though the oldest lines have gone";
	Log(19000);
	EXPECT_EQ(Bar->value(), 0) << "the line itself has gone";
	View->scrollToBottom();
	Log(10);
	EXPECT_EQ(Bar->value(), Bar->maximum());
	Widget->resize(600, 150);
	Log(10);
	EXPECT_EQ(Bar->value(), Bar->maximum()) << "in a smaller view, too";
	Filter->setText("line 1");
	EXPECT_TRUE(Await([Bar] { return Bar->maximum() > 0 && Bar->value() == Bar->maximum(); }));
}

TEST_F(OutputLog, SelectedLinesAreCopiedInOrder)
{
	for (int Index = 0; Index < 4; ++Index)
	{
		UE_LOG(LogWindowTest, Log, TEXT("line %d"), Index);
	}
	ASSERT_TRUE(AwaitRows(4));
	for (const int Index : { 3, 1 })
	{
		View->selectionModel()->select(View->model()->index(Index, 0), QItemSelectionModel::Select);
	}
	View->actions().front()->trigger();
	EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), Row(1) + "\n" + Row(3));
}

TEST_F(OutputLog, IsGoneFromTheLogWhenItIsDestroyed)
{
	UE_LOG(LogWindowTest, Log, TEXT("waits when it goes"));
	Widget.reset();
	UE_LOG(LogWindowTest, Log, TEXT("nobody hears"));
	std::thread([] { UE_LOG(LogWindowTest, Log, TEXT("nor from afar")); }).join();
	FMainLoop::RunFor(0.2);
	EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}
}
