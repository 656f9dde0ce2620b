#include "CoreHost/LogDevice.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{
/** Counts its living objects, and holds memory, so that a sanitizer sees what is not constructed, moved or destroyed. */
struct FCounted
{
	FCounted(int32 InValue = 0)
		: Value(std::make_unique<int32>(InValue))
	{
		++Living;
	}
	FCounted(const FCounted& Other)
		: FCounted(*Other.Value)
	{
	}
	FCounted(FCounted&& Other) noexcept
		: Value(std::move(Other.Value))
	{
		++Living;
	}
	FCounted& operator=(const FCounted& Other)
	{
		Value = std::make_unique<int32>(*Other.Value);
		return *this;
	}
	FCounted& operator=(FCounted&& Other) noexcept = default;
	~FCounted() { --Living; }
	bool operator==(const FCounted& Other) const { return *Value == *Other.Value; }

	std::unique_ptr<int32> Value;
	static inline int32 Living = 0;
};

std::vector<int32> Numbers(const TArray<FCounted>& Array)
{
	std::vector<int32> Result;
	for (const FCounted& Item : Array)
	{
		Result.push_back(*Item.Value);
	}
	return Result;
}

TEST(Array, RandomOperationsAgreeWithAVector)
{
	std::mt19937 Random(3);
	{
		TArray<FCounted> Array;
		std::vector<int32> Model;
		const auto Place = [&](SIZE_T Count) { return static_cast<int32>(Random() % (Count + 1)); };
		for (int32 Step = 0; Step < 20000; ++Step)
		{
			const int32 Value = static_cast<int32>(Random() % 50);
			switch (Random() % 12)
			{
			case 0:
			case 1:
			case 2:
				EXPECT_EQ(Array.Add(Value), static_cast<int32>(Model.size()));
				Model.push_back(Value);
				break;
			case 3:
			{
				const int32 At = Place(Model.size());
				Array.Insert(Value, At);
				Model.insert(Model.begin() + At, Value);
				break;
			}
			case 4:
			{
				const int32 At = Place(Model.size());
				const int32 Count = Place(std::min<SIZE_T>(Model.size() - static_cast<SIZE_T>(At), 4));
				Array.RemoveAt(At, Count);
				Model.erase(Model.begin() + At, Model.begin() + At + Count);
				break;
			}
			case 5: EXPECT_EQ(Array.Remove(Value), static_cast<int32>(std::erase(Model, Value))); break;
			case 6:
			{
				const auto Found = std::find(Model.begin(), Model.end(), Value);
				EXPECT_EQ(Array.RemoveSingle(Value), Found != Model.end());
				if (Found != Model.end())
				{
					Model.erase(Found);
				}
				break;
			}
			case 7:
				EXPECT_EQ(Array.RemoveAll([&](const FCounted& Item) { return *Item.Value > 45; }),
					static_cast<int32>(std::erase_if(Model, [](int32 Item) { return Item > 45; })));
				break;
			case 8:
				if (!Model.empty())
				{
					EXPECT_EQ(*Array.Pop().Value, Model.back());
					Model.pop_back();
				}
				break;
			case 9:
				if (std::find(Model.begin(), Model.end(), Value) == Model.end())
				{
					Model.push_back(Value);
				}
				Array.AddUnique(Value);
				break;
			case 10:
			{
				const int32 Count = Place(Model.size() + 3);
				Array.SetNum(Count);
				Model.resize(static_cast<SIZE_T>(Count), 0);
				break;
			}
			default: Array.Append({ FCounted(1), FCounted(Value) }); Model.insert(Model.end(), { 1, Value });
			}
			if (Model.size() > 60)
			{
				Array.Empty(Place(5));
				Model.clear();
			}
			ASSERT_EQ(Numbers(Array), Model) << "step " << Step;
			ASSERT_EQ(FCounted::Living, static_cast<int32>(Model.size()));
		}
	}
	EXPECT_EQ(FCounted::Living, 0);
}

TEST(Array, RemovingNothingLeavesTextsAlone)
{
	TArray<FString> Array = { TEXT("a"), TEXT("b"), TEXT("c, too long to be kept inside of a string object") };
	const TArray<FString> Before = Array;
	Array.RemoveAt(0, 0);
	Array.RemoveAt(1, 0);
	Array.RemoveAt(3, 0);
	EXPECT_EQ(Array, Before);
}

TEST(Array, TakesItsOwnElements)
{
	TArray<FString> Array = { TEXT("first, too long to be kept inside of a string object") };
	for (int32 Round = 0; Round < 50; ++Round)
	{
		Array.Add(Array[0]);
		Array.Insert(Array[0], Round / 2);
		Array.AddUnique(Array.Last());
		Array.Emplace(*Array[0]);
	}
	EXPECT_EQ(Array.Num(), 151);
	EXPECT_EQ(Array.Remove(Array[70]), 151);
}

TEST(Array, CopiesAndMoves)
{
	{
		TArray<FCounted> A = { 1, 2, 3 };
		TArray<FCounted> B = A;
		A[0] = FCounted(9);
		EXPECT_EQ(Numbers(B), (std::vector<int32>{ 1, 2, 3 }));
		TArray<FCounted> C = MoveTemp(A);
		EXPECT_TRUE(A.IsEmpty());
		EXPECT_EQ(Numbers(C), (std::vector<int32>{ 9, 2, 3 }));
		A.Add(4);
		const TArray<FCounted>& Self = C;
		C = Self;
		EXPECT_EQ(C.Num(), 3);
		C = MoveTemp(A);
		EXPECT_EQ(Numbers(C), (std::vector<int32>{ 4 }));
		C.Append(MoveTemp(B));
		EXPECT_TRUE(B.IsEmpty());
		EXPECT_EQ(Numbers(C), (std::vector<int32>{ 4, 1, 2, 3 }));
		EXPECT_FALSE(C == B);
	}
	EXPECT_EQ(FCounted::Living, 0);
}

TEST(Array, NestedArraysMayReplaceTheirParent)
{
	struct FNode
	{
		FString Name;
		TArray<FNode> Children;
	};
	TArray<FNode> Nodes = { { TEXT("root"), { { TEXT("child"), {} }, { TEXT("other"), {} } } } };
	Nodes = MoveTemp(Nodes[0].Children);
	ASSERT_EQ(Nodes.Num(), 2);
	EXPECT_EQ(Nodes[1].Name.Native(), u"other");
	Nodes[0].Children.Add({ TEXT("leaf"), {} });
	Nodes = Nodes[0].Children;
	ASSERT_EQ(Nodes.Num(), 1);
	EXPECT_EQ(Nodes[0].Name.Native(), u"leaf");
}

TEST(Array, SortsAndSearches)
{
	TArray<FString> Array = { TEXT("b"), TEXT("A"), TEXT("c"), TEXT("B") };
	Array.StableSort([](const FString& A, const FString& B) { return A < B; });
	EXPECT_EQ(FString::Join(Array, TEXT("")).Native(), u"AbBc");
	Array.Sort([](const FString& A, const FString& B) { return A.Compare(B) < 0; });
	EXPECT_EQ(FString::Join(Array, TEXT("")).Native(), u"ABbc");
	EXPECT_EQ(Array.Find(FString(TEXT("b"))), 1);
	EXPECT_TRUE(Array.Contains(TEXT("C")));
	int32 Index = 0;
	EXPECT_FALSE(Array.Find(FString(TEXT("x")), Index));
	EXPECT_EQ(Index, INDEX_NONE);
	EXPECT_EQ(Array.FindByPredicate([](const FString& Text) { return Text.Equals(TEXT("c")); }), &Array[3]);
	EXPECT_EQ(Array.FindByPredicate([](const FString& Text) { return Text.IsEmpty(); }), nullptr);
	EXPECT_EQ(Array.FilterByPredicate([](const FString& Text) { return Text == TEXT("b"); }).Num(), 2);
	TArray<int32> Few = { 3, 1, 2 };
	Few.Sort();
	EXPECT_EQ(Few, (TArray<int32>{ 1, 2, 3 }));
	Few.Swap(0, 2);
	EXPECT_EQ(Few.Last(1), 2);
}

TEST(Array, KeepsItsMemoryAsSaid)
{
	TArray<int32> Array;
	Array.Reserve(100);
	Array.Add(1);
	const int32* const Data = Array.GetData();
	for (int32 Item = 1; Item < 100; ++Item)
	{
		Array.Add(Item);
	}
	EXPECT_EQ(Array.GetData(), Data);
	Array.Reset();
	EXPECT_EQ(Array.Max(), 100);
	Array.Empty(10);
	EXPECT_EQ(Array.Max(), 10);
	Array.Empty();
	EXPECT_EQ(Array.Max(), 0);
	EXPECT_TRUE(Array.IsEmpty());
}

TEST(ArrayDeathTest, AnIndexOutsideEndsTheProgram)
{
	TArray<int32> Array = { 1, 2 };
	for (const int32 Index : { -1, 2, 0x7fffffff })
	{
		EXPECT_DEATH(
			{
				FLogDevice ToStderr;
				Array[Index] = 0;
			},
			"IsValidIndex");
	}
	EXPECT_DEATH(
		{
			FLogDevice ToStderr;
			Array.RemoveAt(1, 2);
		},
		"Count <= ArrayNum");
	EXPECT_DEATH(
		{
			FLogDevice ToStderr;
			TArray<int32>().Pop();
		},
		"IsValidIndex");
}
}
