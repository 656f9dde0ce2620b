#include "TestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{
/** "key=value" pairs in the map's order. */
template <typename MapType>
std::u16string Listed(const MapType& Map)
{
	std::u16string Result;
	for (const auto& Pair : Map)
	{
		Result += Pair.Key.Native() + u"=" + LexToString(Pair.Value).Native() + u" ";
	}
	return Result;
}

/** The plainest map of that behaviour: slots in a row, a list of holes of which the latest is filled first. */
class FPlainMap
{
public:
	void Add(const FString& Key, int32 Value)
	{
		if (FSlot* const Found = Find(Key))
		{
			*Found = { Key, Value, true };
		}
		else if (!Holes.empty())
		{
			Slots[Holes.back()] = { Key, Value, true };
			Holes.pop_back();
		}
		else
		{
			Slots.push_back({ Key, Value, true });
		}
	}
	int32 Remove(const FString& Key)
	{
		FSlot* const Found = Find(Key);
		if (Found)
		{
			Found->bLive = false;
			Holes.push_back(static_cast<SIZE_T>(Found - Slots.data()));
		}
		return Found != nullptr;
	}
	const int32* ValueOf(const FString& Key)
	{
		const FSlot* const Found = Find(Key);
		return Found ? &Found->Value : nullptr;
	}
	std::u16string Listed() const
	{
		std::u16string Result;
		for (const FSlot& Slot : Slots)
		{
			Result += Slot.bLive ? Slot.Key.Native() + u"=" + LexToString(Slot.Value).Native() + u" " : u"";
		}
		return Result;
	}

private:
	struct FSlot
	{
		FString Key;
		int32 Value;
		bool bLive;
	};
	FSlot* Find(const FString& Key)
	{
		for (FSlot& Slot : Slots)
		{
			if (Slot.bLive && Slot.Key == Key)
			{
				return &Slot;
			}
		}
		return nullptr;
	}
	std::vector<FSlot> Slots;
	std::vector<SIZE_T> Holes;
};

TEST(Map, KeepsItsOrderAndReplacesInPlace)
{
	TMap<FString, int32> Map = { { TEXT("b"), 1 }, { TEXT("a"), 2 }, { TEXT("c"), 3 } };
	Map.Add(TEXT("A"), 4);
	EXPECT_EQ(Listed(Map), u"b=1 A=4 c=3 ");
	EXPECT_EQ(Map.FindRef(TEXT("a")), 4);

	Map.FindOrAdd(TEXT("B")) = 5;
	EXPECT_EQ(Listed(Map), u"b=5 A=4 c=3 ") << "FindOrAdd keeps the spelling that is there";
	EXPECT_EQ(Map.FindOrAdd(TEXT("d")), 0);
	EXPECT_EQ(Map.Add(TEXT("e")), 0);

	TArray<FString> Keys;
	EXPECT_EQ(Map.GetKeys(Keys), 5);
	EXPECT_EQ(FString::Join(Keys, TEXT(" ")).Native(), u"b A c d e");
	TArray<int32> Values = { 9 };
	Map.GenerateValueArray(Values);
	EXPECT_EQ(Values, (TArray<int32>{ 5, 4, 3, 0, 0 }));
	Map.Append({ { TEXT("C"), 7 }, { TEXT("f"), 8 } });
	EXPECT_EQ(Listed(Map), u"b=5 A=4 C=7 d=0 e=0 f=8 ");
}

TEST(Map, ARemovalLeavesAHoleForTheNextNewKey)
{
	TMap<FString, int32> Map = { { TEXT("a"), 1 }, { TEXT("b"), 2 }, { TEXT("c"), 3 } };
	EXPECT_EQ(Map.Remove(TEXT("B")), 1);
	EXPECT_EQ(Map.Remove(TEXT("b")), 0);
	EXPECT_EQ(Map.Num(), 2);
	EXPECT_EQ(Listed(Map), u"a=1 c=3 ");
	Map.Add(TEXT("c"), 4);
	EXPECT_EQ(Listed(Map), u"a=1 c=4 ") << "a replacement takes no hole";
	Map.Add(TEXT("d"), 5);
	EXPECT_EQ(Listed(Map), u"a=1 d=5 c=4 ");
	Map.Remove(TEXT("a"));
	Map.Remove(TEXT("c"));
	Map.Add(TEXT("x"), 6);
	EXPECT_EQ(Listed(Map), u"d=5 x=6 ");
}

TEST(Map, FindsTextsGivenAsLiterals)
{
	TMap<FString, int32> Texts = { { TEXT("key"), 1 } };
	EXPECT_TRUE(Texts.Contains(TEXT("KEY")));
	EXPECT_NE(Texts.Find(TEXT("key")), nullptr);
	EXPECT_EQ(Texts[TEXT("key")], 1);
	TMap<FName, int32> Names = { { TEXT("Key_1"), 1 } };
	EXPECT_TRUE(Names.Contains(TEXT("KEY_1")));
	EXPECT_FALSE(Names.Contains(TEXT("Key")));
	EXPECT_EQ(Names.Remove(TEXT("key_1")), 1);
	TSet<FName> Set = { TEXT("Key") };
	EXPECT_TRUE(Set.Contains(TEXT("key")));
	TMap<int64, int32> Wide = { { -1, 1 } };
	EXPECT_TRUE(Wide.Contains(-1));
}

TEST(Map, RandomOperationsAgreeWithThePlainMap)
{
	std::mt19937 Random(4);
	// Few keys: searched in a row; many: through the table, with holes, growth and rebuilding.
	for (const uint32 Keys : { 6u, 12u, 40u, 700u })
	{
		TMap<FString, int32> Map;
		FPlainMap Plain;
		for (int32 Step = 0; Step < 6000; ++Step)
		{
			FString Key = FString::Printf(TEXT("%s%u"), Random() % 2 ? TEXT("Key") : TEXT("kEY"), Random() % Keys);
			// Now more additions, now more removals.
			if (Random() % 10 < (Step / 1000 % 2 ? 7u : 3u))
			{
				ASSERT_EQ(Map.Remove(Key), Plain.Remove(Key));
			}
			else
			{
				Plain.Add(Key, Step);
				ASSERT_EQ(Map.Add(Key, Step), Step);
			}
			const int32* const Found = Map.Find(Key.ToUpper());
			const int32* const Wanted = Plain.ValueOf(Key);
			ASSERT_EQ(Found != nullptr, Wanted != nullptr);
			ASSERT_TRUE(!Found || *Found == *Wanted);
			if (Step % 50 == 0)
			{
				ASSERT_EQ(Listed(Map), Plain.Listed()) << Keys << " keys, step " << Step;
				TMap<FString, int32> Copy = Map;
				ASSERT_EQ(Listed(Copy), Plain.Listed());
				Map = MoveTemp(Copy);
				ASSERT_TRUE(Copy.IsEmpty());
			}
		}
	}
}

TEST(Map, IsUsableAfterItWasMovedOrEmptied)
{
	TMap<FString, int32> Map;
	const auto Fill = [&Map](const TCHAR* Prefix)
	{
		for (int32 Index = 0; Index < 30; ++Index)
		{
			Map.Add(FString::Printf(TEXT("%s%d"), Prefix, Index), Index);
		}
	};
	Fill(TEXT("a"));
	Map.Remove(TEXT("a3"));
	const TMap<FString, int32> Taken = MoveTemp(Map);
	EXPECT_EQ(Taken.Num(), 29);
	EXPECT_TRUE(Map.IsEmpty());
	EXPECT_FALSE(Map.Contains(TEXT("a1")));
	Fill(TEXT("b"));
	EXPECT_EQ(Map.Num(), 30);
	Map.Empty();
	EXPECT_FALSE(Map.Contains(TEXT("b1")));
	EXPECT_FALSE(Map.begin() != Map.end());
	Fill(TEXT("c"));
	Map.Reset();
	Map.Reserve(1000);
	Fill(TEXT("d"));
	EXPECT_EQ(Map.Num(), 30);
	EXPECT_EQ(Map[TEXT("D29")], 29);
	EXPECT_FALSE(Map.Contains(TEXT("c1")));
}

TEST(Map, TakesItsOwnKeysAndValues)
{
	TMap<FString, FString> Map;
	Map.Add(TEXT("key 0"), TEXT("a value too long to be kept inside of a string object"));
	for (int32 Index = 1; Index < 40; ++Index)
	{
		Map.Add(FString::Printf(TEXT("key %d"), Index), Map[TEXT("key 0")]);
	}
	Map.Add(Map.begin()->Key, Map.begin()->Value);
	EXPECT_EQ(Map.Num(), 40);
	EXPECT_TRUE(Map[TEXT("key 39")].StartsWith(TEXT("a value")));
	while (!Map.IsEmpty())
	{
		EXPECT_EQ(Map.Remove(Map.begin()->Key), 1);
	}
}

TEST(Map, ManyKeysWithFewHashBits)
{
	// Multiples of a power of two: a table that took the plain low bits would put all into one place and be quadratic.
	TMap<uint64, int32> Map;
	constexpr int32 Count = 200000;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Map.Add(static_cast<uint64>(Index) << 20, Index);
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		ASSERT_EQ(Map.FindRef(static_cast<uint64>(Index) << 20), Index);
	}
	EXPECT_FALSE(Map.Contains(1));
}

TEST(Map, ComesAndGoesWithoutGrowing)
{
	// One key in, one key out, for long: the marks of removed keys must not fill the table.
	TMap<int32, int32> Map;
	for (int32 Index = 0; Index < 200000; ++Index)
	{
		Map.Add(Index, Index);
		if (Index >= 20)
		{
			ASSERT_EQ(Map.Remove(Index - 20), 1);
		}
	}
	EXPECT_EQ(Map.Num(), 20);
	EXPECT_FALSE(Map.Contains(0));
	EXPECT_TRUE(Map.Contains(199999));
}

TEST(Set, RandomOperationsAgreeWithTheLibrary)
{
	std::mt19937 Random(5);
	TSet<int32> Set;
	std::set<int32> Model;
	for (int32 Step = 0; Step < 50000; ++Step)
	{
		const auto Item = static_cast<int32>(Random() % 300);
		if (Random() % 2)
		{
			Set.Add(Item);
			Model.insert(Item);
		}
		else
		{
			ASSERT_EQ(Set.Remove(Item), static_cast<int32>(Model.erase(Item)));
		}
		ASSERT_EQ(Set.Contains(Item), Model.contains(Item));
		ASSERT_EQ(Set.Num(), static_cast<int32>(Model.size()));
	}
	std::set<int32> Seen;
	for (const int32 Item : Set)
	{
		EXPECT_TRUE(Seen.insert(Item).second);
	}
	EXPECT_EQ(Seen, Model);
}

TEST(Set, KeepsItsOrderAndTakesTheNewSpelling)
{
	TSet<FString> Set = { TEXT("b"), TEXT("a"), TEXT("B") };
	EXPECT_EQ(FString::Join(Set.Array(), TEXT(" ")).Native(), u"B a");
	EXPECT_EQ(Set.Find(TEXT("A"))->Native(), u"a");
	EXPECT_EQ(Set.Find(TEXT("c")), nullptr);
}
}
