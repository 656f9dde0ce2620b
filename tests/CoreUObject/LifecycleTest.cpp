#include "Misc/ITransaction.h"
#include "Serialization/ArchiveReplaceObjectRef.h"
#include "TestObject.h"
#include "TestParts.h"
#include "TestSupport.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectIterator.h"
#include "UObject/WeakObjectPtr.h"

#include <gtest/gtest.h>

namespace
{
/** Collects all that a test has left. */
class Objects : public testing::Test
{
protected:
	void TearDown() override { CollectGarbage(RF_NoFlags); }

	UPackage* const Package = CreatePackage(TEXT("/Game/Lifecycle"));
	TStrongObjectPtr<UPackage> Kept{ Package };
};

using DefaultSubobjects = Objects;
using Duplication = Objects;
using Garbage = Objects;
using Naming = Objects;
using Search = Objects;
using Recording = Objects;
}

TEST_F(DefaultSubobjects, AreMadeWithTheirOuterAndTakeOverTheArchetypesValues)
{
	UTestWhole* const Template = NewObject<UTestWhole>(Package, "Template");
	EXPECT_EQ(Template->Part->GetOuter(), Template);
	EXPECT_EQ(Template->Part->Number, 2);
	EXPECT_EQ(Template->Part->GetArchetype(), GetDefault<UTestWhole>()->Part.Get());
	Template->Part->Number = 7;
	Template->Shared = Template->Part;
	Template->Extras = { NewObject<UTestPart>(Template, "Extra"), GetMutableDefault<UTestPart>() };
	Template->Extras[0]->Friend = Template->Part;
	Template->Extras[0]->Number = 8;

	const UTestWhole* const Copy = NewObject<UTestWhole>(Package, "Copy", RF_NoFlags, Template);
	EXPECT_EQ(Copy->Part->GetPathName(), TEXT("/Game/Lifecycle.Copy:Part"));
	EXPECT_EQ(Copy->Part->Number, 7) << "though the constructor has set another after making it";
	EXPECT_EQ(Copy->Shared, Copy->Part);
	ASSERT_EQ(Copy->Extras.Num(), 2);
	EXPECT_EQ(Copy->Extras[0]->GetPathName(), TEXT("/Game/Lifecycle.Copy:Extra")) << "instanced objects are made anew";
	EXPECT_EQ(Copy->Extras[0]->Number, 8);
	EXPECT_EQ(Copy->Extras[0]->Friend, Copy->Part);
	EXPECT_EQ(Copy->Extras[1], GetDefault<UTestPart>()) << "which does not lie in the template";

	TArray<UObject*> Found;
	Copy->GetDefaultSubobjects(Found);
	EXPECT_EQ(Found, TArray<UObject*>{ Copy->Part });
	EXPECT_EQ(Copy->GetDefaultSubobjectByName("part"), Copy->Part);
	EXPECT_EQ(Copy->GetDefaultSubobjectByName("Extra"), nullptr);
}

TEST_F(DefaultSubobjects, OfDefaultObjectsHaveWhatTheConstructorsGave)
{
	EXPECT_EQ(GetDefault<UTestWhole>()->Part->Number, 2);
	EXPECT_EQ(GetDefault<UTestDerivedWhole>()->Part->Number, 3);
	EXPECT_EQ(NewObject<UTestDerivedWhole>()->Part->Number, 3);
	EXPECT_TRUE(GetDefault<UTestWhole>()->Part->IsTemplate());
	EXPECT_FALSE(NewObject<UTestWhole>()->Part->IsTemplate());
}

TEST_F(Duplication, CopiesWhatLiesInsideAndNothingElse)
{
	UTestWhole* const Source = NewObject<UTestWhole>(Package, "Source", RF_Public);
	UTestPart* const Outside = NewObject<UTestPart>(Package);
	UTestPart* const Inside = NewObject<UTestPart>(NewObject<UTestPart>(Source, "Middle"), "Deep");
	NewObject<UTestPart>(Source, "Unused");
	Source->Cache = 6;
	Source->Part->Number = 7;
	Source->Shared = Outside;
	Source->Links = { Inside, Source, nullptr };
	Inside->Friend = Source->Part;
	Source->Part->Friend = Inside;

	const UTestWhole* const Copy = DuplicateObject(Source, Package, "Copy");
	EXPECT_EQ(Copy->GetPathName(), TEXT("/Game/Lifecycle.Copy"));
	EXPECT_TRUE(Copy->HasAnyFlags(RF_Public));
	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
	EXPECT_EQ(Copy->Part->Number, 7);
	EXPECT_EQ(Copy->Shared, Outside);
	ASSERT_EQ(Copy->Links.Num(), 3);
	EXPECT_EQ(Copy->Links[0]->GetPathName(), TEXT("/Game/Lifecycle.Copy:Middle.Deep"));
	EXPECT_EQ(static_cast<UTestPart*>(Copy->Links[0])->Friend, Copy->Part);
	EXPECT_EQ(Copy->Part->Friend, Copy->Links[0]);
	EXPECT_EQ(Copy->Links[1], Copy);
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/Game/Lifecycle.Copy:Unused")), nullptr);
	EXPECT_EQ(Copy->Cache, 5);
	EXPECT_EQ(Copy->Duplications, 1);
	EXPECT_EQ(Source->Part->Friend, Inside);
}

TEST_F(Duplication, ReplacingReferencesGoesThroughTheObjectsInside)
{
	UTestWhole* const Whole = NewObject<UTestWhole>(Package);
	UTestPart* const Old = NewObject<UTestPart>(Package);
	UTestPart* const New = NewObject<UTestPart>(Package);
	Old->Friend = Old;
	Whole->Shared = Old;
	Whole->Part->Friend = Old;
	Whole->Links = { Old, nullptr };
	EXPECT_EQ((FArchiveReplaceObjectRef<UTestPart>(Whole, { { Old, New } }).GetCount()), 3);
	EXPECT_EQ(Whole->Shared, New);
	EXPECT_EQ(Whole->Part->Friend, New);
	EXPECT_EQ(Whole->Links[0], New);
	EXPECT_EQ(Old->Friend, Old) << "which lies outside";
}

TEST_F(Garbage, IsNotFoundAndGoesThoughReferredTo)
{
	UTestWhole* const Holder = NewObject<UTestWhole>(Package);
	const TStrongObjectPtr<UTestWhole> KeptHolder(Holder);
	UTestPart* const Part = NewObject<UTestPart>(Package, "Part", RF_Standalone);
	const TWeakObjectPtr<UTestPart> Weak = Part;
	Holder->Shared = Part;
	Holder->Extras = { Part };
	Holder->Links = { Part };
	Part->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Part));
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Part")), nullptr);
	Part->ClearGarbage();
	EXPECT_EQ(Weak.Get(), Part);
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Part")), Part);

	Part->MarkAsGarbage();
	UTestPart* const Next = NewObject<UTestPart>(Package, "Part");
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Part")), Next) << "garbage gives its name away";
	{
		const TStrongObjectPtr<UTestPart> Record(Part);
		CollectGarbage(RF_Standalone);
		EXPECT_EQ(Holder->Shared, Part) << "which a strong pointer keeps";
	}
	CollectGarbage(RF_Standalone);
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_EQ(Holder->Shared, nullptr);
	EXPECT_EQ(Holder->Extras, (TArray<TObjectPtr<UTestPart>>{ nullptr }));
	EXPECT_EQ(Holder->Links, TArray<UObject*>{ nullptr });
}

TEST_F(Naming, RenamesMovesAndRefuses)
{
	UTestWhole* const Whole = NewObject<UTestWhole>(Package, "Whole");
	UTestPart* const Other = NewObject<UTestPart>(Package, "Other");
	struct
	{
		const TCHAR* Name;
		UObject* Outer;
		ERenameFlags Flags;
		bool bDone;
		const TCHAR* Path;
	} const Cases[] = {
		{ TEXT("Other"), nullptr, REN_None, false, TEXT("/Game/Lifecycle.Whole") },
		{ TEXT("Inside"), Whole->Part, REN_None, false, TEXT("/Game/Lifecycle.Whole") },
		{ TEXT("Free"), nullptr, REN_Test, true, TEXT("/Game/Lifecycle.Whole") },
		{ TEXT("WHOLE"), nullptr, REN_None, true, TEXT("/Game/Lifecycle.WHOLE") },
		{ nullptr, Other, REN_None, true, TEXT("/Game/Lifecycle.Other:WHOLE") },
		{ TEXT("Deeper"), nullptr, REN_None, true, TEXT("/Game/Lifecycle.Other:Deeper") },
		{ TEXT("Whole"), Package, REN_None, true, TEXT("/Game/Lifecycle.Whole") },
	};
	for (const auto& Each : Cases)
	{
		EXPECT_EQ(Whole->Rename(Each.Name, Each.Outer, Each.Flags), Each.bDone);
		EXPECT_EQ(Whole->GetPathName(), Each.Path);
		EXPECT_EQ(FindObject<UObject>(nullptr, *(Whole->GetPathName() + TEXT(".Part"))), Whole->Part);
	}
	TArray<UObject*> Inner;
	GetObjectsWithOuter(Package, Inner, false);
	EXPECT_EQ(Inner, (TArray<UObject*>{ Other, Whole })) << "an object that came back stands last";
	EXPECT_NE(MakeUniqueObjectName(Package, UTestPart::StaticClass(), "Other"), FName("Other"));
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_EQ(Whole->Part->GetPathName(Package), TEXT("Whole:Part"));
	EXPECT_EQ(Whole->Part->GetTypedOuter<UTestWhole>(), Whole);
}

TEST_F(Search, ByOuterAndByClass)
{
	UTestDerivedWhole* const Derived = NewObject<UTestDerivedWhole>(Package, "Searched");
	UTestWhole* const Whole = NewObject<UTestWhole>(Package);
	const TStrongObjectPtr<UObject> Keep[]{ TStrongObjectPtr<UObject>(Derived), TStrongObjectPtr<UObject>(Whole) };
	NewObject<UTestWhole>(Package)->MarkAsGarbage();
	CollectGarbage(RF_NoFlags);
	const auto Iterate = []
	{
		TArray<UTestWhole*> Found;
		for (TObjectIterator<UTestWhole> Object; Object; ++Object)
		{
			Found.Add(*Object);
		}
		return Found;
	};
	EXPECT_EQ(Iterate(), (TArray<UTestWhole*>{ Whole, Derived }));
	Whole->MarkAsGarbage();
	EXPECT_EQ(Iterate(), TArray<UTestWhole*>{ Derived });
	TArray<UObject*> Inner;
	GetObjectsWithOuter(Package, Inner);
	EXPECT_EQ(Inner, (TArray<UObject*>{ Derived, Derived->Part, Whole->Part }));
	TArray<UClass*> Classes;
	GetDerivedClasses(UTestWhole::StaticClass(), Classes);
	EXPECT_EQ(Classes, TArray<UClass*>{ UTestDerivedWhole::StaticClass() });
	EXPECT_EQ(FindFirstObject<UClass>(TEXT("testwhole")), UTestWhole::StaticClass());
	EXPECT_EQ(FindFirstObject<UTestWhole>(TEXT("Searched")), Derived);
	EXPECT_EQ(FindFirstObject<UTestWhole>(TEXT("Searched"), EFindFirstObjectOptions::ExactClass), nullptr);
}

TEST_F(Recording, TellsAnOpenTransactionOfChangesAndOfNewObjects)
{
	struct FTransaction final : ITransaction
	{
		FTransaction() { GUndo = this; }
		~FTransaction() override { GUndo = nullptr; }
		void SaveObject(UObject* Object) override { Records.Add((IsValid(Object) ? TEXT("changed ") : TEXT("new ")) + Object->GetName()); }
		TArray<FString> Records;
	};
	UTestPart* const Part = NewObject<UTestPart>(Package, "Old", RF_Transactional);
	UTestPart* const Untold = NewObject<UTestPart>(Package, "Untold");
	Package->SetDirtyFlag(false);
	EXPECT_FALSE(Part->Modify(false));
	EXPECT_FALSE(Package->IsDirty());
	{
		FTransaction Transaction;
		EXPECT_TRUE(Part->Modify(false));
		EXPECT_TRUE(Package->IsDirty());
		EXPECT_FALSE(Untold->Modify());
		NewObject<UTestWhole>(Package, "New", RF_Transactional);
		NewObject<UTestPart>(Package);
		Part->Rename(TEXT("Renamed"));
		Part->Rename(TEXT("Again"), nullptr, REN_NonTransactional);
		EXPECT_EQ(Transaction.Records, (TArray<FString>{ TEXT("changed Old"), TEXT("new Part"), TEXT("new New"), TEXT("changed Old") }));
	}
	EXPECT_TRUE(IsValid(FindObject<UTestWhole>(Package, TEXT("New"))));
	Package->SetDirtyFlag(false);
	EXPECT_FALSE(Untold->Modify());
	EXPECT_TRUE(Package->IsDirty());
}
