#pragma once

#include "Misc/OutputDevice.h"

/** Where operations that take an output device report by default: passes each line on to the global log. Any thread. */
class CORE_API FFeedbackContext final : public FOutputDevice
{
public:
	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override;
	bool CanBeUsedOnMultipleThreads() const override { return true; }
};

extern CORE_API FFeedbackContext* const GWarn;
