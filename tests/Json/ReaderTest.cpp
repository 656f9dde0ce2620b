#include "JsonTestSupport.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>

using namespace std::string_literals;

namespace
{
/** The document again in its shortest form, which shows what was understood; the error's text when it was refused. */
FString Understood(const FString& Text)
{
	FString Error;
	const TSharedPtr<FJsonValue> Root = ReadJson(Text, &Error);
	EXPECT_EQ(Root.IsValid(), Error.IsEmpty());
	return Root.IsValid() ? WriteCondensed(*Root) : Error;
}

FString Nested(int32 Depth, const TCHAR* Open, const TCHAR* Close)
{
	FString Text;
	for (int32 Level = 0; Level < Depth; ++Level)
	{
		Text += Open;
	}
	Text += TEXT("[]");
	for (int32 Level = 0; Level < Depth; ++Level)
	{
		Text += Close;
	}
	return Text;
}

TEST(JsonReader, Accepts)
{
	const struct
	{
		const TCHAR *Text, *Wanted;
	} Cases[] = {
		{ u"{}", u"{}" },
		{ u"[]", u"[]" },
		{ u" \t\r\n[ \t\r\n] \t\r\n", u"[]" },
		{ u"{ \"a\" : 1 , \"b\" : [ 1 , 2 ] }", u"{\"a\":1,\"b\":[1,2]}" },
		{ u"[true,false,null]", u"[true,false,null]" },
		{ u"[True,FALSE,NuLL]", u"[true,false,null]" },
		{ u"[\"\",\"a\",\"Größe \U0001F600\"]", u"[\"\",\"a\",\"Größe \U0001F600\"]" },
		{ u"[\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"]", u"[\"\\\"\\\\/\\b\\f\\n\\r\\t\"]" },
		{ u"[\"\\u0041\\u00e9\\u00E9\\u20ac\"]", u"[\"Aéé€\"]" },
		{ u"[\"\\ud83d\\ude00\"]", u"[\"\U0001F600\"]" },
		{ u"[\"\\u0000\\u001f\\u007f\"]", u"[\"\\u0000\\u001f\u007f\"]" },
		{ u"[\"a\tb\nc\"]", u"[\"a\\tb\\nc\"]" }, // control characters as they are
		{ u"{\"\":1}", u"{\"\":1}" },
		{ u"{\"a\":1,\"b\":2,\"a\":3}", u"{\"a\":3,\"b\":2}" },
		{ u"{\"key\":1,\"b\":2,\"KEY\":3}", u"{\"KEY\":3,\"b\":2}" },
		{ u"[0,-0,10,-1,0.5,1e2,1E+2,1e-2,1.25E1]", u"[0,-0,10,-1,0.5,100,100,0.01,12.5]" },
		{ u"[[[],[[]]],{}]", u"[[[],[[]]],{}]" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Understood(Case.Text).Native(), Case.Wanted) << TCHAR_TO_UTF8(Case.Text);
	}
}

TEST(JsonReader, RefusesAndSaysWhere)
{
	const struct
	{
		const TCHAR *Text, *Where;
	} Cases[] = {
		{ u"", u"Line: 1 Ch: 1" },
		{ u"  ", u"Line: 1 Ch: 3" },
		{ u"1", u"Line: 1 Ch: 1" }, // a root that is no object and no array
		{ u"\"a\"", u"Line: 1 Ch: 1" },
		{ u"null", u"Line: 1 Ch: 1" },
		{ u"\uFEFF[]", u"Line: 1 Ch: 1" },
		{ u"[1,\n 2\n 3]", u"Line: 3 Ch: 2" },
		{ u"[1 2]", u"Line: 1 Ch: 4" },
		{ u"[1,]", u"Line: 1 Ch: 4" },
		{ u"[,1]", u"Line: 1 Ch: 2" },
		{ u"[1", u"Line: 1 Ch: 3" },
		{ u"[1,", u"Line: 1 Ch: 4" },
		{ u"[1}", u"Line: 1 Ch: 3" },
		{ u"[", u"Line: 1 Ch: 2" },
		{ u"{", u"Line: 1 Ch: 2" },
		{ u"{\"a\":1,}", u"Line: 1 Ch: 8" },
		{ u"{\"a\":1]", u"Line: 1 Ch: 7" },
		{ u"{\"a\" 1}", u"Line: 1 Ch: 6" },
		{ u"{\"a\":}", u"Line: 1 Ch: 6" },
		{ u"{\"a\"", u"Line: 1 Ch: 5" },
		{ u"{\"a\":", u"Line: 1 Ch: 6" },
		{ u"{a:1}", u"Line: 1 Ch: 2" },
		{ u"{'a':1}", u"Line: 1 Ch: 2" },
		{ u"{1:1}", u"Line: 1 Ch: 2" },
		{ u"[] x", u"Line: 1 Ch: 4" },
		{ u"{}\n{}", u"Line: 2 Ch: 1" },
		{ u"[] // words", u"Line: 1 Ch: 4" },
		{ u"[/* words */]", u"Line: 1 Ch: 2" },
		{ u"[tru]", u"Line: 1 Ch: 2" },
		{ u"[nul", u"Line: 1 Ch: 2" },
		{ u"[truex]", u"Line: 1 Ch: 6" },
		{ u"[undefined]", u"Line: 1 Ch: 2" },
		{ u"[NaN]", u"Line: 1 Ch: 2" },
		{ u"[\"abc]", u"Line: 1 Ch: 7" },
		{ u"[\"abc\\", u"Line: 1 Ch: 7" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_TRUE(Understood(Case.Text).EndsWith(Case.Where, ESearchCase::CaseSensitive))
			<< TCHAR_TO_UTF8(Case.Text) << ": " << TCHAR_TO_UTF8(*Understood(Case.Text));
	}
}

TEST(JsonReader, RefusesBadNumbersAndEscapes)
{
	for (const TCHAR* Item : { u"01", u"-", u"-a", u"+1", u".5", u"1.", u"1.e2", u"1e", u"1e+", u"1ee2", u"0x10", u"--1", u"1.2.3",
			 u"Infinity", u"-Infinity", u"1_000", u"00", u"-01", u"\uFF11", u"\"\\x\"", u"\"\\\"", u"\"\\u12\"", u"\"\\u12g4\"",
			 u"\"\\U0041\"", u"\"\\u 041\"", u"\"\\'\"", u"\"\\0\"" })
	{
		EXPECT_FALSE(ReadJson(FString(TEXT("[")) + Item + TEXT("]")).IsValid()) << TCHAR_TO_UTF8(Item);
	}
	EXPECT_FALSE(ReadJson(FString(u"[1\0]"s)).IsValid());
	EXPECT_FALSE(ReadJson(FString(u"[]\0"s)).IsValid());
	EXPECT_TRUE(ReadJson(FString(u"[\"a\0b\"]"s)).IsValid());
}

TEST(JsonReader, SurrogatesComeOneByOne)
{
	for (const auto& [Escapes, Wanted] :
		{ std::pair{ u"\\ud83d", u"\xD83D"s }, { u"\\ude00\\ud83d", u"\xDE00\xD83D"s }, { u"x\\udfffy", u"x\xDFFFy"s } })
	{
		const TSharedPtr<FJsonValue> Root = ReadJson(FString(TEXT("[\"")) + Escapes + TEXT("\"]"));
		ASSERT_TRUE(Root.IsValid());
		EXPECT_EQ(Root->AsArray()[0]->AsString().Native(), Wanted);
	}
}

TEST(JsonReader, BoundsItsDepth)
{
	constexpr int32 Most = TJsonReader<TCHAR>::MaxDepth;
	ASSERT_GE(Most, 1000);
	for (const auto& [Open, Close] : { std::pair{ u"[", u"]" }, { u"{\"a\":", u"}" }, { u"[1,", u",2]" } })
	{
		const FString Deepest = Nested(Most - 1, Open, Close);
		const TSharedPtr<FJsonValue> Root = ReadJson(Deepest);
		ASSERT_TRUE(Root.IsValid());
		EXPECT_EQ(WriteCondensed(*Root).Native(), Deepest.Native());
		EXPECT_FALSE(ReadJson(Nested(Most, Open, Close)).IsValid());
		EXPECT_FALSE(ReadJson(Nested(1000000, Open, Close)).IsValid());
	}
}

TEST(JsonReader, SaysWhyForTheRootThatIsWanted)
{
	TSharedPtr<FJsonObject> Object;
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(FString(TEXT("[1]"))), Object));
	EXPECT_FALSE(Object.IsValid());
	TArray<TSharedPtr<FJsonValue>> Array = { nullptr };
	EXPECT_FALSE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(FString(TEXT("{}"))), Array));
	EXPECT_TRUE(Array.IsEmpty());
	EXPECT_TRUE(FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(FString(TEXT("[1,2]"))), Array));
	EXPECT_EQ(Array.Num(), 2);
}

/** The numbers of an array of texts, read in one go, must be the C library's to the last bit. */
void ExpectExact(const std::vector<std::string>& Texts)
{
	std::string Document = "[0";
	for (const std::string& Text : Texts)
	{
		Document += "," + Text;
	}
	const TSharedPtr<FJsonValue> Root = ReadJson(FUtf8::Decode(Document + "]"));
	ASSERT_TRUE(Root.IsValid());
	for (SIZE_T Index = 0; Index < Texts.size(); ++Index)
	{
		const double Read = Root->AsArray()[static_cast<int32>(Index) + 1]->AsNumber();
		ASSERT_EQ(std::bit_cast<uint64>(Read), std::bit_cast<uint64>(std::strtod(Texts[Index].c_str(), nullptr))) << Texts[Index];
	}
}

TEST(JsonReader, HardNumbersAreExact)
{
	ExpectExact({ "-0", "0.0", "-0.0", "0e5", "9007199254740991", "9007199254740993", "9007199254740993.0000000000000001", "0.1", "0.3",
		"123456789012345", "1234567890123456", "12345678901234567890", "18446744073709551616", "999999999999999.9", "0.000000000000001",
		"0.0000000000000000000001", "0.00000000000000000000001", "123456789.123456789", "1e22", "1e23", "8.41e21", "9.5e-22",
		"2.2250738585072014e-308", "2.2250738585072011e-308", "4.9e-324", "2.4703282292062327e-324", "2.4703282292062328e-324", "1e-400",
		"-1e-400", "1.7976931348623157e308", "1.7976931348623159e308", "1e400", "-1e400", "1e99999999999999999999",
		"1e-99999999999999999999", "0e99999999999999999999", "1" + std::string(400, '0'), "0." + std::string(400, '0') + "1",
		"0." + std::string(400, '0') + "1e401", std::string(30, '9') + "." + std::string(30, '9'),
		"1" + std::string(5000, '0') + "e-5000" });
}

TEST(JsonReader, RandomNumbersAreExact)
{
	std::mt19937_64 Random(6);
	std::vector<std::string> Texts;
	for (int32 Round = 0; Round < 60000; ++Round)
	{
		const double Number = std::bit_cast<double>(Random());
		if (std::isfinite(Number))
		{
			char Text[64];
			std::snprintf(Text, sizeof(Text), Round % 2 ? "%.17g" : "%.9e", Number);
			Texts.push_back(Text);
		}
	}
	const auto Digits = [&Random](SIZE_T Most)
	{
		std::string Result(1 + Random() % Most, '0');
		for (char& Digit : Result)
		{
			Digit = static_cast<char>('0' + Random() % 10);
		}
		return Result;
	};
	for (int32 Round = 0; Round < 60000; ++Round)
	{
		std::string Text = Random() % 2 ? "-" : "";
		Text += Random() % 3 ? std::to_string(1 + Random() % 9) + Digits(18) : "0";
		Text += Random() % 3 ? "." + Digits(25) : "";
		Text += Random() % 3 ? "" : "e" + std::to_string(static_cast<int32>(Random() % 700) - 350);
		Texts.push_back(Text);
	}
	ExpectExact(Texts);
}

TEST(JsonReader, HugeDocuments)
{
	FString Long = FString::ChrN(5000000, 'x');
	for (int32 Index = 0; Index < Long.Len(); Index += 997)
	{
		Long[Index] = TEXT("\"\\\n\u20AC\x01")[Index % 5];
	}
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("long"), Long);
	Object->SetNumberField(Long, 1);
	for (int32 Index = 0; Index < 20000; ++Index)
	{
		Object->SetNumberField(FString::Printf(TEXT("key %d"), Index), Index);
	}
	const TSharedPtr<FJsonValue> Root = ReadJson(WriteCondensed(FJsonValueObject(Object)));
	ASSERT_TRUE(Root.IsValid());
	EXPECT_TRUE(Root->AsObject()->GetStringField(TEXT("long")).Equals(Long));
	EXPECT_EQ(Root->AsObject()->GetNumberField(Long), 1);
	EXPECT_EQ(Root->AsObject()->Values.Num(), 20002);
	EXPECT_EQ(Root->AsObject()->GetIntegerField(TEXT("KEY 19999")), 19999);
}
}
