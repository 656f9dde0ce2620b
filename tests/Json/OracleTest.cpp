// Random documents, read and written here and by another library: both must understand the same.

#include "JsonTestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <random>

using FOracle = nlohmann::ordered_json;

namespace
{
class FDocuments
{
public:
	explicit FDocuments(uint32 Seed, bool bInAscii = false)
		: Random(Seed)
		, bAscii(bInAscii)
	{
	}

	FOracle Make()
	{
		FOracle Root = Pick(2) ? FOracle::object() : FOracle::array();
		Fill(Root, 1 + Pick(5));
		return Root;
	}

	uint32 Pick(uint32 Count) { return static_cast<uint32>(Random() % Count); }

private:
	void Fill(FOracle& Block, uint32 Depth)
	{
		// Now and then more than the fields that are searched in a row.
		for (uint32 Left = Pick(10) ? Pick(6) : Pick(60); Left > 0; --Left)
		{
			if (Block.is_array())
			{
				Block.push_back(Value(Depth));
			}
			else
			{
				// The number makes keys differ whatever their case.
				Block[Text() + std::to_string(++Keys)] = Value(Depth);
			}
		}
	}

	FOracle Value(uint32 Depth)
	{
		switch (Pick(Depth > 0 ? 10 : 7))
		{
		case 0: return nullptr;
		case 1: return Pick(2) == 1;
		case 2: return static_cast<int64>(Random()) >> Pick(63);
		case 3: return std::ldexp(static_cast<double>(static_cast<int64>(Random())), -static_cast<int32>(Pick(120)));
		case 4: return static_cast<double>(Pick(2000)) / 8.0;
		case 5:
		case 6: return Text();
		default:
		{
			FOracle Block = Pick(2) ? FOracle::object() : FOracle::array();
			Fill(Block, Depth - 1);
			return Block;
		}
		}
	}

	std::string Text()
	{
		std::u16string Result;
		for (uint32 Left = Pick(4) ? Pick(8) : Pick(60); Left > 0; --Left)
		{
			switch (Pick(bAscii ? 4 : 7))
			{
			case 0:
			case 1:
			case 2: Result += static_cast<TCHAR>('a' + Pick(26)); break;
			case 3: Result += TEXT("\"\\/{}[]:, ")[Pick(10)]; break;
			case 4: Result += static_cast<TCHAR>(Pick(0x20)); break;
			case 5: Result += static_cast<TCHAR>(0x80 + Pick(0xD800 - 0x80)); break;
			default: Result += { static_cast<TCHAR>(0xD800 + Pick(0x400)), static_cast<TCHAR>(0xDC00 + Pick(0x400)) };
			}
		}
		return FUtf8::Encode(Result);
	}

	std::mt19937_64 Random;
	uint32 Keys = 0;
	bool bAscii;
};

bool AreSame(const FJsonValue& Ours, const FOracle& Theirs)
{
	switch (Ours.Type)
	{
	case EJson::Null: return Theirs.is_null();
	case EJson::Boolean: return Theirs.is_boolean() && Theirs.get<bool>() == Ours.AsBool();
	case EJson::Number: return Theirs.is_number() && Theirs.get<double>() == Ours.AsNumber();
	case EJson::String: return Theirs.is_string() && Theirs.get<std::string>() == FUtf8::Encode(Ours.AsString());
	case EJson::Array:
	{
		bool bSame = Theirs.is_array() && static_cast<SIZE_T>(Ours.AsArray().Num()) == Theirs.size();
		for (int32 Index = 0; bSame && Index < Ours.AsArray().Num(); ++Index)
		{
			bSame = AreSame(*Ours.AsArray()[Index], Theirs[static_cast<SIZE_T>(Index)]);
		}
		return bSame;
	}
	default:
	{
		const TSharedPtr<FJsonObject> Object = Ours.AsObject();
		bool bSame = Theirs.is_object() && static_cast<SIZE_T>(Object->Values.Num()) == Theirs.size();
		auto Their = Theirs.begin();
		for (const auto& Field : Object->Values)
		{
			bSame = bSame && FUtf8::Encode(Field.Key) == Their.key() && AreSame(*Field.Value, Their.value());
			++Their;
		}
		return bSame;
	}
	}
}

TEST(JsonOracle, ReadsWhatAnotherLibraryWrites)
{
	FDocuments Documents(11);
	for (int32 Round = 0; Round < 2000; ++Round)
	{
		const FOracle Document = Documents.Make();
		for (const std::string& Text : { Document.dump(), Document.dump(3), Document.dump(-1, ' ', true) })
		{
			const TSharedPtr<FJsonValue> Root = ReadJson(FUtf8::Decode(Text));
			ASSERT_TRUE(Root.IsValid()) << Text;
			ASSERT_TRUE(AreSame(*Root, Document)) << Text;
		}
	}
}

TEST(JsonOracle, WritesWhatAnotherLibraryReads)
{
	FDocuments Documents(12);
	for (int32 Round = 0; Round < 2000; ++Round)
	{
		const FOracle Document = Documents.Make();
		const TSharedPtr<FJsonValue> Root = ReadJson(FUtf8::Decode(Document.dump()));
		ASSERT_TRUE(Root.IsValid());
		for (const FString& Text : { WriteCondensed(*Root), WritePretty(*Root) })
		{
			const FOracle Again = FOracle::parse(FUtf8::Encode(Text), nullptr, false);
			ASSERT_FALSE(Again.is_discarded()) << TCHAR_TO_UTF8(*Text);
			ASSERT_TRUE(AreSame(*Root, Again)) << TCHAR_TO_UTF8(*Text);
			const TSharedPtr<FJsonValue> Own = ReadJson(Text);
			ASSERT_TRUE(Own.IsValid() && AreSame(*Own, Document));
		}
	}
}

/** Whether the other library takes the text; nothing when it says only that a number is too large. */
std::optional<bool> IsAccepted(const std::string& Text)
{
	try
	{
		const FOracle Root = FOracle::parse(Text);
		return Root.is_object() || Root.is_array();
	}
	catch (const FOracle::parse_error&)
	{
		return false;
	}
	catch (const FOracle::out_of_range&)
	{
		return std::nullopt;
	}
}

TEST(JsonOracle, RefusesTheSameDamagedDocuments)
{
	FDocuments Documents(13, true);
	const std::string Marks = "{}[]:,\"\\019.e+- utfnbr\n";
	int32 Accepted = 0;
	int32 Refused = 0;
	for (int32 Round = 0; Round < 8000; ++Round)
	{
		std::string Text = Documents.Make().dump();
		for (uint32 Left = 1 + Documents.Pick(2); Left > 0 && !Text.empty(); --Left)
		{
			const auto Place = Documents.Pick(static_cast<uint32>(Text.size()));
			const char Mark = Marks[Documents.Pick(static_cast<uint32>(Marks.size()))];
			switch (Documents.Pick(3))
			{
			case 0: Text[Place] = Mark; break;
			case 1: Text.insert(Place, 1, Mark); break;
			default: Text.erase(Place, 1);
			}
		}
		const std::optional<bool> bWanted = IsAccepted(Text);
		FString Error;
		const bool bRead = ReadJson(FUtf8::Decode(Text), &Error).IsValid();
		// A line end inside a string is the one thing that only this reader takes.
		if (bWanted && !(bRead && !*bWanted && Text.find('\n') != std::string::npos))
		{
			ASSERT_EQ(bRead, *bWanted) << Text << "\n" << TCHAR_TO_UTF8(*Error);
			++(bRead ? Accepted : Refused);
		}
	}
	EXPECT_GT(Accepted, 800);
	EXPECT_GT(Refused, 800);
}
}
