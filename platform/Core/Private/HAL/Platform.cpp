#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"

#include "HAL/NativePath.h"

#include <cstdlib>
#include <filesystem>

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const ANSICHAR* const Value = std::getenv(TCHAR_TO_UTF8(VariableName));
	return Value ? FUtf8::Decode(Value) : FString();
}

const TCHAR* FPlatformProcess::BaseDir()
{
	// Taken once: a later change of the working directory moves nothing.
	static const FString Directory = []
	{
		std::error_code Error;
		return WithEndingSlash(FUtf8::Decode(std::filesystem::current_path(Error).string()));
	}();
	return *Directory;
}
