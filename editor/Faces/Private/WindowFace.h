#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

/**
 * Opens the main window and runs a loop that ends when the engine is to exit; then writes a picture of the window where one is wanted.
 * @param Screenshot the picture's file; empty for none
 * @return the program's exit code
 */
int32 RunInWindow(TFunctionRef<int32()> Loop, const FString& Screenshot);

/** Runs the main loop until the engine is to exit, or the program is interrupted. */
int32 RunUntilExit();

/** Writes a picture of the open chat panel, without a window; an error event when there is none. @return the program's exit code */
int32 SavePanelPicture(const FString& File);
