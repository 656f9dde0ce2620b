#pragma once

#include "Containers/HashedElements.h"
#include "Containers/ScriptArray.h"

/** Where things lie in a slot of a set or map whose types are known at run time alone. Sizes and places are in bytes. */
struct FScriptSetLayout
{
	/** A set's elements are keys without values: size 0 and alignment 1. */
	FScriptSetLayout(int32 KeySize, int32 KeyAlignment, int32 ValueSize, int32 ValueAlignment)
		: SlotAlignment(std::max({ KeyAlignment, ValueAlignment, static_cast<int32>(alignof(FHashedSlotHead)) }))
	{
		const int32 ElementAlignment = std::max(KeyAlignment, ValueAlignment);
		KeyOffset = AlignUp(sizeof(FHashedSlotHead), ElementAlignment);
		ValueOffset = KeyOffset + AlignUp(KeySize, ValueAlignment);
		SlotSize = AlignUp(KeyOffset + AlignUp(AlignUp(KeySize, ValueAlignment) + ValueSize, ElementAlignment), SlotAlignment);
	}

	int32 KeyOffset;
	int32 ValueOffset;
	int32 SlotSize;
	int32 SlotAlignment;

private:
	static int32 AlignUp(int32 Size, int32 Alignment) { return (Size + Alignment - 1) & ~(Alignment - 1); }
};

/** A set or map of any types, for code that knows them at run time alone. Same layout as TSet and TMap. */
class FScriptSet
{
public:
	int32 Num() const { return Slots.Num() - Positions.NumHoles(); }

	/** Some are holes. */
	FScriptArray Slots;
	FHashPositions Positions;
};
