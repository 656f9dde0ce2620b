#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
int32 Twice(int32 Number)
{
	return Number * 2;
}

int32 CallRef(TFunctionRef<int32(int32)> Function)
{
	return Function(20) + Function(1);
}

TEST(Function, ACopyOfAnUnsetOneIsUnset)
{
	TFunction<void()> Unset;
	TFunction<void()> Copy(Unset);
	TFunction<void()> Moved(MoveTemp(Unset));
	EXPECT_FALSE(Copy.IsSet());
	EXPECT_FALSE(Moved);
	Copy = [] {};
	EXPECT_TRUE(Copy.IsSet());
	Copy.Reset();
	EXPECT_FALSE(Copy.IsSet());
	EXPECT_FALSE(TFunction<void()>(nullptr).IsSet());
}

TEST(Function, CopiesHaveTheirOwnState)
{
	TFunction<int32()> Counter = [Count = 0]() mutable { return ++Count; };
	Counter();
	TFunction<int32()> Copy = Counter;
	EXPECT_EQ(Counter(), 2);
	EXPECT_EQ(Counter(), 3);
	EXPECT_EQ(Copy(), 2);
	TFunction<int32(int32)> Plain = &Twice;
	EXPECT_EQ(Plain(4), 8);
}

TEST(FunctionRef, CallsWithoutACopy)
{
	int32 Calls = 0;
	const auto Lambda = [&Calls](int32 Number) { return Number + ++Calls; };
	EXPECT_EQ(CallRef(Lambda), 24);
	EXPECT_EQ(CallRef([Calls = 10](int32 Number) mutable { return Number + ++Calls; }), 44);
	EXPECT_EQ(CallRef(Twice), 42);
	EXPECT_EQ(CallRef(&Twice), 42);
	const TFunction<int32(int32)> Function = Lambda;
	EXPECT_EQ(CallRef(Function), 21 + 3 + 4);
}

TEST(UniqueFunction, HoldsWhatCannotBeCopied)
{
	TUniqueFunction<int32(TUniquePtr<int32>)> Function = [Held = MakeUnique<int32>(5)](TUniquePtr<int32> More) { return *Held + *More; };
	TUniqueFunction<int32(TUniquePtr<int32>)> Moved = MoveTemp(Function);
	EXPECT_FALSE(Function.IsSet());
	ASSERT_TRUE(Moved.IsSet());
	EXPECT_EQ(Moved(MakeUnique<int32>(2)), 7);
	Moved = nullptr;
	EXPECT_FALSE(Moved.IsSet());
}
}
