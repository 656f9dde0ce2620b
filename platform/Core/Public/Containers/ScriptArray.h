#pragma once

#include "CoreTypes.h"

/**
 * An array of elements of any type, for code that knows the type at run time alone. Same layout as TArray.
 * It moves elements as raw bytes only while it holds none that a C++ type must move: callers construct and destroy them.
 */
class CORE_API FScriptArray
{
public:
	int32 Num() const { return ArrayNum; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }
	void* GetData() { return Data; }
	const void* GetData() const { return Data; }
	/** Replaces storage by a new block for Count elements and gives up the old block, which the caller has emptied. */
	void Reallocate(int32 Count, int32 ElementSize, int32 Alignment);
	/** Says how many elements of the block are constructed. */
	void SetNumUnsafe(int32 Count) { ArrayNum = Count; }
	int32 Max() const { return ArrayMax; }

private:
	void* Data = nullptr;
	int32 ArrayNum = 0;
	int32 ArrayMax = 0;
};
