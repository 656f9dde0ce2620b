#pragma once

// The window of the stand-alone editor. The module "EditorWindow" brings Qt with it, so it is loaded by name where somebody wants to see
// something. It knows tabs, menus, settings and transactions, whoever they come from.

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class SWidget;

/** Game thread; the caller runs the main loop. */
class IEditorWindow : public IModuleInterface
{
public:
	/**
	 * Opens the main window on the project that is open. When its user closes it, the engine is asked to exit.
	 * @return false, with a message, when there is no display
	 */
	virtual bool Open(FText& OutError) = 0;
	/** Keeps where the window and its tabs stand for the next run, and closes it. It goes before the modules that it shows something of. */
	virtual void Close() = 0;

	/** Writes a picture of the open window, as PNG. @return false, with a message, when the file can't be written */
	[[nodiscard]] virtual bool SaveWindowPicture(const FString& File, FText& OutError) = 0;
	/** The same of a tree of widgets, 1000 by 800 pixels, where no window is open; it needs no display. */
	[[nodiscard]] virtual bool SavePicture(const TSharedRef<SWidget>& Root, const FString& File, FText& OutError) = 0;
};
