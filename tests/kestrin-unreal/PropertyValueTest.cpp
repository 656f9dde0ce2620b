#include "GameFramework/Actor.h"
#include "Support/BlueprintAccess.h"
#include "TestKinds.h"
#include "UObject/TextProperty.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace
{
FProperty* Find(const UObject& Object, const char* Name)
{
	FProperty* const Property = Object.GetClass()->FindPropertyByName(Name);
	EXPECT_NE(Property, nullptr) << Name;
	return Property;
}

/** A property whose value can't be written. */
template <typename BaseType>
class TUnwritable final : public BaseType
{
public:
	using BaseType::BaseType;

protected:
	void ExportText_Internal(FString&, const void*, const void*, UObject*, int32, UObject*) const override
	{
		throw std::runtime_error("unwritable");
	}
};

template <typename BaseType>
std::string GetValueOfUnwritable()
{
	UTestObject* const Object = NewObject<UTestObject>();
	TUnwritable<BaseType> Property(Object->GetClass(), TEXT("Unwritable"));
	return FAccess::GetValue(Object, &Property);
}
}

TEST(PropertyValue, IsTheEnginesText)
{
	UTestKinds* const Kinds = NewObject<UTestKinds>();
	UTestObject* const Object = NewObject<UTestObject>();
	const auto Expect = [](UObject& Holder, const char* Name, const std::string& Text)
	{ EXPECT_EQ(FAccess::GetValue(&Holder, Find(Holder, Name)), Text) << Name; };
	const std::string None = "None";
	for (const char* const Name : { "Weak", "Soft", "SoftClass", "Class" })
	{
		Expect(*Kinds, Name, None);
	}
	Expect(*Object, "Smart", None);
	Expect(*Object, "Text", "");
	Expect(*Object, "Item", R"((Count=1,Label="",Tags=(),Owner=None))");

	UTestKinds* const Friend = NewObject<UTestKinds>(GetTransientPackage(), TEXT("Friend"));
	UTestObject* const Smart = NewObject<UTestObject>(GetTransientPackage(), TEXT("Smart"));
	Kinds->Weak = Friend;
	Kinds->Class = AActor::StaticClass();
	FProperty* const Soft = Find(*Kinds, "Soft");
	Soft->ImportText_InContainer(TEXT("/Game/Doors/Not.Loaded"), Kinds, Kinds, PPF_None);
	Kinds->Place = FVector(1.0, 2.5, -3.0);
	Object->Smart = Smart;
	Object->Text = TEXT("a \"b\"");
	Expect(*Kinds, "Weak", "/Script/TestObjects.TestKinds'" + ToUtf8(Friend->GetPathName()) + "'");
	Expect(*Kinds, "Class", "/Script/CoreUObject.Class'/Script/Engine.Actor'");
	Expect(*Kinds, "Soft", "/Game/Doors/Not.Loaded");
	Expect(*Kinds, "Place", "(X=1.000000,Y=2.500000,Z=-3.000000)");
	Expect(*Object, "Smart", "/Script/TestObjects.TestObject'" + ToUtf8(Smart->GetPathName()) + "'");
	Expect(*Object, "Text", "a \"b\"");
}

TEST(PropertyValue, IsLeftOutByItsFlagsAndInvalidWithoutAPlace)
{
	UTestObject* const Object = NewObject<UTestObject>();
	Object->Number = 5;
	FProperty* const Property = Find(*Object, "Number");
	const EPropertyFlags Own = Property->GetPropertyFlags();
	for (const EPropertyFlags Flag : { CPF_Parm, CPF_Transient, CPF_Deprecated, CPF_EditorOnly, CPF_Edit, CPF_Config, CPF_SaveGame })
	{
		Property->SetPropertyFlags(Flag);
		const bool bShown = Flag == CPF_Edit || Flag == CPF_Config || Flag == CPF_SaveGame;
		EXPECT_EQ(FAccess::GetValue(Object, Property), bShown ? "5" : "") << std::hex << static_cast<uint64>(Flag);
		Property->PropertyFlags = Own;
	}
	EXPECT_EQ(FAccess::GetValue(nullptr, Property), "Invalid");
	EXPECT_EQ(FAccess::GetValue(Object, nullptr), "Invalid");
}

TEST(PropertyValue, ThatCanNotBeWrittenHasATextOfItsKind)
{
	EXPECT_EQ(GetValueOfUnwritable<FIntProperty>(), "0");
	EXPECT_EQ(GetValueOfUnwritable<FDoubleProperty>(), "0");
	EXPECT_EQ(GetValueOfUnwritable<FBoolProperty>(), "False");
	EXPECT_EQ(GetValueOfUnwritable<FNameProperty>(), "");
	EXPECT_EQ(GetValueOfUnwritable<FStrProperty>(), "");
	EXPECT_EQ(GetValueOfUnwritable<FTextProperty>(), "");
	EXPECT_EQ(GetValueOfUnwritable<FEnumProperty>(), "Error");
}
