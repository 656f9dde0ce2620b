#include "JsonTestSupport.h"

#include <gtest/gtest.h>

namespace
{
/** What each conversion gives, in one line: text, number, boolean; "-" for one that fails. */
FString Conversions(const FJsonValue& Value)
{
	FString Text = TEXT("-");
	double Number = 0.0;
	bool bValue = false;
	Value.TryGetString(Text);
	const FString NumberText = Value.TryGetNumber(Number) ? FString::SanitizeFloat(Number, 0) : FString(TEXT("-"));
	const FString BoolText = Value.TryGetBool(bValue) ? LexToString(bValue) : FString(TEXT("-"));
	return Text + TEXT("|") + NumberText + TEXT("|") + BoolText;
}

TEST(JsonValue, ConvertsAsTheEngineDoes)
{
	const struct
	{
		const TCHAR *Item, *Wanted;
	} Cases[] = {
		{ u"5.0", u"5|5|true" },
		{ u"0.5", u"0.5|0.5|true" },
		{ u"-20", u"-20|-20|true" },
		{ u"0", u"0|0|false" },
		{ u"-0", u"0|0|false" },
		{ u"true", u"true|1|true" },
		{ u"false", u"false|0|false" },
		{ u"null", u"-|-|-" },
		{ u"[1]", u"-|-|-" },
		{ u"{\"a\":1}", u"-|-|-" },
		{ u"\"12.5\"", u"12.5|12.5|true" },
		{ u"\"-3\"", u"-3|-3|true" },
		{ u"\"0\"", u"0|0|false" },
		{ u"\"12 \"", u"12 |-|true" },
		{ u"\"1e5\"", u"1e5|-|true" },
		{ u"\"12x\"", u"12x|-|true" },
		{ u"\"\"", u"|-|false" },
		{ u"\"Yes\"", u"Yes|-|true" },
		{ u"\"on\"", u"on|-|true" },
		{ u"\"TRUE\"", u"TRUE|-|true" },
		{ u"\"no\"", u"no|-|false" },
	};
	for (const auto& Case : Cases)
	{
		const TSharedPtr<FJsonValue> Root = ReadJson(FString(TEXT("[")) + Case.Item + TEXT("]"));
		ASSERT_TRUE(Root.IsValid());
		EXPECT_EQ(Conversions(*Root->AsArray()[0]).Native(), Case.Wanted) << TCHAR_TO_UTF8(Case.Item);
	}
}

TEST(JsonValue, IntegersAreCheckedForTheirRange)
{
	const struct
	{
		double Number;
		bool bNarrow, bWide;
		int64 Wanted;
	} Cases[] = {
		{ 1.9, true, true, 1 },
		{ -1.9, true, true, -1 },
		{ 2147483647.0, true, true, 2147483647 },
		{ 2147483647.5, true, true, 2147483647 },
		{ 2147483648.0, false, true, 2147483648 },
		{ -2147483648.5, true, true, -2147483648 },
		{ -2147483649.0, false, true, -2147483649 },
		{ 9223372036854774784.0, false, true, 9223372036854774784 },
		{ 9223372036854775808.0, false, false, 0 },
		{ -9223372036854775808.0, false, true, std::numeric_limits<int64>::min() },
		{ 1e300, false, false, 0 },
		{ std::numeric_limits<double>::infinity(), false, false, 0 },
		{ std::numeric_limits<double>::quiet_NaN(), false, false, 0 },
	};
	for (const auto& Case : Cases)
	{
		const FJsonValueNumber Value(Case.Number);
		int32 Narrow = 77;
		int64 Wide = 77;
		EXPECT_EQ(Value.TryGetNumber(Narrow), Case.bNarrow) << Case.Number;
		EXPECT_EQ(Narrow, Case.bNarrow ? Case.Wanted : 77);
		EXPECT_EQ(Value.TryGetNumber(Wide), Case.bWide) << Case.Number;
		EXPECT_EQ(Wide, Case.bWide ? Case.Wanted : 77);
	}
}

TEST(JsonValue, AsGivesAnEmptyValueAndSaysSo)
{
	const TSharedPtr<FJsonValue> Root = ReadJson(TEXT("[null,\"x\",[1],{\"a\":1}]"));
	const auto& Items = Root->AsArray();
	FLogLines Log;
	EXPECT_EQ(Items[1]->AsNumber(), 0.0);
	EXPECT_EQ(Items[2]->AsString().Native(), u"");
	EXPECT_FALSE(Items[3]->AsBool());
	EXPECT_TRUE(Items[0]->AsArray().IsEmpty());
	EXPECT_EQ(Items[0]->AsObject()->Values.Num(), 0);
	EXPECT_EQ(Log.Lines.Num(), 5);
	for (const FString& Line : Log.Lines)
	{
		EXPECT_TRUE(Line.StartsWith(TEXT("LogJson|Error|"))) << TCHAR_TO_UTF8(*Line);
	}
	EXPECT_EQ(Items[3]->AsObject()->GetIntegerField(TEXT("a")), 1);
	EXPECT_EQ(Log.Lines.Num(), 5) << "what converts logs nothing";
}

TEST(JsonObject, KeepsItsOrderAndItsNewestSpelling)
{
	const TSharedRef<FJsonObject> Object = ReadJson(TEXT("{\"one\":1,\"two\":2,\"three\":3}"))->AsObject().ToSharedRef();
	const auto Shown = [&Object] { return WriteCondensed(FJsonValueObject(Object)).Native(); };
	Object->SetStringField(TEXT("TWO"), TEXT("x"));
	EXPECT_EQ(Shown(), u"{\"one\":1,\"TWO\":\"x\",\"three\":3}");
	Object->RemoveField(TEXT("ONE"));
	EXPECT_EQ(Shown(), u"{\"TWO\":\"x\",\"three\":3}");
	Object->SetBoolField(TEXT("three"), true);
	EXPECT_EQ(Shown(), u"{\"TWO\":\"x\",\"three\":true}");
	Object->SetField(TEXT("four"), MakeShared<FJsonValueNull>());
	EXPECT_EQ(Shown(), u"{\"four\":null,\"TWO\":\"x\",\"three\":true}") << "the first new field takes the hole";
	Object->SetArrayField(TEXT("five"), { MakeShared<FJsonValueNumber>(5) });
	Object->SetObjectField(TEXT("six"), MakeShared<FJsonObject>());
	Object->SetObjectField(TEXT("seven"), nullptr);
	EXPECT_EQ(Shown(), u"{\"four\":null,\"TWO\":\"x\",\"three\":true,\"five\":[5],\"six\":{},\"seven\":null}");
}

TEST(JsonObject, FindsFieldsWhateverTheirCase)
{
	const TSharedPtr<FJsonObject> Object = ReadJson(TEXT("{\"Text\":\"7\",\"Null\":null,\"List\":[1],\"Sub\":{\"Größe\":2}}"))->AsObject();
	EXPECT_TRUE(Object->HasField(TEXT("text")));
	EXPECT_TRUE(Object->HasField(TEXT("NULL")));
	EXPECT_FALSE(Object->HasField(TEXT("Tex")));
	EXPECT_TRUE(Object->HasTypedField<EJson::Null>(TEXT("null")));
	EXPECT_FALSE(Object->HasTypedField<EJson::Number>(TEXT("text")));
	EXPECT_EQ(Object->GetNumberField(TEXT("TEXT")), 7.0);
	EXPECT_EQ(Object->GetIntegerField(TEXT("TEXT")), 7);
	EXPECT_EQ(Object->GetArrayField(TEXT("list")).Num(), 1);
	EXPECT_EQ(Object->GetObjectField(TEXT("sub"))->GetIntegerField(TEXT("GRÖßE")), 2);
	EXPECT_FALSE(Object->TryGetField(TEXT("none")).IsValid());
}

TEST(JsonObject, TryGetLeavesTheOutArgumentAlone)
{
	const TSharedPtr<FJsonObject> Object = ReadJson(TEXT("{\"text\":\"x\",\"big\":1e10,\"null\":null}"))->AsObject();
	FString Text = TEXT("kept");
	double Number = 77;
	int32 Integer = 77;
	bool bValue = true;
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	const TSharedPtr<FJsonObject>* Sub = nullptr;
	for (const TCHAR* Name : { TEXT("null"), TEXT("missing") })
	{
		EXPECT_FALSE(Object->TryGetStringField(Name, Text));
		EXPECT_FALSE(Object->TryGetNumberField(Name, Number));
		EXPECT_FALSE(Object->TryGetNumberField(Name, Integer));
		EXPECT_FALSE(Object->TryGetBoolField(Name, bValue));
		EXPECT_FALSE(Object->TryGetArrayField(Name, Array));
		EXPECT_FALSE(Object->TryGetObjectField(Name, Sub));
	}
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("text"), Number));
	EXPECT_FALSE(Object->TryGetNumberField(TEXT("big"), Integer));
	EXPECT_TRUE(Text.Equals(TEXT("kept")) && Number == 77 && Integer == 77 && bValue && !Array && !Sub);
}

TEST(JsonObject, GetOfAMissingFieldIsEmptyAndLogged)
{
	const FJsonObject Object;
	FLogLines Log;
	EXPECT_TRUE(Object.GetStringField(TEXT("gone")).IsEmpty());
	EXPECT_EQ(Object.GetNumberField(TEXT("gone")), 0.0);
	EXPECT_EQ(Object.GetIntegerField(TEXT("gone")), 0);
	EXPECT_FALSE(Object.GetBoolField(TEXT("gone")));
	EXPECT_TRUE(Object.GetArrayField(TEXT("gone")).IsEmpty());
	EXPECT_EQ(Object.GetObjectField(TEXT("gone"))->Values.Num(), 0);
	int32 Named = 0;
	for (const FString& Line : Log.Lines)
	{
		Named += Line.StartsWith(TEXT("LogJson|")) && Line.Contains(TEXT("gone"));
	}
	EXPECT_EQ(Named, 6);
}
}
