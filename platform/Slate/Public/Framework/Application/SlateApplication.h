#pragma once

// Slate: widgets (borders, boxes, scroll boxes, texts, buttons, pickers), tabs, and commands with their bindings, on the tree of SlateCore.
//
// It leaves out what shows them (a renderer brings that), windows, docking, and all widgets that nothing here uses.

#include "Rendering/SlateRenderer.h"
#include "Templates/SharedPointer.h"

/** The application as its user sees it. There is one only where somebody shows widgets. Game thread. */
class SLATE_API FSlateApplication
{
public:
	/** Makes the one application, which draws with this. */
	static void Create(const TSharedRef<FSlateRenderer>& InRenderer);
	static void Shutdown();
	static bool IsInitialized();
	/** There must be one. */
	static FSlateApplication& Get();

	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

private:
	TSharedPtr<FSlateRenderer> Renderer;
};
