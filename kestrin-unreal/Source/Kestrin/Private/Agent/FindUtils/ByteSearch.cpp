#include "Agent/FindUtils/ByteSearch.h"

namespace
{
/** Places that are looked at in one go, whatever is found in the first of them; a number that the loops know. */
constexpr int64 BlockSize = 64;

constexpr uint8 CaseBit = 'a' - 'A';

/** How common a byte is in sources, letters in lower case; 0 for those that are not among the common ones. */
int32 GetCommonness(uint8 Byte)
{
	static constexpr ANSICHAR RarestFirst[] = "qz&#@j+|%![]{}'<>\"\\98765=432kxw-v:y*1/0\r;(),bgh._fm\nupdclsoian\trte ";
	int32 Place = 0;
	while (RarestFirst[Place] && static_cast<uint8>(RarestFirst[Place]) != Byte)
	{
		++Place;
	}
	return RarestFirst[Place] ? Place + 1 : 0;
}
}

FByteSearch::FByteSearch(const TArray<uint8>& InPattern, bool bIgnoreCase)
{
	for (const uint8 Byte : InPattern)
	{
		const bool bMasked = bIgnoreCase && Byte < 0x80 && FChar::IsAlpha(Byte);
		Pattern.Add({ static_cast<uint8>(bMasked ? Byte | CaseBit : Byte), static_cast<uint8>(bMasked ? CaseBit : 0) });
	}
	const auto FindRarest = [this](int32 Except)
	{
		int32 Rarest = Except == 0 && Pattern.Num() > 1 ? 1 : 0;
		for (int32 Place = 0; Place < Pattern.Num(); ++Place)
		{
			if (Place != Except && GetCommonness(Pattern[Place].Value) < GetCommonness(Pattern[Rarest].Value))
			{
				Rarest = Place;
			}
		}
		return Rarest;
	};
	First = FindRarest(INDEX_NONE);
	Second = FindRarest(First);
}

bool FByteSearch::IsAt(const uint8* Data) const
{
	for (const FByte& Byte : Pattern)
	{
		if ((*Data++ | Byte.Mask) != Byte.Value)
		{
			return false;
		}
	}
	return true;
}

bool FByteSearch::IsAtOneOf(const uint8* Data, int64 Places) const
{
	for (int64 Place = 0; Place < Places; ++Place)
	{
		if (IsAt(Data + Place))
		{
			return true;
		}
	}
	return false;
}

bool FByteSearch::IsIn(const uint8* Data, int64 Count) const
{
	const FByte ByteA = Pattern[First];
	const FByte ByteB = Pattern[Second];
	int64 Places = Count - Pattern.Num() + 1;
	for (; Places >= BlockSize; Places -= BlockSize, Data += BlockSize)
	{
		const uint8* const A = Data + First;
		const uint8* const B = Data + Second;
		uint8 Candidates = 0;
		for (int32 Index = 0; Index < BlockSize; ++Index)
		{
			const uint8 FitsFirst = (A[Index] | ByteA.Mask) == ByteA.Value;
			const uint8 FitsSecond = (B[Index] | ByteB.Mask) == ByteB.Value;
			Candidates |= FitsFirst & FitsSecond;
		}
		if (Candidates != 0 && IsAtOneOf(Data, BlockSize))
		{
			return true;
		}
	}
	return IsAtOneOf(Data, Places);
}

bool FByteSearch::HasNonAscii(const uint8* Data, int64 Count)
{
	uint8 Bits = 0;
	for (; Count >= BlockSize; Count -= BlockSize, Data += BlockSize)
	{
		for (int32 Index = 0; Index < BlockSize; ++Index)
		{
			Bits |= Data[Index];
		}
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Bits |= Data[Index];
	}
	return Bits >= 0x80;
}
