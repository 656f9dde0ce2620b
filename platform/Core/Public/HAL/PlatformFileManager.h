#pragma once

#include "GenericPlatform/GenericPlatformFile.h"

class CORE_API FPlatformFileManager
{
public:
	static FPlatformFileManager& Get();
	IPlatformFile& GetPlatformFile() { return PlatformFile; }

private:
	IPlatformFile PlatformFile;
};
