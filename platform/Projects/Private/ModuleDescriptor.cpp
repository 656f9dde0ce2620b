#include "ModuleDescriptor.h"

const TCHAR* LexToString(EHostType::Type Type)
{
	static constexpr const TCHAR* Names[] = { TEXT("Runtime"), TEXT("RuntimeNoCommandlet"), TEXT("RuntimeAndProgram"), TEXT("CookedOnly"),
		TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"), TEXT("Editor"), TEXT("EditorNoCommandlet"),
		TEXT("EditorAndProgram"), TEXT("Program"), TEXT("ServerOnly"), TEXT("ClientOnly"), TEXT("ClientOnlyNoCommandlet") };
	static_assert(UE_ARRAY_COUNT(Names) == EHostType::Max);
	return Names[Type];
}

const TCHAR* LexToString(ELoadingPhase::Type Phase)
{
	static constexpr const TCHAR* Names[] = { TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"),
		TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault"),
		TEXT("PostEngineInit"), TEXT("None") };
	static_assert(UE_ARRAY_COUNT(Names) == ELoadingPhase::Max);
	return Names[Phase];
}
