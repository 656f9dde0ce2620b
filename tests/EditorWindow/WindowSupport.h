#pragma once

// A Qt application without a display for the whole test program, and a user's hands.

#include "CoreHost/MainLoop.h"
#include "SlateQtHost/Qt.h"
#include "TestSupport.h"

/** Runs the main loop until Done, for some seconds at most. @return what Done says in the end */
inline bool Await(const TFunction<bool()>& Done)
{
	return Done() || FMainLoop::RunUntil(Done, 20.0);
}

/** Shows the window as the active one. */
inline void Open(QWidget& Window)
{
	Window.show();
	Window.activateWindow();
	Await([&Window] { return Window.isActiveWindow(); });
}

/** Presses a key in what has the focus. */
inline void Press(int Key, const QString& Text = QString())
{
	for (const QEvent::Type Type : { QEvent::KeyPress, QEvent::KeyRelease })
	{
		if (QWidget* const Focused = QApplication::focusWidget())
		{
			QKeyEvent Event(Type, Key, Qt::NoModifier, Text);
			QCoreApplication::sendEvent(Focused, &Event);
		}
	}
	// Some keys act only once their event is over.
	QCoreApplication::processEvents();
}

/** Types a text over all that is in what has the focus. */
inline void TypeOver(const QString& Text)
{
	QLineEdit* const Edit = QApplication::focusWidget()->findChild<QLineEdit*>();
	(Edit ? Edit : qobject_cast<QLineEdit*>(QApplication::focusWidget()))->selectAll();
	for (const QChar Each : Text)
	{
		Press(0, Each);
	}
}

inline QAbstractButton* FindButton(const QWidget& Parent, const char* Text)
{
	for (QAbstractButton* const Button : Parent.findChildren<QAbstractButton*>())
	{
		if (Button->text() == QLatin1String(Text))
		{
			return Button;
		}
	}
	return nullptr;
}

inline std::string ToUtf8(const FString& Text)
{
	return FUtf8::Encode(Text);
}
