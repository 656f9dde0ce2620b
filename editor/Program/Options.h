#pragma once

#include "EditorFaces.h"

struct FProgramOptions
{
	/** Absolute. */
	FString Project;
	FFaceOptions Face;
	bool bFaceChosen = false;
	double ClockRate = 1.0;
	/** Where the log goes; stderr when empty. */
	FString LogFile;
	/** Another copy of the plug-in; empty for the project's or the editor's own. */
	FString PluginFolder;
	bool bShowHelp = false;
	bool bShowVersion = false;
};

/** False, with a message, when the words are off. */
bool ParseOptions(const TArray<FString>& Words, FProgramOptions& OutOptions, FString& OutError);

FString GetUsage();
