#pragma once

#include "InputCoreTypes.h"

/** A key with those that are held beside it; none by default. */
struct FInputChord
{
	FKey Key;

	bool IsValidChord() const { return Key.IsValid(); }
};
