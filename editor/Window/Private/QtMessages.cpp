#include "QtMessages.h"

#include "SlateQtHost/Qt.h"

#include <cstdlib>

DEFINE_LOG_CATEGORY_STATIC(LogQt, Log, All);

namespace
{
bool bStarting = false;
/** Why the platform can't be used: the first that was said of it. What is fatal in the end no longer names the cause. */
QString PlatformFault;

[[noreturn]] void EndStart(const QString& Message)
{
	const QString& Cause = PlatformFault.isEmpty() ? Message : PlatformFault;
	std::fprintf(stderr, "kestrin-editor: no window can be opened: %s\n", qUtf8Printable(Cause));
	std::_Exit(2);
}

void TakeMessage(QtMsgType Type, const QMessageLogContext& Context, const QString& Message)
{
	const FString Text = ToFString(Message.trimmed());
	switch (Type)
	{
	case QtDebugMsg: UE_LOG(LogQt, Verbose, TEXT("%s"), *Text); break;
	case QtInfoMsg: UE_LOG(LogQt, Log, TEXT("%s"), *Text); break;
	case QtWarningMsg: UE_LOG(LogQt, Warning, TEXT("%s"), *Text); break;
	case QtCriticalMsg:
	case QtFatalMsg: UE_LOG(LogQt, Error, TEXT("%s"), *Text); break;
	}
	if (!bStarting)
	{
		return;
	}
	if (Type == QtFatalMsg)
	{
		EndStart(Message.trimmed());
	}
	if (PlatformFault.isEmpty() && QByteArray(Context.category).startsWith("qt.qpa."))
	{
		PlatformFault = Message.trimmed();
	}
}
}

FQtMessages::FQtMessages()
{
	bStarting = true;
	qInstallMessageHandler(&TakeMessage);
}

FQtMessages::~FQtMessages()
{
	qInstallMessageHandler(nullptr);
}

void FQtMessages::NoteStarted()
{
	bStarting = false;
}
