#include "Misc/FeedbackContext.h"

#include "Misc/OutputDeviceRedirector.h"

namespace
{
FFeedbackContext Context;
}

FFeedbackContext* const GWarn = &Context;

void FFeedbackContext::Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	GLog->Serialize(Message, Verbosity, Category);
}
