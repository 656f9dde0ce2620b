#pragma once

#include "CoreMinimal.h"

enum class EHeadlessCommand : uint8
{
	Done,
	Quit
};

/** Carries out one line. A line that is no command, or that lacks what it needs, gives an error event. */
EHeadlessCommand RunHeadlessCommand(const FString& Line);
