#pragma once

#include "InputCoreTypes.h"

namespace EModifierKey
{
using Type = uint8;

constexpr Type None = 0;
constexpr Type Control = 1 << 0;
constexpr Type Alt = 1 << 1;
constexpr Type Shift = 1 << 2;
}

/** A key with those that are held beside it; none by default. */
struct FInputChord
{
	FKey Key;
	bool bShift = false;
	bool bCtrl = false;
	bool bAlt = false;

	FInputChord() = default;
	FInputChord(const EModifierKey::Type InModifierKeys, const FKey InKey)
		: Key(InKey)
		, bShift((InModifierKeys & EModifierKey::Shift) != 0)
		, bCtrl((InModifierKeys & EModifierKey::Control) != 0)
		, bAlt((InModifierKeys & EModifierKey::Alt) != 0)
	{
	}

	bool IsValidChord() const { return Key.IsValid(); }
};
