#include "CoreHost/LogDevice.h"

#include "Containers/StringConv.h"
#include "Misc/DateTime.h"
#include "Misc/OutputDeviceRedirector.h"

#include <fcntl.h>
#include <unistd.h>

FLogDevice::FLogDevice()
	: Descriptor(STDERR_FILENO)
{
	GLog->AddOutputDevice(this);
}

FLogDevice::FLogDevice(const FString& Path)
	: Descriptor(::open(TCHAR_TO_UTF8(*Path), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666))
{
	GLog->AddOutputDevice(this);
}

FLogDevice::~FLogDevice()
{
	GLog->RemoveOutputDevice(this);
	if (IsOpen() && Descriptor != STDERR_FILENO)
	{
		::close(Descriptor);
	}
}

void FLogDevice::Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const FString Label = Verbosity == ELogVerbosity::Log ? FString() : FString::Printf(TEXT("%s: "), ToString(Verbosity));
	const FString Line = FString::Printf(
		TEXT("[%s]%s: %s%s\n"), *FDateTime::UtcNow().ToString(TEXT("%Y.%m.%d-%H.%M.%S:%s")), *Category.ToString(), *Label, Message);
	const std::string Bytes = FUtf8::Encode(Line);
	// One call for a line keeps the lines of several processes apart. There is nobody to tell when it fails.
	[[maybe_unused]] const ssize_t Written = IsOpen() ? ::write(Descriptor, Bytes.data(), Bytes.size()) : 0;
}
