#pragma once

#include "TerminalStyle.h"

enum class ETerminalCommand : uint8
{
	Done,
	Quit
};

/** Whether the agent waits for the user. */
bool WaitsForUser();
/** Whether a line is a command that makes sense only while the agent works. */
bool IsForRunningRequest(const FString& Line);
/** Carries out a line: a prompt or a "/" command. */
ETerminalCommand RunTerminalLine(const FString& Line, const FTerminalStyle& Style);
