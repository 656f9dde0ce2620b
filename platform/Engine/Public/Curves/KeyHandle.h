#pragma once

#include "CoreMinimal.h"

/** Refers to a key of a curve, wherever the key moves to. */
struct ENGINE_API FKeyHandle
{
	/** A handle that no key has yet. */
	FKeyHandle();
	/** One that never has a key. */
	static FKeyHandle Invalid() { return FKeyHandle(0); }

	bool operator==(const FKeyHandle&) const = default;
	friend uint32 GetTypeHash(const FKeyHandle& Handle) { return Handle.Index; }

private:
	explicit FKeyHandle(uint32 InIndex)
		: Index(InIndex)
	{
	}

	uint32 Index;
};
