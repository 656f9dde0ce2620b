#include "TestObject.h"
#include "TestSettings.h"
#include "TestSupport.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
FString GetCppType(const TCHAR* Property)
{
	const FProperty* const Found = UTestObject::StaticClass()->FindPropertyByName(Property);
	return Found ? Found->GetCPPType() : FString(TEXT("(missing)"));
}
}

// First of all tests, before any of them has named the class in code.
TEST(ARegistration, MakesTypesOfALoadedModuleFindable)
{
	UClass* const Class = FindObject<UClass>(nullptr, TEXT("/Script/TestObjects.TestObject"));
	ASSERT_NE(Class, nullptr);
	EXPECT_NE(Class->GetDefaultObject(false), nullptr);
	EXPECT_EQ(Class, UTestObject::StaticClass());
	EXPECT_NE(FindObject<UEnum>(nullptr, TEXT("/Script/TestObjects.ETestMode")), nullptr);
	EXPECT_NE(FindObject<UScriptStruct>(nullptr, TEXT("/Script/TestObjects.TestItem")), nullptr);
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/TestObjects.TestItem")), nullptr);
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/TestObjects.Nothing")), nullptr);
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("")), nullptr);
}

TEST(Class, KnowsItsNamesAndItsPlace)
{
	const UClass* const Class = UTestDerivedSettings::StaticClass();
	EXPECT_EQ(Class->GetName(), TEXT("TestDerivedSettings"));
	EXPECT_EQ(Class->GetPathName(), TEXT("/Script/TestObjects.TestDerivedSettings"));
	EXPECT_EQ(Class->GetFullName(), TEXT("Class /Script/TestObjects.TestDerivedSettings"));
	EXPECT_EQ(Class->GetSuperClass(), UTestSettings::StaticClass());
	EXPECT_TRUE(Class->IsChildOf<UObject>());
	EXPECT_FALSE(UTestSettings::StaticClass()->IsChildOf(Class));
	EXPECT_EQ(Class->GetClass(), UClass::StaticClass());
	EXPECT_EQ(UClass::StaticClass()->GetClass(), UClass::StaticClass());
	EXPECT_EQ(Class->GetPackage()->GetName(), TEXT("/Script/TestObjects"));
	EXPECT_EQ(Class->ClassConfigName, FName(TEXT("TestGame")));
	EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_DefaultConfig)) << "inherited";
	EXPECT_TRUE(UTestBase::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(UTestOther::StaticClass()->HasAnyClassFlags(CLASS_Abstract)) << "not inherited";
	EXPECT_EQ(FString(UTestSettings::StaticConfigName()), TEXT("TestGame"));
	EXPECT_EQ(UTestObject::StaticClass()->GetMetaData("Note"), TEXT("on the class"));
	EXPECT_EQ(UTestObject::StaticClass()->GetToolTipText().ToString(), TEXT("Has a property of each kind."));
}

TEST(Class, HasADefaultObject)
{
	UObject* const Defaults = UTestOther::StaticClass()->GetDefaultObject();
	EXPECT_EQ(Defaults->GetPathName(), TEXT("/Script/TestObjects.Default__TestOther"));
	EXPECT_TRUE(Defaults->IsTemplate());
	EXPECT_EQ(Defaults, GetDefault<UTestOther>());
	EXPECT_EQ(GetDefault<UTestOther>()->ClassSeenByConstructor, FName(TEXT("TestOther")));
	EXPECT_NE(Cast<UTestBase>(Defaults), nullptr);
	EXPECT_EQ(Cast<UTestObject>(Defaults), nullptr);
}

TEST(Property, LiesWhereTheMemberLies)
{
	UTestObject* const Object = NewObject<UTestObject>();
	struct
	{
		const TCHAR* Name;
		const TCHAR* CppType;
		const void* Address;
	} const Cases[] = {
		{ TEXT("bWhole"), TEXT("bool"), &Object->bWhole },
		{ TEXT("Byte"), TEXT("uint8"), &Object->Byte },
		{ TEXT("Number"), TEXT("int32"), &Object->Number },
		{ TEXT("BigNumber"), TEXT("int64"), &Object->BigNumber },
		{ TEXT("Real"), TEXT("float"), &Object->Real },
		{ TEXT("Precise"), TEXT("double"), &Object->Precise },
		{ TEXT("Text"), TEXT("FString"), &Object->Text },
		{ TEXT("Name"), TEXT("FName"), &Object->Name },
		{ TEXT("Title"), TEXT("FText"), &Object->Title },
		{ TEXT("Mode"), TEXT("ETestMode"), &Object->Mode },
		{ TEXT("Wide"), TEXT("ETestWide"), &Object->Wide },
		{ TEXT("Old"), TEXT("TEnumAsByte<ETestOld>"), &Object->Old },
		{ TEXT("Smart"), TEXT("TObjectPtr<UTestObject>"), &Object->Smart },
		{ TEXT("Raw"), TEXT("TObjectPtr<UTestOther>"), &Object->Raw },
		{ TEXT("Type"), TEXT("TSubclassOf<UTestObject>"), &Object->Type },
		{ TEXT("Item"), TEXT("FTestItem"), &Object->Item },
		{ TEXT("Items"), TEXT("TArray<FTestDerivedItem>"), &Object->Items },
		{ TEXT("Objects"), TEXT("TArray<TObjectPtr<UObject>>"), &Object->Objects },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Name));
		EXPECT_EQ(GetCppType(Each.Name), Each.CppType);
		const FProperty* const Property = UTestObject::StaticClass()->FindPropertyByName(Each.Name);
		EXPECT_EQ(Property->ContainerPtrToValuePtr<void>(Object), Each.Address);
		EXPECT_EQ(Property->GetOwnerClass(), UTestObject::StaticClass());
	}
	EXPECT_EQ(GetCppType(TEXT("bHiddenBit")), TEXT("(missing)"));
}

TEST(Property, OfABitTouchesNoOther)
{
	UTestObject* const Object = NewObject<UTestObject>();
	const FBoolProperty* const First = FindFProperty<FBoolProperty>(UTestObject::StaticClass(), TEXT("bFirstBit"));
	const FBoolProperty* const Second = FindFProperty<FBoolProperty>(UTestObject::StaticClass(), TEXT("bSecondBit"));
	EXPECT_FALSE(First->GetPropertyValue_InContainer(Object));
	EXPECT_TRUE(Second->GetPropertyValue_InContainer(Object));
	First->SetPropertyValue_InContainer(Object, true);
	Second->SetPropertyValue_InContainer(Object, false);
	EXPECT_TRUE(Object->bFirstBit);
	EXPECT_TRUE(Object->bHiddenBit);
	EXPECT_FALSE(Object->bSecondBit);
	EXPECT_TRUE(Object->bWhole);
	EXPECT_EQ(FindFProperty<FIntProperty>(UTestObject::StaticClass(), TEXT("bFirstBit")), nullptr) << "of another kind";
}

TEST(Property, CarriesFlagsAndMetadata)
{
	const FProperty* const Property = UTestObject::StaticClass()->FindPropertyByName(TEXT("bWhole"));
	EXPECT_EQ(Property->GetPropertyFlags(), CPF_Edit | CPF_BlueprintVisible);
	EXPECT_EQ(Property->GetMetaData("Category"), TEXT("Test|Flags"));
	EXPECT_EQ(Property->GetDisplayNameText().ToString(), TEXT("It Is"));
	EXPECT_EQ(Property->GetToolTipText().ToString(), TEXT("Whether \\ \"it\" is so."));
	EXPECT_TRUE(Property->HasMetaData("extra"));
	EXPECT_FALSE(Property->HasMetaData("Other"));
	const FProperty* const Bit = UTestObject::StaticClass()->FindPropertyByName(TEXT("bFirstBit"));
	EXPECT_EQ(Bit->GetDisplayNameText().ToString(), TEXT("First Bit"));
	EXPECT_EQ(Bit->GetToolTipText().ToString(), TEXT("First Bit"));
}

TEST(Property, AreIteratedFromTheClassToItsSuperClasses)
{
	TArray<FString> Names;
	for (TFieldIterator<FProperty> Property(UTestDerivedSettings::StaticClass()); Property; ++Property)
	{
		Names.Add(Property->GetName());
	}
	EXPECT_EQ(FString::Join(Names, TEXT(" ")), TEXT("Own Key bShown Limit Mode Words Item Shared NotSaved"));
	const TFieldIterator<FProperty> Nothing(UTestSettings::StaticClass()->GetSuperClass());
	EXPECT_FALSE(Nothing);
	const TFieldIterator<FBoolProperty> First(UTestDerivedSettings::StaticClass());
	EXPECT_EQ(First->GetName(), TEXT("bShown")) << "of the kind asked for";
}

TEST(Enum, KnowsNamesValuesAndTexts)
{
	const UEnum* const Mode = StaticEnum<ETestMode>();
	EXPECT_EQ(Mode->GetName(), TEXT("ETestMode"));
	EXPECT_EQ(Mode->NumEnums(), 3) << "with the one at the end";
	EXPECT_EQ(Mode->GetNameByIndex(1), FName(TEXT("ETestMode::VeryFast")));
	EXPECT_EQ(Mode->GetNameStringByIndex(2), TEXT("ETestMode_MAX"));
	EXPECT_EQ(Mode->GetValueByIndex(2), 8);
	EXPECT_EQ(Mode->GetNameStringByValue(7), TEXT("VeryFast"));
	EXPECT_EQ(Mode->GetNameStringByValue(3), TEXT(""));
	EXPECT_EQ(Mode->GetDisplayNameTextByValue(0).ToString(), TEXT("Quite Slow"));
	EXPECT_EQ(Mode->GetDisplayNameTextByValue(7).ToString(), TEXT("Very Fast"));
	EXPECT_EQ(Mode->GetToolTipTextByIndex(0).ToString(), TEXT("Without haste."));
	EXPECT_EQ(Mode->GetToolTipText().ToString(), TEXT("How it is done."));
	struct
	{
		const TCHAR* Name;
		int64 Value;
	} const Cases[] = { { TEXT("VeryFast"), 7 }, { TEXT("veryfast"), 7 }, { TEXT("ETestMode::VeryFast"), 7 },
		{ TEXT("EOther::VeryFast"), INDEX_NONE }, { TEXT("Fast"), INDEX_NONE }, { TEXT(""), INDEX_NONE }, { TEXT("::"), INDEX_NONE } };
	for (const auto& Each : Cases)
	{
		EXPECT_EQ(Mode->GetValueByNameString(Each.Name), Each.Value) << TCHAR_TO_UTF8(Each.Name);
	}
	EXPECT_EQ(StaticEnum<ETestWide>()->NumEnums(), 3) << "has an end of its own";
	EXPECT_EQ(StaticEnum<ETestOld>()->GetNameByIndex(1), FName(TEXT("Old_Second"))) << "no enum class";
}

TEST(Struct, IsHandledWithoutItsCppType)
{
	const UScriptStruct* const Struct = FTestDerivedItem::StaticStruct();
	EXPECT_EQ(Struct->GetStructureSize(), static_cast<int32>(sizeof(FTestDerivedItem)));
	EXPECT_EQ(Struct->GetSuperStruct(), FTestItem::StaticStruct());
	EXPECT_EQ(TBaseStructure<FTestDerivedItem>::Get(), Struct);
	alignas(FTestDerivedItem) uint8 Memory[2][sizeof(FTestDerivedItem)];
	for (uint8(&Each)[sizeof(FTestDerivedItem)] : Memory)
	{
		Struct->InitializeStruct(Each);
	}
	auto& First = *reinterpret_cast<FTestDerivedItem*>(Memory[0]);
	const auto& Second = *reinterpret_cast<const FTestDerivedItem*>(Memory[1]);
	EXPECT_EQ(First.Weight, 0.5f);
	First.Tags.Add(TEXT("a tag that is long enough to lie on the heap"));
	EXPECT_FALSE(Struct->CompareScriptStruct(&First, &Second)) << "by a member of the super struct";
	Struct->CopyScriptStruct(Memory[1], Memory[0]);
	EXPECT_TRUE(Struct->CompareScriptStruct(&First, &Second));
	EXPECT_EQ(Second.Tags[0], First.Tags[0]);
	Struct->DestroyStruct(Memory[0]);
	Struct->DestroyStruct(Memory[1]);
}

TEST(ArrayHelper, GrowsShrinksAndEmpties)
{
	UTestObject* const Object = NewObject<UTestObject>();
	const FArrayProperty* const Property = FindFProperty<FArrayProperty>(UTestObject::StaticClass(), TEXT("Texts"));
	FScriptArrayHelper Helper(Property, &Object->Texts);
	for (int32 Index = 0; Index < 20; ++Index)
	{
		*reinterpret_cast<FString*>(Helper.GetRawPtr(Helper.AddValue())) = FString::FromInt(Index);
	}
	ASSERT_EQ(Object->Texts.Num(), 20);
	EXPECT_EQ(Object->Texts[19], TEXT("19"));
	EXPECT_EQ(Object->Texts[0], TEXT("0"));
	Object->Texts.Add(TEXT("by the C++ type"));
	Helper.Resize(3);
	EXPECT_EQ(Object->Texts.Num(), 3);
	Helper.EmptyValues();
	EXPECT_EQ(Object->Texts.Max(), 0);
}

TEST(Function, IsCalledThroughReflection)
{
	UTestObject* const Object = NewObject<UTestObject>();
	UFunction* const Join = Object->FindFunction("Join");
	ASSERT_NE(Join, nullptr);
	EXPECT_TRUE(Join->HasAnyFunctionFlags(FUNC_Const));
	EXPECT_TRUE(Join->HasAnyFunctionFlags(FUNC_HasOutParms));
	EXPECT_EQ(Join->GetOwnerClass(), UTestObject::StaticClass());
	EXPECT_EQ(Join->GetToolTipText().ToString(), TEXT("Joins."));
	EXPECT_EQ(Join->GetReturnProperty()->GetCPPType(), TEXT("FString"));
	struct FParms
	{
		TArray<FString> Parts;
		FString Separator;
		int32 OutLength;
		FString ReturnValue;
	} Parms{ { TEXT("a"), TEXT("b") }, TEXT("+"), 0, {} };
	ASSERT_EQ(Join->GetStructureSize(), static_cast<int32>(sizeof(Parms)));
	Object->ProcessEvent(Join, &Parms);
	EXPECT_EQ(Parms.ReturnValue, TEXT("a+b"));
	EXPECT_EQ(Parms.OutLength, 3);

	int32 Twice[2] = { 21, 0 };
	Object->ProcessEvent(Object->FindFunction("Twice"), Twice);
	EXPECT_EQ(Twice[1], 42);
	UFunction* const Reset = Object->FindFunction("Reset");
	EXPECT_EQ(Reset->GetReturnProperty(), nullptr);
	EXPECT_TRUE(Reset->HasAnyFunctionFlags(FUNC_Protected));
	Object->ProcessEvent(Reset, nullptr);
	EXPECT_EQ(Object->Number, -1);
	EXPECT_EQ(Object->FindFunction("Nothing"), nullptr);
}
