#include "JsonTestSupport.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

using namespace std::string_literals;

namespace
{
TEST(JsonWriter, LaysDocumentsOut)
{
	const struct
	{
		const TCHAR *Condensed, *Pretty;
	} Cases[] = {
		{ u"{}", u"{\n}" },
		{ u"[]", u"[]" },
		{ u"[1,2]", u"[ 1, 2 ]" },
		{ u"[true,null,-1.5]", u"[ true, null, -1.5 ]" },
		{ u"[\"a\",\"b\"]", u"[\n\t\"a\",\n\t\"b\"\n]" },
		{ u"[{},{\"a\":1}]", u"[\n\t{\n\t},\n\t{\n\t\t\"a\": 1\n\t}\n]" },
		{ u"{\"a\":1,\"b\":\"x\",\"c\":null}", u"{\n\t\"a\": 1,\n\t\"b\": \"x\",\n\t\"c\": null\n}" },
		{ u"{\"o\":{\"p\":{}}}", u"{\n\t\"o\":\n\t{\n\t\t\"p\":\n\t\t{\n\t\t}\n\t}\n}" },
		{ u"{\"e\":[],\"n\":[1,2],\"s\":[\"a\"],\"o\":[{\"k\":true}],\"z\":0}",
			u"{\n\t\"e\": [],\n\t\"n\": [ 1, 2 ],\n\t\"s\": [\n\t\t\"a\"\n\t],\n\t\"o\": [\n\t\t{\n\t\t\t\"k\": "
			u"true\n\t\t}\n\t],\n\t\"z\": 0\n}" },
	};
	for (const auto& Case : Cases)
	{
		const TSharedPtr<FJsonValue> Root = ReadJson(Case.Condensed);
		ASSERT_TRUE(Root.IsValid()) << TCHAR_TO_UTF8(Case.Condensed);
		EXPECT_EQ(WriteCondensed(*Root).Native(), Case.Condensed);
		EXPECT_EQ(WritePretty(*Root).Native(), Case.Pretty);
	}
}

TEST(JsonWriter, WritesValueByValueAsWholeDocuments)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	Writer->WriteObjectStart();
	Writer->WriteValue(TEXT("text"), TEXT("literal"));
	Writer->WriteValue(TEXT("string"), FString(TEXT("a")));
	Writer->WriteValue(TEXT("int"), 42);
	Writer->WriteValue(TEXT("wide"), static_cast<int64>(1) << 40);
	Writer->WriteValue(TEXT("bool"), true);
	Writer->WriteNull(TEXT("null"));
	Writer->WriteArrayStart(TEXT("array"));
	Writer->WriteValue(0.5);
	Writer->WriteValue(FString(TEXT("b")));
	Writer->WriteNull();
	Writer->WriteObjectStart();
	EXPECT_FALSE(Writer->Close()) << "three blocks are open";
	Writer->WriteObjectEnd();
	Writer->WriteArrayEnd();
	Writer->WriteObjectEnd();
	EXPECT_TRUE(Writer->Close());
	EXPECT_EQ(Text.Native(),
		u"{\"text\":\"literal\",\"string\":\"a\",\"int\":42,\"wide\":1099511627776,\"bool\":true,\"null\":null,\"array\":[0.5,\"b\",null,{}"
		u"]}");
}

TEST(JsonWriter, SpellsNumbers)
{
	const struct
	{
		double Number;
		const TCHAR* Wanted;
	} Cases[] = {
		{ 5.0, u"5" },
		{ -5.0, u"-5" },
		{ 0.0, u"0" },
		{ -0.0, u"-0" },
		{ 0.1, u"0.10000000000000001" },
		{ 0.5, u"0.5" },
		{ 1e20, u"1e+20" },
		{ 123456789012345678.0, u"1.2345678901234568e+17" },
		{ 999999999999999.0, u"999999999999999" },
		{ 1e15, u"1000000000000000" },
		{ 9007199254740993.0, u"9007199254740992" },
		{ 1e-7, u"9.9999999999999995e-08" },
		{ 1.0 / 3.0, u"0.33333333333333331" },
		{ std::numeric_limits<double>::max(), u"1.7976931348623157e+308" },
		{ std::numeric_limits<double>::denorm_min(), u"4.9406564584124654e-324" },
		{ std::numeric_limits<double>::infinity(), u"null" },
		{ -std::numeric_limits<double>::infinity(), u"null" },
		{ std::numeric_limits<double>::quiet_NaN(), u"null" },
	};
	for (const auto& Case : Cases)
	{
		FString Text;
		FJsonText::AppendNumber(Text, Case.Number);
		EXPECT_EQ(Text.Native(), Case.Wanted);
	}
}

TEST(JsonWriter, NumbersAreAsTheCLibraryWritesThem)
{
	std::mt19937_64 Random(8);
	for (int32 Round = 0; Round < 50000; ++Round)
	{
		const double Number = Round % 2 ? std::bit_cast<double>(Random())
										: std::ldexp(static_cast<double>(Random() >> 11), -static_cast<int32>(Random() % 60));
		if (std::isfinite(Number))
		{
			char Wanted[64];
			std::snprintf(Wanted, sizeof(Wanted), "%.17g", Number);
			FString Text = TEXT("x");
			FJsonText::AppendNumber(Text, Number);
			ASSERT_STREQ(TCHAR_TO_UTF8(*Text), ("x"s + Wanted).c_str());
		}
	}
}

TEST(JsonWriter, EscapesWhatItMustWhereverItStands)
{
	// The search for what to escape takes four characters at a time: each character at each place of a block, plain neighbours of all
	// kinds.
	for (const TCHAR Neighbour :
		{ u' ', u'!', u'#', u'[', u']', u'x', u'\x7F', u'\x80', u'\u011F', u'\u0122', u'\u015C', u'\xD83D', u'\xFFFF' })
	{
		for (int32 Char = 0; Char < 0x200; ++Char)
		{
			const auto Special = static_cast<TCHAR>(Char);
			for (int32 Place = 0; Place < 9; ++Place)
			{
				FString Given = FString::ChrN(9, Neighbour);
				Given[Place] = Special;
				char Code[8];
				std::snprintf(Code, sizeof(Code), "\\u%04x", static_cast<uint32>(Char));
				static const std::u16string Shorts = u"\"\"\\\\\nn\rr\tt\bb\ff";
				std::u16string Escape = Char < 0x20 ? FString(Code).Native() : std::u16string(1, Special);
				for (SIZE_T Index = 0; Index < Shorts.size(); Index += 2)
				{
					Escape = Shorts[Index] == Special ? std::u16string{ u'\\', Shorts[Index + 1] } : Escape;
				}
				const std::u16string Wanted = u"\"" + std::u16string(static_cast<SIZE_T>(Place), Neighbour) + Escape +
					std::u16string(static_cast<SIZE_T>(8 - Place), Neighbour) + u"\"";
				FString Text;
				FJsonText::AppendString(Text, Given);
				ASSERT_EQ(Text.Native(), Wanted) << "character " << Char;
				const TSharedPtr<FJsonValue> Root = ReadJson(TEXT("[") + Text + TEXT("]"));
				ASSERT_TRUE(Root.IsValid());
				ASSERT_EQ(Root->AsArray()[0]->AsString().Native(), Given.Native());
			}
		}
	}
}
}
