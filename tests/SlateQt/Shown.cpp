#include "Shown.h"

#include "CoreHost/MainLoop.h"

#pragma push_macro("verify")
#undef verify
#include <QtTest/QtTest>
#pragma pop_macro("verify")

#include <gtest/gtest.h>

namespace
{
class FOffscreen final : public testing::Environment
{
public:
	void SetUp() override { qputenv("QT_QPA_PLATFORM", "offscreen"); }
};

[[maybe_unused]] testing::Environment* const Offscreen = testing::AddGlobalTestEnvironment(new FOffscreen);
}

FShown::FShown(const TSharedRef<SWidget>& Root, QSize Size)
	: View(MakeSlateView(Root, nullptr))
{
	View->resize(Size);
	View->show();
	View->activateWindow();
	View->setFocus();
	Refresh();
}

FShown::~FShown()
{
	delete View;
}

void FShown::Refresh()
{
	FMainLoop::Tick();
	FMainLoop::Tick();
}

std::vector<std::string> FShown::GetLabels() const
{
	std::vector<std::string> Texts;
	for (const QLabel* const Label : FindAll<QLabel>())
	{
		Texts.push_back(Label->text().toStdString());
	}
	return Texts;
}

void FShown::Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers)
{
	QTest::keyClick(QApplication::focusWidget(), Key, Modifiers);
	Refresh();
}

void FShown::Type(const QString& Text)
{
	QTest::keyClicks(QApplication::focusWidget(), Text);
	Refresh();
}

void FShown::Click(QWidget& Widget)
{
	const auto* const Area = qobject_cast<QAbstractScrollArea*>(&Widget);
	QWidget& Target = Area ? *Area->viewport() : Widget;
	QTest::mouseClick(&Target, Qt::LeftButton, Qt::NoModifier, Target.rect().center());
	Refresh();
}

void FShown::TurnWheel(QWidget& Widget, int Notches)
{
	const QPointF At = QRectF(Widget.rect()).center();
	QWheelEvent Event(
		At, Widget.mapToGlobal(At), QPoint(), QPoint(0, Notches * 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
	QApplication::sendEvent(&Widget, &Event);
	Refresh();
}
