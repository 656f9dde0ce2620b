#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "TestParts.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

// Classes and structs that are made while the program runs.

namespace
{
template <typename PropertyType>
PropertyType* Add(UStruct* Struct, const TCHAR* Name)
{
	PropertyType* const Property = new PropertyType(Struct, FName(Name), RF_Public);
	Struct->AddCppProperty(Property);
	return Property;
}

UClass* MakeClass(UClass* Super, const TCHAR* Name, TFunctionRef<void(UClass*)> AddMembers)
{
	UClass* const Class = NewObject<UClass>(GetTransientPackage(), Name);
	Class->SetSuperStruct(Super);
	Class->Bind();
	AddMembers(Class);
	Class->StaticLink();
	return Class;
}

template <typename T>
T& Value(UObject* Object, const TCHAR* Name)
{
	return *Object->GetClass()->FindPropertyByName(Name)->ContainerPtrToValuePtr<T>(Object);
}

/** Writes what differs from the default object, and reads it into an object of another class. */
void Copy(UObject* From, UObject* To)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	const UClass* const Class = From->GetClass();
	Class->SerializeTaggedProperties(Writer, From, Class, Class->GetDefaultObject());
	FMemoryReader Reader(Bytes);
	To->GetClass()->SerializeTaggedProperties(Reader, To, To->GetClass(), To->GetClass()->GetDefaultObject());
	EXPECT_FALSE(Reader.IsError());
	EXPECT_EQ(Reader.Tell(), Reader.TotalSize());
}
}

TEST(RunTimeClass, HasItsPropertiesBehindThoseOfItsSuperClassAndDefaultsOfItsOwn)
{
	const TStrongObjectPtr<UClass> Base(MakeClass(UTestPart::StaticClass(), TEXT("RunTimeBase"),
		[](UClass* Class)
		{
		Add<FBoolProperty>(Class, TEXT("bOpen"));
		Add<FStrProperty>(Class, TEXT("Label"));
	}));
	const TStrongObjectPtr<UClass> Child(
		MakeClass(Base.Get(), TEXT("RunTimeChild"), [](UClass* Class) { Add<FDoubleProperty>(Class, TEXT("Weight")); }));
	Value<FString>(Base->GetDefaultObject(), TEXT("Label")) = TEXT("a label that is long enough to lie on the heap");
	Value<double>(Child->GetDefaultObject(), TEXT("Weight")) = 2.5;

	const TStrongObjectPtr<UObject> Object(NewObject<UObject>(GetTransientPackage(), Child.Get()));
	EXPECT_EQ(CastChecked<UTestPart>(Object.Get())->Number, 1);
	EXPECT_EQ(Value<FString>(Object.Get(), TEXT("Label")), TEXT("a label that is long enough to lie on the heap"));
	EXPECT_EQ(Value<double>(Object.Get(), TEXT("Weight")), 2.5);
	EXPECT_GE(Child->FindPropertyByName(TEXT("bOpen"))->GetOffset_ForInternal(), UTestPart::StaticClass()->GetPropertiesSize());
	EXPECT_EQ(Child->FindPropertyByName(TEXT("Weight"))->GetOffset_ForInternal() % static_cast<int32>(alignof(double)), 0);
}

TEST(RunTimeClass, TaggedPropertiesSurviveAddedRemovedAndChangedOnes)
{
	const TStrongObjectPtr<UClass> Before(MakeClass(UTestPart::StaticClass(), TEXT("Before"),
		[](UClass* Class)
		{
		Add<FStrProperty>(Class, TEXT("Kept"));
		Add<FStrProperty>(Class, TEXT("Removed"));
		Add<FIntProperty>(Class, TEXT("Changed"));
		Add<FIntProperty>(Class, TEXT("Default"));
		Add<FNameProperty>(Class, TEXT("Last"));
	}));
	const TStrongObjectPtr<UClass> After(MakeClass(UTestPart::StaticClass(), TEXT("After"),
		[](UClass* Class)
		{
		Add<FNameProperty>(Class, TEXT("Last"));
		Add<FStrProperty>(Class, TEXT("Added"));
		Add<FStrProperty>(Class, TEXT("Changed"));
		Add<FIntProperty>(Class, TEXT("Default"));
		Add<FStrProperty>(Class, TEXT("Kept"));
	}));
	Value<int32>(Before->GetDefaultObject(), TEXT("Default")) = 3;
	Value<int32>(After->GetDefaultObject(), TEXT("Default")) = 4;
	const TStrongObjectPtr<UObject> From(NewObject<UObject>(GetTransientPackage(), Before.Get()));
	const TStrongObjectPtr<UObject> To(NewObject<UObject>(GetTransientPackage(), After.Get()));
	Value<FString>(From.Get(), TEXT("Kept")) = TEXT("kept");
	Value<FString>(From.Get(), TEXT("Removed")) = TEXT("removed");
	Value<int32>(From.Get(), TEXT("Changed")) = 5;
	Value<FName>(From.Get(), TEXT("Last")) = TEXT("last");
	CastChecked<UTestPart>(From.Get())->Number = 9;

	Copy(From.Get(), To.Get());
	EXPECT_EQ(Value<FString>(To.Get(), TEXT("Kept")), TEXT("kept"));
	EXPECT_EQ(Value<FString>(To.Get(), TEXT("Added")), TEXT(""));
	EXPECT_EQ(Value<FString>(To.Get(), TEXT("Changed")), TEXT("")) << "of another type now";
	EXPECT_EQ(Value<int32>(To.Get(), TEXT("Default")), 4) << "which was not written";
	EXPECT_EQ(Value<FName>(To.Get(), TEXT("Last")), TEXT("last"));
	EXPECT_EQ(CastChecked<UTestPart>(To.Get())->Number, 9);
}

TEST(RunTimeClass, ReferencesOfItsPropertiesAreSeenByTheCollector)
{
	const TStrongObjectPtr<UClass> Class(MakeClass(UTestPart::StaticClass(), TEXT("Referring"),
		[](UClass* Made) { Add<FObjectProperty>(Made, TEXT("Target"))->PropertyClass = UObject::StaticClass(); }));
	const TStrongObjectPtr<UObject> Object(NewObject<UObject>(GetTransientPackage(), Class.Get()));
	UTestPart* const Target = NewObject<UTestPart>();
	Value<UObject*>(Object.Get(), TEXT("Target")) = Target;
	const TWeakObjectPtr<UTestPart> Weak(Target);
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
	Value<UObject*>(Object.Get(), TEXT("Target")) = nullptr;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}
