#pragma once

#include "CoreTypes.h"

/** Who has added an entry, told by an address. */
struct FToolMenuOwner
{
	FToolMenuOwner() = default;
	FToolMenuOwner(const void* InPointer)
		: Pointer(InPointer)
	{
	}
	bool operator==(const FToolMenuOwner&) const = default;
	bool IsSet() const { return Pointer != nullptr; }

private:
	const void* Pointer = nullptr;
};
