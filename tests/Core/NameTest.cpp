#include "TestSupport.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{
TEST(Name, ComparesWithoutCaseAndPrintsItsOwnSpelling)
{
	const FName First(TEXT("PlayerHealth"));
	const FName Second(TEXT("playerHEALTH"));
	EXPECT_EQ(First, Second);
	EXPECT_EQ(GetTypeHash(First), GetTypeHash(Second));
	EXPECT_EQ(First.ToString().Native(), u"PlayerHealth");
	EXPECT_EQ(Second.ToString().Native(), u"playerHEALTH");
	EXPECT_NE(First, FName(TEXT("PlayerHealt")));
	EXPECT_EQ(FName(TEXT("GRÖßE")), FName("größe"));
}

TEST(Name, NoneIsTheDefault)
{
	for (const FName& Name : { FName(), FName(NAME_None), FName(TEXT("None")), FName(TEXT("")), FName(FString()), FName("NONE"),
			 FName(static_cast<const TCHAR*>(nullptr)) })
	{
		EXPECT_TRUE(Name.IsNone());
		EXPECT_EQ(Name, NAME_None);
	}
	EXPECT_EQ(FName().ToString().Native(), u"None");
	EXPECT_FALSE(FName(TEXT("None_0")).IsNone());
}

TEST(Name, SplitsANumberOff)
{
	const struct
	{
		const TCHAR *Text, *Plain;
		int32 Number;
	} Cases[] = {
		{ u"Foo", u"Foo", 0 },
		{ u"Foo_0", u"Foo", 1 },
		{ u"Foo_1", u"Foo", 2 },
		{ u"Foo_10", u"Foo", 11 },
		{ u"Foo_01", u"Foo_01", 0 },
		{ u"Foo_00", u"Foo_00", 0 },
		{ u"Foo1", u"Foo1", 0 },
		{ u"Foo_", u"Foo_", 0 },
		{ u"Foo__5", u"Foo_", 6 },
		{ u"Foo_1_2", u"Foo_1", 3 },
		{ u"Foo_2147483646", u"Foo", 2147483647 },
		{ u"Foo_2147483647", u"Foo_2147483647", 0 },
		{ u"Foo_99999999999", u"Foo_99999999999", 0 },
		{ u"Foo_-1", u"Foo_-1", 0 },
		{ u"7", u"7", 0 },
	};
	for (const auto& Case : Cases)
	{
		const FName Name(Case.Text);
		EXPECT_EQ(Name.GetPlainNameString().Native(), Case.Plain);
		EXPECT_EQ(Name.GetNumber(), Case.Number) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_EQ(Name.ToString().Native(), Case.Text);
	}
	EXPECT_EQ(FName(FName(TEXT("Foo")), 2), FName(TEXT("foo_1")));
	EXPECT_NE(FName(TEXT("Foo_0")), FName(TEXT("Foo")));
	EXPECT_NE(FName(TEXT("Foo_0")), FName(TEXT("Foo_1")));
}

TEST(Name, IsCutAtItsLongest)
{
	const FString Long = FString::ChrN(1023, 'x');
	EXPECT_EQ(FName(Long + TEXT("yz")).ToString().Native(), Long.Native());
	EXPECT_EQ(FName(Long + TEXT("yz")), FName(Long));
	EXPECT_NE(FName(Long.LeftChop(1)), FName(Long));
}

TEST(Name, OrdersByText)
{
	EXPECT_LT(FName(TEXT("alpha")).Compare(FName(TEXT("Beta"))), 0);
	EXPECT_EQ(FName(TEXT("Beta")).Compare(FName(TEXT("beta"))), 0);
	EXPECT_TRUE(FName(TEXT("a")).LexicalLess(FName(TEXT("B"))));
	EXPECT_FALSE(FName(TEXT("b")).LexicalLess(FName(TEXT("A"))));
}

TEST(Name, IsMadeOnManyThreadsAtOnce)
{
	TArray<FName> Names[4];
	{
		std::vector<std::jthread> Threads;
		for (TArray<FName>& Made : Names)
		{
			Threads.emplace_back(
				[&Made, bUpper = &Made == &Names[1]]
				{
				for (int32 Index = 0; Index < 3000; ++Index)
				{
					const FString Text = FString::Printf(TEXT("Threaded%dx"), Index);
					Made.Add(FName(bUpper ? Text.ToUpper() : Text));
				}
			});
		}
	}
	for (int32 Index = 0; Index < 3000; ++Index)
	{
		ASSERT_EQ(Names[0][Index], Names[1][Index]);
		ASSERT_EQ(Names[0][Index], Names[2][Index]);
		ASSERT_EQ(Names[3][Index].ToString().Native(), Names[2][Index].ToString().Native());
		ASSERT_TRUE(Names[1][Index].ToString().StartsWith(TEXT("THREADED"), ESearchCase::CaseSensitive));
	}
}
}
