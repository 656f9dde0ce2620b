#pragma once

// InputCore: the names of keys.
//
// It leaves out mouse buttons, axes, gamepads and what a key shows on a given keyboard.

#include "CoreMinimal.h"

/** A key by its name. */
struct INPUTCORE_API FKey
{
	FKey() = default;
	FKey(const FName& InName)
		: KeyName(InName)
	{
	}
	FKey(const ANSICHAR* InName)
		: KeyName(InName)
	{
	}

	/** Whether there is a key of that name. */
	bool IsValid() const;
	FString ToString() const { return KeyName.ToString(); }
	FName GetFName() const { return KeyName; }
	bool operator==(const FKey& Other) const { return KeyName == Other.KeyName; }

private:
	FName KeyName;
};

/** The keys that have a meaning here; letters and digits are named by themselves, "A" to "Z" and "Zero" to "Nine". */
struct INPUTCORE_API EKeys
{
	static const FKey BackSpace;
	static const FKey Tab;
	static const FKey Enter;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey PageUp;
	static const FKey PageDown;
	static const FKey End;
	static const FKey Home;
	static const FKey Left;
	static const FKey Up;
	static const FKey Right;
	static const FKey Down;
	static const FKey Delete;
	static const FKey LeftShift;
	static const FKey RightShift;
};
