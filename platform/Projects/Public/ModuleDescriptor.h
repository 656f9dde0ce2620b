#pragma once

#include "CoreMinimal.h"

namespace EHostType
{
/** Which programs load a module. */
enum Type
{
	Runtime,
	RuntimeNoCommandlet,
	RuntimeAndProgram,
	CookedOnly,
	UncookedOnly,
	Developer,
	DeveloperTool,
	Editor,
	EditorNoCommandlet,
	EditorAndProgram,
	Program,
	ServerOnly,
	ClientOnly,
	ClientOnlyNoCommandlet,
	Max
};
}

PROJECTS_API const TCHAR* LexToString(EHostType::Type Type);

namespace ELoadingPhase
{
/** When during the start of a program a module is loaded; in this order. */
enum Type
{
	EarliestPossible,
	PostConfigInit,
	PostSplashScreen,
	PreEarlyLoadingScreen,
	PreLoadingScreen,
	PreDefault,
	Default,
	PostDefault,
	PostEngineInit,
	None,
	Max
};
}

PROJECTS_API const TCHAR* LexToString(ELoadingPhase::Type Phase);

/** A module of a project or plug-in, as its descriptor file names it. */
struct FModuleDescriptor
{
	FName Name;
	EHostType::Type Type = EHostType::Runtime;
	ELoadingPhase::Type LoadingPhase = ELoadingPhase::Default;
};
