#pragma once

#include "Containers/UnrealString.h"

struct CORE_API FApp
{
	/** The branch that the engine was built from, as "++UE5+Release-5.5". */
	static FString GetBranchName();
	/** The project file's name without extension; empty while no project is open. */
	static const TCHAR* GetProjectName();
	static bool HasProjectName() { return *GetProjectName() != 0; }
};
