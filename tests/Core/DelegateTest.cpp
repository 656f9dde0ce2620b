#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
DECLARE_DELEGATE_RetVal_OneParam(FString, FNaming, int32);
DECLARE_DELEGATE_OneParam(FTelling, const FString&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnTold, const FString&);

FString Describe(int32 Number, const TCHAR* Unit, int32 Times)
{
	return FString::Printf(TEXT("%d%s x%d"), Number, Unit, Times);
}

/** Writes down what it is told. */
class FListener : public TSharedFromThis<FListener>
{
public:
	explicit FListener(FString InName = TEXT("L"))
		: Name(MoveTemp(InName))
	{
	}
	void Told(const FString& Text) { Heard += Name + TEXT(":") + Text + TEXT(" "); }
	void ToldWith(const FString& Text, FString Stored) { Told(Text + Stored); }
	FString NameOf(int32 Number) const { return Name + FString::FromInt(Number); }

	FString Name;
	FString Heard;
};

/** Drops its last owner from inside a call. */
struct FOwner : TSharedFromThis<FOwner>
{
	void Drop(TSharedPtr<FOwner>* Last)
	{
		Last->Reset();
		Value += 1;
		bSawItself = Value == 42;
	}
	int32 Value = 41;
	static inline bool bSawItself = false;
};

TEST(Delegate, CallsWhatItIsBoundToWithItsStoredArguments)
{
	FListener Listener(TEXT("raw"));
	const struct
	{
		FNaming Delegate;
		const TCHAR* Wanted;
	} Cases[] = {
		{ FNaming::CreateStatic(&Describe, TEXT("kg"), 3), u"7kg x3" },
		{ FNaming::CreateLambda([](int32 Number) { return FString::FromInt(Number); }), u"7" },
		{ FNaming::CreateLambda([](int32 Number, int32 More) { return FString::FromInt(Number + More); }, 5), u"12" },
		{ FNaming::CreateRaw(&Listener, &FListener::NameOf), u"raw7" },
		{ FNaming::CreateSP(MakeShared<FListener>(TEXT("gone")), &FListener::NameOf), nullptr },
	};
	for (const auto& Case : Cases)
	{
		ASSERT_EQ(Case.Delegate.IsBound(), Case.Wanted != nullptr);
		if (Case.Wanted)
		{
			EXPECT_EQ(Case.Delegate.Execute(7).Native(), Case.Wanted);
		}
	}
	EXPECT_FALSE(FTelling().ExecuteIfBound(TEXT("x")));
}

TEST(Delegate, IsUnboundOnceItsSharedObjectIsGone)
{
	TSharedPtr<FListener> Listener = MakeShared<FListener>();
	FTelling ByReference, ByThis;
	ByReference.BindSP(Listener.ToSharedRef(), &FListener::Told);
	ByThis.BindSP(Listener.Get(), &FListener::ToldWith, FString(TEXT("!")));
	EXPECT_TRUE(ByReference.ExecuteIfBound(TEXT("a")));
	EXPECT_TRUE(ByThis.ExecuteIfBound(TEXT("b")));
	EXPECT_EQ(Listener->Heard.Native(), u"L:a L:b! ");
	EXPECT_TRUE(Listener.IsUnique()) << "a delegate owns nothing";
	Listener.Reset();
	EXPECT_FALSE(ByReference.IsBound());
	EXPECT_FALSE(ByReference.ExecuteIfBound(TEXT("c")));
	EXPECT_FALSE(ByThis.ExecuteIfBound(TEXT("c")));
}

TEST(Delegate, ItsSharedObjectLivesUntilTheCallEnds)
{
	TSharedPtr<FOwner> Owner = MakeShared<FOwner>();
	TWeakPtr<FOwner> Weak = Owner;
	const auto Delegate = TDelegate<void(TSharedPtr<FOwner>*)>::CreateSP(Owner.ToSharedRef(), &FOwner::Drop);
	EXPECT_TRUE(Delegate.ExecuteIfBound(&Owner));
	EXPECT_TRUE(FOwner::bSawItself);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(Delegate, MayBeReboundOrUnboundInsideItsCall)
{
	FString Heard;
	FTelling Delegate;
	Delegate.BindLambda(
		[&Delegate, &Heard, Kept = FString(TEXT("a text that lives as long as this lambda"))](const FString& Text)
		{
		Delegate.BindLambda([&Heard](const FString& Again) { Heard += TEXT("second ") + Again + TEXT(" "); });
		Heard += Kept.Left(6) + TEXT(" ") + Text + TEXT(" ");
		Delegate.ExecuteIfBound(TEXT("inner"));
	});
	Delegate.ExecuteIfBound(TEXT("outer"));
	EXPECT_EQ(Heard.Native(), u"a text outer second inner ");
	Delegate.BindLambda(
		[&Delegate, &Heard, Kept = FString(TEXT("still here, though unbound"))](const FString&)
		{
		Delegate.Unbind();
		Heard = Kept;
	});
	Delegate.ExecuteIfBound(TEXT(""));
	EXPECT_EQ(Heard.Native(), u"still here, though unbound");
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(Delegate, PassesReferencesAndMovedValuesOn)
{
	TDelegate<void(FString&, TUniquePtr<int32>)> Delegate;
	Delegate.BindLambda([](FString& Out, TUniquePtr<int32> Number) { Out = FString::FromInt(*Number); });
	FString Out;
	Delegate.Execute(Out, MakeUnique<int32>(5));
	EXPECT_EQ(Out.Native(), u"5");
}

TEST(MulticastDelegate, CallsInTheOrderOfAdding)
{
	FString Heard;
	FOnTold OnTold;
	EXPECT_FALSE(OnTold.IsBound());
	TArray<FDelegateHandle> Handles;
	for (const TCHAR* Name : { TEXT("a"), TEXT("b"), TEXT("c") })
	{
		Handles.Add(OnTold.AddLambda([&Heard, Name](const FString& Text) { Heard += Name + Text; }));
	}
	OnTold.Broadcast(TEXT("1"));
	EXPECT_EQ(Heard.Native(), u"a1b1c1");
	EXPECT_TRUE(OnTold.Remove(Handles[1]));
	EXPECT_FALSE(OnTold.Remove(Handles[1]));
	EXPECT_FALSE(OnTold.Remove(FDelegateHandle()));
	OnTold.Broadcast(TEXT("2"));
	EXPECT_EQ(Heard.Native(), u"a1b1c1a2c2");
	OnTold.Clear();
	EXPECT_FALSE(OnTold.IsBound());
}

TEST(MulticastDelegate, MayChangeDuringABroadcast)
{
	FString Heard;
	FOnTold OnTold;
	FDelegateHandle Second, Self;
	const auto Append = [&Heard](const TCHAR* Name) { return [&Heard, Name](const FString&) { Heard += Name; }; };
	Self = OnTold.AddLambda(
		[&](const FString&)
		{
		Heard += TEXT("first ");
		OnTold.Remove(Second);
		OnTold.Remove(Self);
		OnTold.AddLambda(Append(TEXT("added ")));
	});
	Second = OnTold.AddLambda(Append(TEXT("second ")));
	OnTold.AddLambda(Append(TEXT("third ")));
	OnTold.Broadcast(TEXT(""));
	EXPECT_EQ(Heard.Native(), u"first third ");
	Heard.Reset();
	OnTold.Broadcast(TEXT(""));
	EXPECT_EQ(Heard.Native(), u"third added ");
}

TEST(MulticastDelegate, ForgetsObjectsThatAreGone)
{
	FOnTold OnTold;
	TSharedPtr<FListener> Shared = MakeShared<FListener>();
	FListener Raw;
	OnTold.AddSP(Shared.ToSharedRef(), &FListener::Told);
	OnTold.AddRaw(&Raw, &FListener::Told);
	OnTold.AddRaw(&Raw, &FListener::ToldWith, FString(TEXT("+")));
	OnTold.Broadcast(TEXT("1"));
	EXPECT_EQ(Shared->Heard.Native(), u"L:1 ");
	EXPECT_EQ(Raw.Heard.Native(), u"L:1 L:1+ ");
	Shared.Reset();
	OnTold.Broadcast(TEXT("2"));
	EXPECT_EQ(OnTold.RemoveAll(&Raw), 2);
	EXPECT_FALSE(OnTold.IsBound());
}

TEST(MulticastDelegate, MayBeEmptiedInsideItsBroadcast)
{
	FString Heard;
	FOnTold OnTold;
	OnTold.AddLambda(
		[&](const FString& Text)
		{
		Heard += Text;
		OnTold.Clear();
	});
	OnTold.AddLambda([&](const FString&) { Heard += TEXT("late"); });
	OnTold.Broadcast(TEXT("x"));
	EXPECT_EQ(Heard.Native(), u"x");
}
}
