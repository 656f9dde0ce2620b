#include "Containers/UnrealString.h"

#include "Containers/ScriptArray.h"
#include "Containers/StringConv.h"

#include <cmath>

namespace
{
/** A search for one text in another; the text found may be compared by its lower-case form. */
class FSearcher
{
public:
	FSearcher(std::u16string_view InNeedle, ESearchCase::Type SearchCase)
		: Needle(InNeedle)
		, bIgnoreCase(SearchCase == ESearchCase::IgnoreCase)
	{
		if (bIgnoreCase && !Needle.empty())
		{
			FirstLower = FChar::ToLower(Needle[0]);
			FirstUpper = FChar::ToUpper(Needle[0]);
		}
	}

	/** @return the first place at or behind From, or npos */
	SIZE_T Next(std::u16string_view Text, SIZE_T From) const
	{
		if (!bIgnoreCase || Needle.empty())
		{
			return Text.find(Needle, From);
		}
		for (SIZE_T Place = From; Place + Needle.size() <= Text.size(); ++Place)
		{
			if (Matches(Text, Place))
			{
				return Place;
			}
		}
		return std::u16string_view::npos;
	}

	/** @return the last place at or before From, or npos */
	SIZE_T Previous(std::u16string_view Text, SIZE_T From) const
	{
		if (!bIgnoreCase || Needle.empty())
		{
			return Text.rfind(Needle, From);
		}
		if (Needle.size() > Text.size())
		{
			return std::u16string_view::npos;
		}
		for (SIZE_T Place = std::min(From, Text.size() - Needle.size()) + 1; Place-- > 0;)
		{
			if (Matches(Text, Place))
			{
				return Place;
			}
		}
		return std::u16string_view::npos;
	}

private:
	bool Matches(std::u16string_view Text, SIZE_T Place) const
	{
		const TCHAR First = Text[Place];
		return (First == FirstLower || First == FirstUpper || FChar::ToLower(First) == FirstLower) &&
			FString::EqualsIgnoringCase(Text.substr(Place, Needle.size()), Needle);
	}

	std::u16string_view Needle;
	TCHAR FirstLower = 0;
	TCHAR FirstUpper = 0;
	bool bIgnoreCase;
};

bool AreEqual(std::u16string_view A, std::u16string_view B, ESearchCase::Type SearchCase)
{
	return SearchCase == ESearchCase::IgnoreCase ? FString::EqualsIgnoringCase(A, B) : A == B;
}

bool WildcardMatches(std::u16string_view Text, std::u16string_view Pattern)
{
	SIZE_T TextAt = 0;
	SIZE_T PatternAt = 0;
	SIZE_T StarAt = std::u16string_view::npos;
	SIZE_T StarText = 0;
	while (TextAt < Text.size())
	{
		if (PatternAt < Pattern.size() && Pattern[PatternAt] == '*')
		{
			StarAt = PatternAt++;
			StarText = TextAt;
		}
		else if (PatternAt < Pattern.size() && (Pattern[PatternAt] == '?' || Pattern[PatternAt] == Text[TextAt]))
		{
			++TextAt;
			++PatternAt;
		}
		else if (StarAt != std::u16string_view::npos)
		{
			PatternAt = StarAt + 1;
			TextAt = ++StarText;
		}
		else
		{
			return false;
		}
	}
	return Pattern.find_first_not_of('*', PatternAt) == std::u16string_view::npos;
}
}

void FScriptArray::Reallocate(int32 Count, int32 ElementSize, int32 Alignment)
{
	const auto Align = std::align_val_t(static_cast<SIZE_T>(Alignment));
	::operator delete(Data, Align);
	Data = Count ? ::operator new(static_cast<SIZE_T>(Count) * static_cast<SIZE_T>(ElementSize), Align) : nullptr;
	ArrayMax = Count;
	ArrayNum = 0;
}

FString::FString(const ANSICHAR* Utf8)
{
	if (Utf8)
	{
		FUtf8::AppendTo(Data, Utf8);
	}
}

bool FString::EqualsIgnoringCase(std::u16string_view A, std::u16string_view B)
{
	if (A.size() != B.size())
	{
		return false;
	}
	for (SIZE_T Index = 0; Index < A.size(); ++Index)
	{
		if (A[Index] != B[Index] && FChar::ToLower(A[Index]) != FChar::ToLower(B[Index]))
		{
			return false;
		}
	}
	return true;
}

uint32 FString::HashIgnoringCase(std::u16string_view Text)
{
	uint32 Hash = 2166136261u;
	for (const TCHAR Char : Text)
	{
		Hash = (Hash ^ FChar::ToLower(Char)) * 16777619u;
	}
	return MurmurFinalize32(Hash);
}

void FString::AppendInt(int32 Number)
{
	for (const char Digit : std::to_string(Number))
	{
		Data.push_back(static_cast<TCHAR>(Digit));
	}
}

FString& FString::operator/=(const TCHAR* Path)
{
	const bool bHasSlash = !Data.empty() && (Data.back() == '/' || Data.back() == '\\');
	const bool bBringsSlash = *Path == '/' || *Path == '\\';
	if (bHasSlash && bBringsSlash)
	{
		++Path;
	}
	else if (!Data.empty() && !bHasSlash && !bBringsSlash)
	{
		Data.push_back('/');
	}
	return Append(Path);
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return AreEqual(Data, Other.Data, SearchCase);
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	if (SearchCase == ESearchCase::CaseSensitive)
	{
		return Data.compare(Other.Data);
	}
	const SIZE_T Both = std::min(Data.size(), Other.Data.size());
	for (SIZE_T Index = 0; Index < Both; ++Index)
	{
		const int32 Difference = FChar::ToLower(Data[Index]) - FChar::ToLower(Other.Data[Index]);
		if (Difference != 0)
		{
			return Difference;
		}
	}
	return Len() - Other.Len();
}

int32 FString::Find(const FString& Text, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	const FSearcher Searcher(Text.View(), SearchCase);
	SIZE_T Found;
	if (SearchDir == ESearchDir::FromStart)
	{
		Found = Searcher.Next(Data, StartPosition == INDEX_NONE ? 0 : static_cast<SIZE_T>(Clamped(StartPosition)));
	}
	else
	{
		const int32 LastPlace = (StartPosition == INDEX_NONE ? Len() : Clamped(StartPosition)) - Text.Len();
		Found = LastPlace < 0 ? std::u16string::npos : Searcher.Previous(Data, static_cast<SIZE_T>(LastPlace));
	}
	return Found == std::u16string::npos ? INDEX_NONE : static_cast<int32>(Found);
}

int32 FString::Find(const TCHAR* Text, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	return Find(FString(Text), SearchCase, SearchDir, StartPosition);
}

bool FString::FindChar(TCHAR Char, int32& OutIndex) const
{
	const SIZE_T Found = Data.find(Char);
	OutIndex = Found == std::u16string::npos ? INDEX_NONE : static_cast<int32>(Found);
	return OutIndex != INDEX_NONE;
}

bool FString::FindLastChar(TCHAR Char, int32& OutIndex) const
{
	const SIZE_T Found = Data.rfind(Char);
	OutIndex = Found == std::u16string::npos ? INDEX_NONE : static_cast<int32>(Found);
	return OutIndex != INDEX_NONE;
}

bool FString::StartsWith(const FString& Prefix, ESearchCase::Type SearchCase) const
{
	return !Prefix.IsEmpty() && Prefix.Len() <= Len() && AreEqual(View().substr(0, Prefix.Data.size()), Prefix.Data, SearchCase);
}

bool FString::EndsWith(const FString& Suffix, ESearchCase::Type SearchCase) const
{
	return !Suffix.IsEmpty() && Suffix.Len() <= Len() && AreEqual(View().substr(Data.size() - Suffix.Data.size()), Suffix.Data, SearchCase);
}

bool FString::RemoveFromStart(const FString& Prefix, ESearchCase::Type SearchCase)
{
	const bool bStarts = StartsWith(Prefix, SearchCase);
	if (bStarts)
	{
		RemoveAt(0, Prefix.Len());
	}
	return bStarts;
}

bool FString::RemoveFromEnd(const FString& Suffix, ESearchCase::Type SearchCase)
{
	const bool bEnds = EndsWith(Suffix, SearchCase);
	if (bEnds)
	{
		RemoveAt(Len() - Suffix.Len(), Suffix.Len());
	}
	return bEnds;
}

bool FString::MatchesWildcard(const FString& Pattern, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::IgnoreCase ? WildcardMatches(ToLower().View(), Pattern.ToLower().View())
												 : WildcardMatches(View(), Pattern.View());
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int64 End = std::min<int64>(static_cast<int64>(Start) + std::max(Count, 0), Len());
	const int32 From = Clamped(Start);
	return End > From ? FString(View().substr(static_cast<SIZE_T>(From), static_cast<SIZE_T>(End - From))) : FString();
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase)
{
	const std::u16string Needle(From);
	if (Needle.empty())
	{
		return 0;
	}
	const FSearcher Searcher(Needle, SearchCase);
	SIZE_T Place = Searcher.Next(Data, 0);
	if (Place == std::u16string::npos)
	{
		return 0;
	}
	const std::u16string Replacement(To);
	std::u16string Result;
	Result.reserve(Data.size());
	int32 Count = 0;
	SIZE_T Copied = 0;
	for (; Place != std::u16string::npos; Place = Searcher.Next(Data, Copied))
	{
		Result.append(Data, Copied, Place - Copied).append(Replacement);
		Copied = Place + Needle.size();
		++Count;
	}
	Result.append(Data, Copied);
	Data = std::move(Result);
	return Count;
}

void FString::ReplaceCharInline(TCHAR From, TCHAR To)
{
	std::replace(Data.begin(), Data.end(), From, To);
}

FString FString::TrimStart() const
{
	const auto First = std::find_if_not(Data.begin(), Data.end(), &FChar::IsWhitespace);
	return FString(View().substr(static_cast<SIZE_T>(First - Data.begin())));
}

FString FString::TrimEnd() const
{
	const auto Last = std::find_if_not(Data.rbegin(), Data.rend(), &FChar::IsWhitespace);
	return FString(View().substr(0, static_cast<SIZE_T>(Data.rend() - Last)));
}

FString FString::TrimStartAndEnd() const
{
	return TrimStart().TrimEnd();
}

FString FString::ToLower() const
{
	FString Result(*this);
	std::transform(Result.begin(), Result.end(), Result.begin(), &FChar::ToLower);
	return Result;
}

FString FString::ToUpper() const
{
	FString Result(*this);
	std::transform(Result.begin(), Result.end(), Result.begin(), &FChar::ToUpper);
	return Result;
}

int32 FString::ParseIntoArray(TArray<FString>& Out, const TCHAR* Delimiter, bool bCullEmpty) const
{
	Out.Reset();
	const std::u16string_view Mark(Delimiter);
	if (IsEmpty())
	{
		return 0;
	}
	SIZE_T From = 0;
	for (;;)
	{
		const SIZE_T Found = Mark.empty() ? std::u16string::npos : Data.find(Mark, From);
		const SIZE_T End = std::min(Found, Data.size());
		if (End > From || !bCullEmpty)
		{
			Out.Emplace(View().substr(From, End - From));
		}
		if (Found == std::u16string::npos)
		{
			return Out.Num();
		}
		From = Found + Mark.size();
	}
}

int32 FString::ParseIntoArrayLines(TArray<FString>& Out, bool bCullEmpty) const
{
	Out.Reset();
	SIZE_T From = 0;
	while (From < Data.size())
	{
		const SIZE_T End = std::min(Data.find_first_of(u"\r\n", From), Data.size());
		if (End > From || !bCullEmpty)
		{
			Out.Emplace(View().substr(From, End - From));
		}
		const bool bPair = End + 1 < Data.size() && Data[End] == '\r' && Data[End + 1] == '\n';
		From = End + (bPair ? 2 : 1);
	}
	return Out.Num();
}

bool FString::Split(
	const FString& Separator, FString* OutLeft, FString* OutRight, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Place = Find(Separator, SearchCase, SearchDir);
	if (Place == INDEX_NONE)
	{
		return false;
	}
	// The results may go to this text or to the separator.
	FString Before = Left(Place);
	FString Behind = RightChop(Place + Separator.Len());
	if (OutLeft)
	{
		*OutLeft = MoveTemp(Before);
	}
	if (OutRight)
	{
		*OutRight = MoveTemp(Behind);
	}
	return true;
}

FString FString::FromInt(int32 Number)
{
	FString Result;
	Result.AppendInt(Number);
	return Result;
}

FString FString::SanitizeFloat(double Number, int32 MinFractionalDigits)
{
	std::u16string Text = Printf(TEXT("%f"), Number).Data;
	const SIZE_T Point = Text.find('.');
	if (Point == std::u16string::npos)
	{
		return FString(std::move(Text)); // infinity and not-a-number
	}
	Text.erase(std::max(Text.find_last_not_of('0'), Point) + 1);
	Text.append(static_cast<SIZE_T>(std::max(0, MinFractionalDigits - static_cast<int32>(Text.size() - Point - 1))), '0');
	if (Text.back() == '.')
	{
		Text.pop_back();
	}
	if (Text.find_first_not_of(u"-0.") == std::u16string::npos && Text[0] == '-')
	{
		Text.erase(0, 1);
	}
	return FString(std::move(Text));
}

FString LexToString(int32 Number)
{
	return FString::FromInt(Number);
}

FString LexToString(int64 Number)
{
	return FString(std::to_string(Number).c_str());
}

FString LexToString(bool bValue)
{
	return bValue ? TEXT("true") : TEXT("false");
}

FString LexToString(double Number)
{
	return FString::SanitizeFloat(Number);
}
