#pragma once

#include "CoreMinimal.h"

// What compiles of both kinds have in common.

/** Saves every package that has changed; one that can't be saved is passed over. */
void SaveDirtyPackages();
/** The editor is to look at the Blueprint classes again; the Asset Registry looks at the content now. */
void RescanAfterCompilation();
/** The lines with errors and warnings of the engine's build log; empty when there is no such log. */
FString ReadBuildLog();
