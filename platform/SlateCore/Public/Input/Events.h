#pragma once

#include "InputCoreTypes.h"

/** The keys that were down beside the one in hand. */
class FModifierKeysState
{
public:
	FModifierKeysState() = default;
	FModifierKeysState(bool bInIsLeftShiftDown, bool bInIsRightShiftDown)
		: bIsLeftShiftDown(bInIsLeftShiftDown)
		, bIsRightShiftDown(bInIsRightShiftDown)
	{
	}

	bool IsShiftDown() const { return bIsLeftShiftDown || bIsRightShiftDown; }
	bool IsLeftShiftDown() const { return bIsLeftShiftDown; }
	bool IsRightShiftDown() const { return bIsRightShiftDown; }

private:
	bool bIsLeftShiftDown = false;
	bool bIsRightShiftDown = false;
};

struct FInputEvent
{
	explicit FInputEvent(const FModifierKeysState& InModifierKeys)
		: ModifierKeys(InModifierKeys)
	{
	}

	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsLeftShiftDown() const { return ModifierKeys.IsLeftShiftDown(); }
	bool IsRightShiftDown() const { return ModifierKeys.IsRightShiftDown(); }

private:
	FModifierKeysState ModifierKeys;
};

/** A key that went down or up. */
struct FKeyEvent : FInputEvent
{
	/**
	 * @param bInIsRepeat made by a key that is held down
	 * @param InCharacterCode what the key writes, or 0
	 * @param InKeyCode the platform's number of the key
	 */
	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat,
		const uint32 InCharacterCode, const uint32 InKeyCode)
		: FInputEvent(InModifierKeys)
		, Key(InKey)
	{
	}

	FKey GetKey() const { return Key; }

private:
	FKey Key;
};
