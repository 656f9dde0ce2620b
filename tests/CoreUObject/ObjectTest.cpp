#include "TestObject.h"
#include "TestSupport.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

#include <gtest/gtest.h>

namespace
{
int32 Collect(EObjectFlags KeepFlags = RF_NoFlags)
{
	UTestObject::Destroyed = 0;
	CollectGarbage(KeepFlags);
	return UTestObject::Destroyed;
}

class GarbageCollection : public testing::Test
{
protected:
	void SetUp() override
	{
		Collect();
		Root = NewObject<UTestObject>();
		Root->AddToRoot();
	}
	void TearDown() override
	{
		Root->RemoveFromRoot();
		Collect();
	}

	UTestObject* Root = nullptr;
};
}

TEST(NewObject, NamesObjectsByClassOrAsToldTo)
{
	UTestObject* const Outer = NewObject<UTestObject>(GetTransientPackage(), "Outer");
	EXPECT_EQ(Outer->GetPathName(), TEXT("/Engine/Transient.Outer"));
	UTestObject* const Inner = NewObject<UTestObject>(Outer);
	EXPECT_TRUE(Inner->GetName().StartsWith(TEXT("TestObject_")));
	EXPECT_EQ(Inner->GetPathName(), TEXT("/Engine/Transient.Outer:") + Inner->GetName());
	UTestObject* const Innermost = NewObject<UTestObject>(Inner, "Innermost");
	EXPECT_EQ(FindObject<UObject>(nullptr, *Innermost->GetPathName()), Innermost);
	EXPECT_EQ(FindObject<UObject>(Inner, TEXT("innermost")), Innermost);
	EXPECT_NE(Inner->GetFName(), NewObject<UTestObject>(Outer)->GetFName());
	EXPECT_TRUE(Innermost->IsIn(Outer));
	EXPECT_FALSE(Outer->IsIn(Innermost));
	EXPECT_EQ(Innermost->GetPackage(), GetTransientPackage());
	Collect();
}

TEST(NewObject, CopiesATemplate)
{
	UTestObject* const Template = NewObject<UTestObject>();
	Template->Texts = { TEXT("a"), TEXT("b") };
	Template->bFirstBit = 1;
	Template->Item.Owner = Template;
	const UTestObject* const Copy = NewObject<UTestObject>(GetTransientPackage(), NAME_None, RF_Transient, Template);
	EXPECT_EQ(Copy->Texts, Template->Texts);
	EXPECT_TRUE(Copy->bFirstBit);
	EXPECT_EQ(Copy->Item.Owner.Get(), Template);
	EXPECT_TRUE(Copy->HasAnyFlags(RF_Transient));
	Collect();
}

TEST_F(GarbageCollection, KeepsWhatRootsReachAndDestroysTheRest)
{
	struct
	{
		const char* Name;
		TFunction<void(UTestObject* Holder, UTestObject* Object)> Refer;
		int32 Destroyed;
	} const Cases[] = {
		{ "nothing refers", [](UTestObject*, UTestObject*) {}, 1 },
		{ "a pointer", [](UTestObject* Holder, UTestObject* Object) { Holder->Smart = Object; }, 0 },
		{ "an array", [](UTestObject* Holder, UTestObject* Object) { Holder->Objects.Add(Object); }, 0 },
		{ "a struct", [](UTestObject* Holder, UTestObject* Object) { Holder->Item.Owner = Object; }, 0 },
		{ "an array of structs", [](UTestObject* Holder, UTestObject* Object) { Holder->Items.AddDefaulted_GetRef().Owner = Object; }, 0 },
		{ "over another object",
			[](UTestObject* Holder, UTestObject* Object) {
				Holder->Raw = NewObject<UTestOther>();
				Holder->Raw->Friends.Add(Object);
			},
			0 },
		{ "only itself", [](UTestObject*, UTestObject* Object) { Object->Smart = Object; }, 1 },
		{ "an object inside", [](UTestObject* Holder, UTestObject* Object) { Holder->Smart = NewObject<UTestObject>(Object); }, 0 },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(Each.Name);
		UTestObject* const Object = NewObject<UTestObject>();
		const TWeakObjectPtr<UTestObject> Weak = Object;
		Each.Refer(Root, Object);
		EXPECT_EQ(Collect(), Each.Destroyed);
		EXPECT_EQ(Weak.IsValid(), Each.Destroyed == 0);
		EXPECT_EQ(Weak.IsStale(), Each.Destroyed != 0);
		Root->Smart = nullptr;
		Root->Raw = nullptr;
		Root->Item.Owner = nullptr;
		Root->Objects.Empty();
		Root->Items.Empty();
		Collect();
		EXPECT_FALSE(Weak.IsValid());
	}
}

TEST_F(GarbageCollection, HeedsKeepFlagsAndRoots)
{
	const TWeakObjectPtr<UTestObject> Standalone = NewObject<UTestObject>(GetTransientPackage(), NAME_None, RF_Standalone);
	Standalone->Smart = NewObject<UTestObject>();
	EXPECT_EQ(Collect(GARBAGE_COLLECTION_KEEPFLAGS), 0);
	EXPECT_EQ(GARBAGE_COLLECTION_KEEPFLAGS, RF_Standalone);
	EXPECT_TRUE(Standalone.IsValid());
	EXPECT_EQ(Collect(), 2);
	EXPECT_FALSE(Standalone.IsValid());
	EXPECT_NE(UTestObject::StaticClass()->GetDefaultObject(false), nullptr);
}

TEST_F(GarbageCollection, DestroysARingOfObjectsAndReusesTheirPlaces)
{
	UTestObject* const First = NewObject<UTestObject>(GetTransientPackage(), "Ring");
	First->Smart = NewObject<UTestObject>(First);
	First->Smart->Smart = First;
	const TWeakObjectPtr<UTestObject> Weak = First;
	EXPECT_EQ(Collect(), 2);
	UTestObject* const Again = NewObject<UTestObject>(GetTransientPackage(), "Ring");
	EXPECT_TRUE(IsValid(Again));
	EXPECT_EQ(Weak.Get(), nullptr) << "though an object has its place and name again";
	EXPECT_EQ(Collect(), 1);
}
