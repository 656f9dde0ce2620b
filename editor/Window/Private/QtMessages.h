#pragma once

#include "CoreMinimal.h"

/**
 * Takes Qt's own messages into the log, as long as it lives. What Qt can't start for (a display that can't be reached) would abort the
 * process; until the application has started, the program says so on standard error instead and ends with exit code 2.
 */
class FQtMessages
{
public:
	FQtMessages();
	~FQtMessages();
	UE_NONCOPYABLE(FQtMessages)

	/** The application is there: from now on, what is fatal to Qt is a crash. */
	void NoteStarted();
};
