#pragma once

#include "Misc/OutputDevice.h"

/**
 * Writes the log as lines "[2026.01.31-12.00.00:123]LogTemp: Warning: text" in UTF-8, with the UTC time; a line of verbosity Log
 * has no verbosity in it. It adds itself to the global log and leaves it in the end. Lines are in the file when Serialize returns.
 */
class CORE_API FLogDevice final : public FOutputDevice
{
public:
	/** To stderr. */
	FLogDevice();
	/** To a new file, whose old content goes. */
	explicit FLogDevice(const FString& Path);
	~FLogDevice() override;

	/** False when the file could not be made; its lines are lost then. */
	bool IsOpen() const { return Descriptor >= 0; }

	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override;
	bool CanBeUsedOnMultipleThreads() const override { return true; }

private:
	int Descriptor;
};
