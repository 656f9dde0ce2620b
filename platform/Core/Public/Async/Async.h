#pragma once

#include "Async/TaskGraphInterfaces.h"

/** Runs a function as a task of the thread. Any thread. */
CORE_API void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function);
