#include "AssetRegistry/IAssetRegistry.h"
#include "Editor/EditorEngine.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

namespace
{
struct FEditorCommand
{
	const TCHAR* Name;
	void (*Run)();
};

/** What Content holds is read anew from all of its files. */
void RescanAllBlueprintClasses()
{
	if (IAssetRegistry* const Registry = IAssetRegistry::Get())
	{
		Registry->ScanPathsSynchronous({ FPaths::ProjectContentDir() }, true);
	}
}

/** New modules are in place: the objects and layouts that theirs have replaced go. */
void ModuleCompilationFinished()
{
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

constexpr FEditorCommand Commands[] = {
	{ TEXT("RescanAllBlueprintClasses"), &RescanAllBlueprintClasses },
	{ TEXT("HotReload.ModuleCompilationFinished"), &ModuleCompilationFinished },
};
}

bool UEditorEngine::Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar)
{
	for (const FEditorCommand& Command : Commands)
	{
		if (FString(Cmd) == Command.Name)
		{
			Command.Run();
			return true;
		}
	}
	return UEngine::Exec(InWorld, Cmd, Ar);
}
