#include "Editor.h"
#include "Editor/Transactor.h"
#include "Modules/ModuleManager.h"
#include "ScopedTransaction.h"
#include "TestParts.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

namespace
{
class Transactions : public testing::Test
{
protected:
	Transactions() { FModuleManager::Get().LoadModule(TEXT("UnrealEd")); }
	~Transactions() override { GEditor->ResetTransaction(FText::GetEmpty()); }

	UTestPart* MakePart(const TCHAR* Name) const { return NewObject<UTestPart>(Package.Get(), Name, RF_Transactional | RF_Public); }
	static void SetNumber(UTestPart* Part, int32 Number)
	{
		Part->Modify();
		Part->Number = Number;
	}
	static TArray<FString> GetTitles()
	{
		TArray<FString> Titles;
		for (int32 Index = 0; Index < GEditor->Trans->GetQueueLength(); ++Index)
		{
			Titles.Add(GEditor->Trans->GetTransaction(Index)->GetTitle().ToString());
		}
		return Titles;
	}
	static FText Title(const TCHAR* Text) { return FText::FromString(Text); }

	TStrongObjectPtr<UPackage> Package{ CreatePackage(TEXT("/Game/Transactions")) };
};
}

TEST_F(Transactions, UndoAndRedoGoThroughTheTransactionsOneByOne)
{
	UTestPart* const Part = MakePart(TEXT("Steps"));
	for (const int32 Number : { 10, 20, 30 })
	{
		const FScopedTransaction Transaction(FText::FromString(FString::FromInt(Number)));
		SetNumber(Part, Number);
		SetNumber(Part, Number + 1);
	}
	EXPECT_EQ(GetTitles(), (TArray<FString>{ TEXT("10"), TEXT("20"), TEXT("30") }));
	const auto ExpectState = [Part](int32 Number, int32 Undone, const TCHAR* Next)
	{
		EXPECT_EQ(Part->Number, Number);
		EXPECT_EQ(GEditor->Trans->GetUndoCount(), Undone);
		EXPECT_EQ(GEditor->Trans->GetUndoContext().Title.ToString(), Next);
	};
	ExpectState(31, 0, TEXT("30"));
	EXPECT_TRUE(GEditor->UndoTransaction());
	ExpectState(21, 1, TEXT("20"));
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->UndoTransaction());
	ExpectState(1, 3, TEXT(""));
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	EXPECT_TRUE(GEditor->RedoTransaction());
	ExpectState(21, 1, TEXT("20"));
	EXPECT_EQ(GEditor->Trans->GetQueueLength(), 3);
	EXPECT_TRUE(GEditor->UndoTransaction(false)) << "which can't be redone";
	EXPECT_EQ(GetTitles(), TArray<FString>{ TEXT("10") });
	EXPECT_FALSE(GEditor->RedoTransaction());
}

TEST_F(Transactions, ANewOneDropsTheUndoneAndAnEmptyOneIsNotKept)
{
	UTestPart* const Part = MakePart(TEXT("Dropped"));
	{
		const FScopedTransaction Transaction(Title(TEXT("first")));
		SetNumber(Part, 2);
	}
	GEditor->UndoTransaction();
	{
		const FScopedTransaction Transaction(Title(TEXT("empty")));
	}
	EXPECT_EQ(GetTitles(), TArray<FString>());
	{
		const FScopedTransaction Transaction(Title(TEXT("off")), false);
		SetNumber(Part, 3);
	}
	EXPECT_EQ(GetTitles(), TArray<FString>()) << "nothing was to be recorded";
}

TEST_F(Transactions, NestedOnesAreOneAndCancelDropsRecordsFromItsOwnBeginning)
{
	UTestPart* const Outer = MakePart(TEXT("Outer"));
	UTestPart* const Inner = MakePart(TEXT("Inner"));
	UTestPart* const Later = MakePart(TEXT("Later"));
	{
		const FScopedTransaction Transaction(Title(TEXT("outer")));
		SetNumber(Outer, 2);
		{
			FScopedTransaction Nested(Title(TEXT("inner")));
			EXPECT_FALSE(GEditor->UndoTransaction()) << "while one is open";
			SetNumber(Inner, 2);
			Nested.Cancel();
			Nested.Cancel();
		}
		SetNumber(Later, 2);
	}
	EXPECT_EQ(GetTitles(), TArray<FString>{ TEXT("outer") });
	GEditor->UndoTransaction();
	EXPECT_EQ(Outer->Number, 1);
	EXPECT_EQ(Inner->Number, 2) << "its change stays, unrecorded";
	EXPECT_EQ(Later->Number, 1);
}

TEST_F(Transactions, ObjectsMadeRenamedAndRemovedComeBackAsTheyWere)
{
	UTestWhole* const Whole = NewObject<UTestWhole>(Package.Get(), "Whole", RF_Transactional);
	UTestPart* const Old = MakePart(TEXT("Old"));
	Whole->Extras = { Old };
	UTestPart* New = nullptr;
	{
		const FScopedTransaction Transaction(Title(TEXT("replace")));
		Whole->Modify();
		Old->Modify();
		New = MakePart(TEXT("New"));
		New->Number = 5;
		Whole->Extras = { New };
		Old->Rename(TEXT("Older"));
		New->Rename(TEXT("Old"));
		Whole->Links.Add(New);
		Old->MarkAsGarbage();
	}
	const TWeakObjectPtr<UTestPart> Kept(Old);
	CollectGarbage(RF_NoFlags);
	ASSERT_TRUE(Whole->Extras == TArray<TObjectPtr<UTestPart>>{ New });

	GEditor->UndoTransaction();
	EXPECT_EQ(Whole->Extras, TArray<TObjectPtr<UTestPart>>{ Old });
	EXPECT_EQ(Whole->Links, TArray<UObject*>());
	EXPECT_TRUE(IsValid(Old));
	EXPECT_FALSE(IsValid(New));
	EXPECT_EQ(Old->GetPathName(), TEXT("/Game/Transactions.Old"));
	CollectGarbage(RF_NoFlags);

	GEditor->RedoTransaction();
	EXPECT_EQ(Whole->Extras, TArray<TObjectPtr<UTestPart>>{ New });
	EXPECT_EQ(Whole->Links, TArray<UObject*>{ New });
	EXPECT_TRUE(IsValid(New));
	EXPECT_FALSE(IsValid(Old));
	EXPECT_EQ(New->Number, 5);
	EXPECT_EQ(New->GetName(), TEXT("Old"));
}

TEST_F(Transactions, WhatIsUndoneMakesThePackageDirty)
{
	UTestPart* const Part = MakePart(TEXT("Dirty"));
	{
		const FScopedTransaction Transaction(Title(TEXT("change")));
		SetNumber(Part, 2);
	}
	EXPECT_TRUE(Package->IsDirty());
	Package->SetDirtyFlag(false);
	GEditor->UndoTransaction();
	EXPECT_TRUE(Package->IsDirty());
}
