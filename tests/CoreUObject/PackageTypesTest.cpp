#include "PackageSupport.h"
#include "UObject/UnrealType.h"

namespace
{
/** Types that lie in packages themselves, as Blueprints' do. */
class PackageTypes : public Packages
{
protected:
	/** A class with a number and a text beyond what its super class has. */
	static UClass* MakeClass(const TCHAR* PackageName, UClass* Super, FName Number)
	{
		const FString Name = FPackageName::GetShortName(FString(PackageName)) + TEXT("_C");
		UClass* const Class = NewObject<UClass>(CreatePackage(PackageName), *Name, RF_Public | RF_Standalone);
		Class->SetSuperStruct(Super);
		Class->AddCppProperty(new FIntProperty(Class, Number));
		Class->AddCppProperty(new FStrProperty(Class, "Text"));
		FObjectProperty* const Other = new FObjectProperty(Class, "Other");
		Other->PropertyClass = UObject::StaticClass();
		Class->AddCppProperty(Other);
		Class->Bind();
		Class->StaticLink();
		SetText(Class->GetDefaultObject(), TEXT("a text too long to lie in the object itself"));
		return Class;
	}
	static UClass* Load(const TCHAR* PackageName)
	{
		return LoadObject<UClass>(
			nullptr, *(FString(PackageName) + TEXT(".") + FPackageName::GetShortName(FString(PackageName)) + TEXT("_C")));
	}

	template <typename PropertyType>
	static auto& Value(UObject* Object, FName Name)
	{
		const auto* const Property = FindFProperty<PropertyType>(Object->GetClass(), Name);
		return *Property->template ContainerPtrToValuePtr<typename PropertyType::TCppType>(Object);
	}
	static int32& Number(UObject* Object, FName Name) { return Value<FIntProperty>(Object, Name); }
	static UObject*& Other(UObject* Object) { return reinterpret_cast<UObject*&>(Value<FObjectProperty>(Object, "Other")); }
	static void SetText(UObject* Object, const TCHAR* Text) { Value<FStrProperty>(Object, "Text") = Text; }
	static FString GetText(UObject* Object) { return Value<FStrProperty>(Object, "Text"); }
};
}

TEST_F(PackageTypes, ComeBackWithTheirDefaultsAndBeforeTheirObjects)
{
	UClass* const Parent = MakeClass(TEXT("/Game/Parent"), UTestWhole::StaticClass(), "Mine");
	Number(Parent->GetDefaultObject(), "Mine") = 4;
	static_cast<UTestWhole*>(Parent->GetDefaultObject())->Part->Number = 40;
	UClass* const Child = MakeClass(TEXT("/Game/Child"), Parent, "Yours");
	Number(Child->GetDefaultObject(), "Yours") = 5;
	UObject* const Asset = NewObject<UObject>(CreatePackage(TEXT("/Game/Asset")), Child, "Asset", RF_Public | RF_Standalone);
	EXPECT_EQ(Number(Asset, "Mine"), 4);
	Number(Asset, "Yours") = 6;
	SetText(Asset, TEXT("its own"));
	ASSERT_TRUE(Save(Parent) && Save(Child) && Save(Asset));
	Forget();
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Parent")), nullptr);

	// The parent gets other defaults: what the child and the asset have not changed follows.
	UClass* const Changed = Load(TEXT("/Game/Parent"));
	ASSERT_NE(Changed, nullptr);
	EXPECT_EQ(Number(Changed->GetDefaultObject(), "Mine"), 4);
	Number(Changed->GetDefaultObject(), "Mine") = 7;
	static_cast<UTestWhole*>(Changed->GetDefaultObject())->Part->Number = 70;
	ASSERT_TRUE(Save(Changed));
	Forget();

	UTestWhole* const Loaded = LoadObject<UTestWhole>(nullptr, TEXT("/Game/Asset.Asset"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->GetClass()->GetPathName(), TEXT("/Game/Child.Child_C"));
	EXPECT_EQ(Loaded->GetClass()->GetSuperClass()->GetPathName(), TEXT("/Game/Parent.Parent_C"));
	EXPECT_EQ(Number(Loaded, "Mine"), 7);
	EXPECT_EQ(Number(Loaded, "Yours"), 6);
	EXPECT_EQ(GetText(Loaded), TEXT("its own"));
	EXPECT_EQ(Loaded->Part->Number, 70);
	EXPECT_EQ(Number(Loaded->GetClass()->GetDefaultObject(), "Yours"), 5);
	EXPECT_EQ(Loaded->GetClass()->GetDefaultObject()->GetPathName(), TEXT("/Game/Child.Default__Child_C"));
	EXPECT_TRUE(Log.Lines.IsEmpty()) << TCHAR_TO_UTF8(*FString::Join(Log.Lines, TEXT("\n")));
}

TEST_F(PackageTypes, MayReferToEachOtherInCircles)
{
	UClass* const First = MakeClass(TEXT("/Game/First"), UTestPart::StaticClass(), "Number");
	UClass* const Second = MakeClass(TEXT("/Game/Second"), First, "Another");
	FindFProperty<FObjectProperty>(First, "Other")->PropertyClass = Second;
	UObject* const Held = NewObject<UObject>(First->GetPackage(), Second, "Held");
	Other(First->GetDefaultObject()) = Held;
	Number(Held, "Another") = 3;
	ASSERT_TRUE(Save(First) && Save(Second));
	for (const TCHAR* const Begin : { TEXT("/Game/First"), TEXT("/Game/Second") })
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Begin));
		Forget();
		ASSERT_NE(Load(Begin), nullptr);
		UClass* const Loaded = FindObject<UClass>(nullptr, TEXT("/Game/First.First_C"));
		ASSERT_NE(Loaded, nullptr);
		EXPECT_EQ(GetPathNameSafe(FindFProperty<FObjectProperty>(Loaded, "Other")->PropertyClass), TEXT("/Game/Second.Second_C"));
		UObject* const Object = Other(Loaded->GetDefaultObject());
		ASSERT_NE(Object, nullptr);
		EXPECT_EQ(Number(Object, "Another"), 3);
	}
}

TEST_F(PackageTypes, WithoutTheirParentLiveOnWithWhatTheyHave)
{
	UClass* const Parent = MakeClass(TEXT("/Game/Parent"), UTestPart::StaticClass(), "Mine");
	UClass* const Child = MakeClass(TEXT("/Game/Child"), Parent, "Yours");
	Number(Child->GetDefaultObject(), "Yours") = 5;
	ASSERT_TRUE(Save(Child));
	Forget();
	UClass* const Loaded = Load(TEXT("/Game/Child"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_TRUE(Log.HasLineWith(TEXT("the parent class of Child_C is missing")));
	EXPECT_EQ(Loaded->GetSuperClass(), UObject::StaticClass());
	EXPECT_EQ(Number(Loaded->GetDefaultObject(), "Yours"), 5);
}

TEST_F(PackageTypes, ThatDeriveFromEachOtherAreRefused)
{
	for (const auto& [ParentName, ChildName] : { std::pair(TEXT("/Game/A"), TEXT("/Game/B")), std::pair(TEXT("/Game/B"), TEXT("/Game/A")) })
	{
		UClass* const Parent = MakeClass(ParentName, UTestPart::StaticClass(), "Number");
		ASSERT_TRUE(Save(MakeClass(ChildName, Parent, "Number")));
		Forget();
	}
	EXPECT_EQ(Load(TEXT("/Game/A")), nullptr);
	EXPECT_TRUE(Log.HasLineWith(TEXT("derives from")));
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/A")), nullptr);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/B")), nullptr);
}

TEST_F(PackageTypes, StructsAndEnumsAreThereBeforeTheClassesThatHaveThem)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Types"));
	UScriptStruct* const Struct = NewObject<UScriptStruct>(Package, "Pair", RF_Public | RF_Standalone);
	Struct->AddCppProperty(new FStrProperty(Struct, "First"));
	Struct->AddCppProperty(new FIntProperty(Struct, "Second"));
	Struct->StaticLink();
	UClass* const Class = NewObject<UClass>(CreatePackage(TEXT("/Game/Holder")), "Holder_C", RF_Public | RF_Standalone);
	Class->SetSuperStruct(UTestPart::StaticClass());
	FStructProperty* const Property = new FStructProperty(Class, "Held");
	Property->Struct = Struct;
	Class->AddCppProperty(Property);
	Class->Bind();
	Class->StaticLink();
	const auto Second = [](UObject* Object)
	{
		const FStructProperty* const Held = FindFProperty<FStructProperty>(Object->GetClass(), "Held");
		return FindFProperty<FIntProperty>(Held->Struct, "Second")
			->ContainerPtrToValuePtr<int32>(Held->ContainerPtrToValuePtr<void>(Object));
	};
	*Second(Class->GetDefaultObject()) = 12;
	ASSERT_TRUE(Save(Struct) && Save(Class));
	Forget();
	UClass* const Loaded = Load(TEXT("/Game/Holder"));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(*Second(Loaded->GetDefaultObject()), 12);
	EXPECT_EQ(GetPathNameSafe(FindFProperty<FStructProperty>(Loaded, "Held")->Struct), TEXT("/Game/Types.Pair"));
}
