#include "UObject/NameTypes.h"

#include "Internationalization/Text.h"

#include "Containers/StringConv.h"

#include <deque>
#include <limits>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace
{
struct FHashIgnoringCase
{
	SIZE_T operator()(std::u16string_view Text) const { return FString::HashIgnoringCase(Text); }
};

struct FEqualIgnoringCase
{
	bool operator()(std::u16string_view A, std::u16string_view B) const { return FString::EqualsIgnoringCase(A, B); }
};

/** All spellings ever given, never freed; index 0 is "None". */
class FNameTable
{
public:
	static FNameTable& Get()
	{
		static FNameTable Table;
		return Table;
	}

	/** @return the entry for comparing and the entry for printing */
	std::pair<uint32, uint32> Find(std::u16string_view Text)
	{
		{
			const std::shared_lock Lock(Mutex);
			if (const auto Exact = Spellings.find(Text); Exact != Spellings.end())
			{
				return { Entries[Exact->second].First, Exact->second };
			}
		}
		const std::unique_lock Lock(Mutex);
		const auto Exact = Spellings.find(Text);
		const uint32 Display = Exact == Spellings.end() ? Add(Text) : Exact->second;
		return { Entries[Display].First, Display };
	}

	const std::u16string& Text(uint32 Index)
	{
		const std::shared_lock Lock(Mutex);
		return Entries[Index].Text;
	}

private:
	struct FEntry
	{
		std::u16string Text;
		/** The first spelling of the same name. */
		uint32 First;
	};

	FNameTable() { Add(u"None"); }

	uint32 Add(std::u16string_view Text)
	{
		const auto Index = static_cast<uint32>(Entries.size());
		FEntry& Entry = Entries.emplace_back(FEntry{ std::u16string(Text), Index });
		Spellings.emplace(Entry.Text, Index);
		Entry.First = FirstSpellings.try_emplace(Entry.Text, Index).first->second;
		return Index;
	}

	std::shared_mutex Mutex;
	std::deque<FEntry> Entries;
	std::unordered_map<std::u16string_view, uint32> Spellings;
	std::unordered_map<std::u16string_view, uint32, FHashIgnoringCase, FEqualIgnoringCase> FirstSpellings;
};

constexpr SIZE_T MaxLength = 1023;

/** Cuts a tail "_<number>" off; 0 when there is none, else the number plus one. */
int32 TakeNumber(std::u16string_view& Text)
{
	SIZE_T Digits = Text.size();
	while (Digits > 0 && FChar::IsDigit(Text[Digits - 1]))
	{
		--Digits;
	}
	const SIZE_T Count = Text.size() - Digits;
	const bool bLeadingZero = Count > 1 && Text[Digits] == '0';
	if (Count == 0 || Count > 10 || bLeadingZero || Digits < 2 || Text[Digits - 1] != '_')
	{
		return 0;
	}
	int64 Number = 0;
	for (const TCHAR Digit : Text.substr(Digits))
	{
		Number = Number * 10 + (Digit - '0');
	}
	if (Number >= std::numeric_limits<int32>::max())
	{
		return 0;
	}
	Text = Text.substr(0, Digits - 1);
	return static_cast<int32>(Number) + 1;
}
}

FName::FName(const TCHAR* Text)
{
	Init(Text ? Text : u"");
}

FName::FName(const ANSICHAR* Utf8)
{
	Init(FUtf8::Decode(Utf8 ? Utf8 : "").View());
}

FName::FName(const FString& Text)
{
	Init(Text.View());
}

void FName::Init(std::u16string_view Text)
{
	Text = Text.substr(0, MaxLength);
	if (!Text.empty())
	{
		Number = TakeNumber(Text);
		std::tie(ComparisonIndex, DisplayIndex) = FNameTable::Get().Find(Text);
	}
}

FString FName::GetPlainNameString() const
{
	return FString(std::u16string_view(FNameTable::Get().Text(DisplayIndex)));
}

FString FName::ToString() const
{
	FString Result = GetPlainNameString();
	if (Number > 0)
	{
		Result.AppendChar('_').AppendInt(Number - 1);
	}
	return Result;
}

int32 FName::Compare(const FName& Other) const
{
	return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase);
}

FString LexToString(const FName& Name)
{
	return Name.ToString();
}

bool FName::IsValidObjectName(FText& OutReason) const
{
	const FString Text = ToString();
	if (IsNone())
	{
		OutReason = FText::FromString(TEXT("A name can't be empty."));
		return false;
	}
	const SIZE_T Invalid = Text.View().find_first_of(INVALID_OBJECTNAME_CHARACTERS);
	if (Invalid != std::u16string_view::npos)
	{
		OutReason = FText::FromString(
			FString::Printf(TEXT("The name '%s' can't contain the character '%c'."), *Text, Text[static_cast<int32>(Invalid)]));
		return false;
	}
	return true;
}
