#pragma once

// The faces of the stand-alone editor: what a person or a script sees of the plug-in. They use the plug-in's exported classes alone.

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

enum class EEditorFace : uint8
{
	/** Headless commands and events, one JSON object a line. */
	Headless,
	/** Runs tools and prints their results. */
	Call,
	/** A conversation for a person. */
	Terminal,
	/** The main window; when a picture is wanted, with the headless commands and events beside it. */
	Window
};

/** One tool to run: its name and its input, a JSON object as text. */
struct FToolCall
{
	FString Tool;
	FString Input;
};

struct FFaceOptions
{
	EEditorFace Face = EEditorFace::Headless;
	/** For Call. */
	TArray<FToolCall> Calls;
	/** For Window and Headless: where a picture of the window, or of the chat panel, is written in the end; empty for none. Absolute. */
	FString Screenshot;
	/** For the "ready" event. */
	FString Project;
	FString Version;
	FString PluginFolder;
};

class IEditorFaces : public IModuleInterface
{
public:
	/** Runs the main loop until the face has ended. @return the program's exit code */
	virtual int32 Run(const FFaceOptions& Options) = 0;
};
