#include "Misc/OutputDeviceError.h"

#include "Misc/OutputDeviceRedirector.h"

void FOutputDeviceError::Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FOutputDeviceRedirector::Get()->Serialize(Message, Verbosity, Category);
}

FOutputDeviceError* const GError = new FOutputDeviceError;
