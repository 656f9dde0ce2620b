#include "CoreHost/LogDevice.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
struct FBase
{
	virtual ~FBase() { ++Gone; }
	virtual int32 Kind() const { return 1; }
	static inline int32 Gone = 0;
};

struct FDerived : FBase, TSharedFromThis<FDerived>
{
	explicit FDerived(int32 InKind = 2)
		: Value(InKind)
	{
	}
	int32 Kind() const override { return Value; }
	int32 Value;
};

TEST(SharedPointer, CountsItsOwners)
{
	FBase::Gone = 0;
	TSharedPtr<FBase> Base;
	EXPECT_FALSE(Base.IsValid());
	{
		const TSharedRef<FDerived> Derived = MakeShared<FDerived>(5);
		Base = Derived;
		EXPECT_EQ(Base.GetSharedReferenceCount(), 2);
		EXPECT_TRUE(Base == TSharedPtr<FBase>(Derived));
		EXPECT_EQ(GetTypeHash(Base), GetTypeHash(TSharedPtr<FBase>(Derived)));
	}
	EXPECT_TRUE(Base.IsUnique());
	EXPECT_EQ(Base->Kind(), 5);
	EXPECT_EQ(StaticCastSharedPtr<FDerived>(Base)->Value, 5);
	TSharedPtr<FBase> Moved = MoveTemp(Base);
	EXPECT_FALSE(Base.IsValid());
	EXPECT_EQ(FBase::Gone, 0);
	Moved = nullptr;
	EXPECT_EQ(FBase::Gone, 1);
}

TEST(SharedPointer, WeakOnesWatch)
{
	TSharedPtr<FDerived> Owner = MakeShared<FDerived>();
	const TWeakPtr<FBase> Weak = Owner;
	const TWeakPtr<FDerived> Same = Owner->AsWeak();
	EXPECT_TRUE(TWeakPtr<FDerived>(Owner) == Same);
	EXPECT_FALSE(TWeakPtr<FDerived>() == Same);
	{
		const TSharedPtr<FBase> Pinned = Weak.Pin();
		Owner.Reset();
		EXPECT_TRUE(Weak.IsValid());
		EXPECT_EQ(Pinned->Kind(), 2);
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.Pin().IsValid());
	EXPECT_FALSE(Same.Pin().IsValid());
}

TEST(SharedPointer, GivesSharedPointersToItself)
{
	FBase::Gone = 0;
	TSharedPtr<FDerived> Owner = MakeShareable(new FDerived(3));
	TSharedPtr<FDerived> Self = Owner->AsShared();
	EXPECT_EQ(Owner.GetSharedReferenceCount(), 2);
	Owner.Reset();
	EXPECT_EQ(FBase::Gone, 0);
	EXPECT_EQ(Self->Value, 3);
	Self.Reset();
	EXPECT_EQ(FBase::Gone, 1);

	int32 Deleted = 0;
	{
		TSharedPtr<FBase> Custom = MakeShareable(new FBase,
			[&Deleted](FBase* Object)
			{
			++Deleted;
			delete Object;
		});
		const TSharedPtr<FBase> Copy = Custom;
	}
	EXPECT_EQ(Deleted, 1);
}

TEST(SharedPointerDeathTest, ANullOneIsNoReference)
{
	TSharedPtr<FBase> Null;
	EXPECT_DEATH(
		{
			FLogDevice ToStderr;
			Null.ToSharedRef();
		},
		"Owner");
	EXPECT_DEATH(
		{
			FLogDevice ToStderr;
			Null->Kind();
		},
		"Owner");
}

TEST(UniquePointer, HasOneOwner)
{
	FBase::Gone = 0;
	TUniquePtr<FBase> Base = MakeUnique<FDerived>(4);
	EXPECT_EQ(Base->Kind(), 4);
	TUniquePtr<FBase> Next = MoveTemp(Base);
	EXPECT_FALSE(Base.IsValid());
	FBase* const Raw = Next.Release();
	EXPECT_FALSE(Next);
	EXPECT_EQ(FBase::Gone, 0);
	Next.Reset(Raw);
	Next = nullptr;
	EXPECT_EQ(FBase::Gone, 1);
}
}
