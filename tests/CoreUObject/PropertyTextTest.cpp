#include "TestObject.h"
#include "TestSupport.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
class PropertyText : public testing::Test
{
protected:
	FString Export(const TCHAR* Name, uint32 PortFlags = PPF_None) const
	{
		FString Text;
		const FProperty* const Property = UTestObject::StaticClass()->FindPropertyByName(Name);
		Property->ExportTextItem_Direct(Text, Property->ContainerPtrToValuePtr<void>(Object), nullptr, Object, PortFlags);
		return Text;
	}

	// What is left of Text behind the value, or "(refused)".
	FString Import(const TCHAR* Name, const TCHAR* Text, uint32 PortFlags = PPF_None) const
	{
		const FProperty* const Property = UTestObject::StaticClass()->FindPropertyByName(Name);
		const TCHAR* const End =
			Property->ImportText_Direct(Text, Property->ContainerPtrToValuePtr<void>(Object), Object, PortFlags, nullptr);
		return End ? FString(End) : FString(TEXT("(refused)"));
	}

	UTestObject* const Object = NewObject<UTestObject>();
};
}

TEST_F(PropertyText, IsInTheEnginesNotation)
{
	Object->Byte = 255;
	Object->Number = -7;
	Object->BigNumber = -9223372036854775807 - 1;
	Object->Real = 1.0f;
	Object->Precise = 1e20;
	Object->Text = TEXT("a \"b\" \\ 'c'\r\n\t,)");
	Object->Name = TEXT("Foo_1");
	Object->Mode = ETestMode::VeryFast;
	Object->Wide = ETestWide::High;
	Object->Old = Old_Second;
	Object->Type = UTestObject::StaticClass();
	Object->Item.Owner = UTestObject::StaticClass();
	Object->Item.Tags = { TEXT("x") };
	Object->Numbers = { 1, 2 };
	Object->Flags = { true, false };
	Object->Texts = { TEXT("a"), TEXT("") };
	struct
	{
		const TCHAR* Name;
		const TCHAR* Text;
		const TCHAR* Delimited; // Null for the same.
	} const Cases[] = {
		{ TEXT("bWhole"), TEXT("True"), nullptr },
		{ TEXT("bFirstBit"), TEXT("False"), nullptr },
		{ TEXT("Byte"), TEXT("255"), nullptr },
		{ TEXT("Number"), TEXT("-7"), nullptr },
		{ TEXT("BigNumber"), TEXT("-9223372036854775808"), nullptr },
		{ TEXT("Real"), TEXT("1.000000"), nullptr },
		{ TEXT("Precise"), TEXT("100000000000000000000.000000"), nullptr },
		{ TEXT("Text"), TEXT("a \"b\" \\ 'c'\r\n\t,)"), TEXT("\"a \\\"b\\\" \\\\ \\'c\\'\\r\\n\\t,)\"") },
		{ TEXT("Name"), TEXT("Foo_1"), TEXT("\"Foo_1\"") },
		{ TEXT("Mode"), TEXT("VeryFast"), nullptr },
		{ TEXT("Wide"), TEXT("High"), nullptr },
		{ TEXT("Old"), TEXT("Old_Second"), nullptr },
		{ TEXT("Smart"), TEXT("None"), nullptr },
		{ TEXT("Type"), TEXT("/Script/CoreUObject.Class'/Script/TestObjects.TestObject'"),
			TEXT("\"/Script/CoreUObject.Class'/Script/TestObjects.TestObject'\"") },
		{ TEXT("Item"), TEXT("(Count=1,Label=\"\",Tags=(\"x\"),Owner=\"/Script/CoreUObject.Class'/Script/TestObjects.TestObject'\")"),
			nullptr },
		{ TEXT("Numbers"), TEXT("(1,2)"), nullptr },
		{ TEXT("Flags"), TEXT("(True,False)"), nullptr },
		{ TEXT("Texts"), TEXT("(\"a\",\"\")"), nullptr },
		{ TEXT("Items"), TEXT("()"), nullptr },
	};
	UTestObject* const Source = Object;
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Name));
		const FString Delimited = Each.Delimited ? Each.Delimited : Each.Text;
		EXPECT_EQ(Export(Each.Name), Each.Text);
		EXPECT_EQ(Export(Each.Name, PPF_Delimited), *Delimited);

		// And comes back: from the value alone, and from one that other text follows.
		UTestObject* const Target = NewObject<UTestObject>();
		const FProperty* const Property = UTestObject::StaticClass()->FindPropertyByName(Each.Name);
		void* const Value = Property->ContainerPtrToValuePtr<void>(Target);
		const TCHAR* End = Property->ImportText_Direct(Each.Text, Value, Target, PPF_None, nullptr);
		EXPECT_TRUE(End && *End == '\0');
		EXPECT_TRUE(Property->Identical_InContainer(Source, Target));
		const FString Followed = Delimited + TEXT(",next");
		End = Property->ImportText_Direct(*Followed, Value, Target, PPF_Delimited, nullptr);
		EXPECT_TRUE(End && FString(End) == TEXT(",next"));
		EXPECT_TRUE(Property->Identical_InContainer(Source, Target));
	}
}

TEST_F(PropertyText, OfAValueThatTheEnumHasNotIsItsNumber)
{
	Object->Mode = static_cast<ETestMode>(99);
	EXPECT_EQ(Export(TEXT("Mode")), TEXT("99"));
	Object->Mode = ETestMode::Slow;
	EXPECT_EQ(Import(TEXT("Mode"), TEXT("99")), TEXT(""));
	EXPECT_EQ(static_cast<int32>(Object->Mode), 99);
}

TEST_F(PropertyText, OfATextTellsItsKindApart)
{
	struct
	{
		FText Value;
		const TCHAR* Text;
	} const Cases[] = {
		{ FText::Localized(TEXT("Space"), TEXT("Key"), TEXT("A \"text\"")), TEXT("NSLOCTEXT(\"Space\", \"Key\", \"A \\\"text\\\"\")") },
		{ FText::AsCultureInvariant(TEXT("Same")), TEXT("INVTEXT(\"Same\")") },
		{ FText::FromString(TEXT("Plain")), TEXT("Plain") },
	};
	for (const auto& Each : Cases)
	{
		Object->Title = Each.Value;
		const FString Text = Export(TEXT("Title"));
		EXPECT_EQ(Text, Each.Text);
		Object->Title = FText();
		EXPECT_EQ(Import(TEXT("Title"), *Text), TEXT(""));
		EXPECT_EQ(Object->Title.ToString(), Each.Value.ToString());
		EXPECT_EQ(Export(TEXT("Title")), Each.Text);
	}
}

TEST_F(PropertyText, OfAStructLeavesOutWhatEqualsTheDefaults)
{
	const FStructProperty* const Property = FindFProperty<FStructProperty>(UTestObject::StaticClass(), TEXT("Item"));
	const FTestItem Defaults;
	FString Text;
	Property->ExportTextItem_Direct(Text, &Object->Item, &Defaults, Object, PPF_None);
	EXPECT_EQ(Text, TEXT("()"));
	Object->Item.Label = TEXT("a");
	Object->Item.Tags = { TEXT("b") };
	Text.Reset();
	Property->ExportTextItem_Direct(Text, &Object->Item, &Defaults, Object, PPF_None);
	EXPECT_EQ(Text, TEXT("(Label=\"a\",Tags=(\"b\"))"));
}

TEST_F(PropertyText, IsReadInEveryFormThatIsAllowed)
{
	struct
	{
		const TCHAR* Name;
		const TCHAR* Text;
		const TCHAR* Written; // What the value is written as afterwards.
	} const Cases[] = {
		{ TEXT("bWhole"), TEXT("0"), TEXT("False") },
		{ TEXT("bWhole"), TEXT("yes"), TEXT("True") },
		{ TEXT("bWhole"), TEXT("NO"), TEXT("False") },
		{ TEXT("Number"), TEXT("+5"), TEXT("5") },
		{ TEXT("Number"), TEXT("007"), TEXT("7") },
		{ TEXT("Real"), TEXT("5"), TEXT("5.000000") },
		{ TEXT("Real"), TEXT("-1.5e2"), TEXT("-150.000000") },
		{ TEXT("Mode"), TEXT("ETestMode::VeryFast"), TEXT("VeryFast") },
		{ TEXT("Mode"), TEXT("slow"), TEXT("Slow") },
		{ TEXT("Type"), TEXT("/Script/TestObjects.TestObject"), TEXT("/Script/CoreUObject.Class'/Script/TestObjects.TestObject'") },
		{ TEXT("Type"), TEXT("Class'\"/Script/TestObjects.TestObject\"'"),
			TEXT("/Script/CoreUObject.Class'/Script/TestObjects.TestObject'") },
		{ TEXT("Type"), TEXT("none"), TEXT("None") },
		{ TEXT("Numbers"), TEXT("( 1 , 2 )"), TEXT("(1,2)") },
		{ TEXT("Texts"), TEXT("(bare,\"quoted, \\x\",)"), TEXT("(\"bare\",\"quoted, \\\\x\")") },
		{ TEXT("Item"), TEXT("( label = \"x\" , Gone=(A=\"),\",B=((1))), Count=4 )"), TEXT("(Count=4,Label=\"x\",Tags=(),Owner=None)") },
		{ TEXT("Item"), TEXT("()"), TEXT("(Count=4,Label=\"x\",Tags=(),Owner=None)") },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Each.Text));
		EXPECT_EQ(Import(Each.Name, Each.Text), TEXT(""));
		EXPECT_EQ(Export(Each.Name), Each.Written);
	}
}

TEST_F(PropertyText, IsRefusedWhenItIsNoValue)
{
	struct
	{
		const TCHAR* Name;
		const TCHAR* Text;
	} const Cases[] = {
		{ TEXT("bWhole"), TEXT("") },
		{ TEXT("bWhole"), TEXT("maybe") },
		{ TEXT("Byte"), TEXT("256") },
		{ TEXT("Byte"), TEXT("-1") },
		{ TEXT("Number"), TEXT("") },
		{ TEXT("Number"), TEXT("12x") },
		{ TEXT("Number"), TEXT("2147483648") },
		{ TEXT("Number"), TEXT("1.5") },
		{ TEXT("BigNumber"), TEXT("9223372036854775808") },
		{ TEXT("Real"), TEXT("one") },
		{ TEXT("Mode"), TEXT("Faster") },
		{ TEXT("Mode"), TEXT("256") },
		{ TEXT("Mode"), TEXT("EOther::Slow") },
		{ TEXT("Type"), TEXT("/Script/TestObjects.Gone") },
		{ TEXT("Type"), TEXT("/Script/TestObjects.TestOther") },
		{ TEXT("Raw"), TEXT("/Script/TestObjects.TestObject") },
		{ TEXT("Raw"), TEXT("\"open") },
		{ TEXT("Numbers"), TEXT("1,2") },
		{ TEXT("Numbers"), TEXT("(1,2") },
		{ TEXT("Numbers"), TEXT("(1,x)") },
		{ TEXT("Texts"), TEXT("(\"open)") },
		{ TEXT("Item"), TEXT("Count=1") },
		{ TEXT("Item"), TEXT("(Count=x)") },
		{ TEXT("Item"), TEXT("(Count)") },
		{ TEXT("Item"), TEXT("(Count=1") },
		{ TEXT("Item"), TEXT("(Gone=(1,Count=1)") },
		{ TEXT("Item"), TEXT("(=1)") },
		{ TEXT("Title"), TEXT("NSLOCTEXT(\"a\", \"b\")") },
		{ TEXT("Title"), TEXT("INVTEXT(x)") },
	};
	for (const auto& Each : Cases)
	{
		EXPECT_EQ(Import(Each.Name, Each.Text), TEXT("(refused)")) << TCHAR_TO_UTF8(Each.Name) << " " << TCHAR_TO_UTF8(Each.Text);
	}
}
