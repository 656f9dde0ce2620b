#pragma once

#include "Containers/Array.h"
#include "Misc/CString.h"

#include <compare>
#include <string>
#include <string_view>

namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

/**
 * A text of UTF-16 code units.
 *
 * The operators ==, !=, < and > ignore case, as do the searches unless they are told otherwise; Equals and Compare heed it.
 */
class CORE_API FString
{
public:
	FString() = default;
	FString(const TCHAR* Text)
		: Data(Text ? Text : u"")
	{
	}
	FString(const ANSICHAR* Utf8);
	FString(int32 Len, const TCHAR* Text)
		: Data(Text, static_cast<SIZE_T>(Len))
	{
	}
	explicit FString(std::u16string_view Text)
		: Data(Text)
	{
	}
	explicit FString(std::u16string&& Text)
		: Data(std::move(Text))
	{
	}
	static FString ConstructFromPtrSize(const TCHAR* Text, int32 Len) { return FString(Len, Text); }

	/** The stand-in's own way to the text; the engine has none of this name. */
	const std::u16string& Native() const { return Data; }
	std::u16string& Native() { return Data; }
	std::u16string_view View() const { return Data; }

	const TCHAR* operator*() const { return Data.c_str(); }
	TCHAR& operator[](int32 Index)
	{
		check(IsValidIndex(Index));
		return Data[static_cast<SIZE_T>(Index)];
	}
	TCHAR operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return Data[static_cast<SIZE_T>(Index)];
	}
	int32 Len() const { return static_cast<int32>(Data.size()); }
	bool IsEmpty() const { return Data.empty(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	TCHAR* begin() { return Data.data(); }
	TCHAR* end() { return Data.data() + Data.size(); }
	const TCHAR* begin() const { return Data.data(); }
	const TCHAR* end() const { return Data.data() + Data.size(); }

	/** Empties and gives the memory back. */
	void Empty() { std::u16string().swap(Data); }
	void Empty(int32 Slack)
	{
		Empty();
		Reserve(Slack);
	}
	/** Empties and keeps the memory. */
	void Reset() { Data.clear(); }
	void Reserve(int32 Count) { Data.reserve(static_cast<SIZE_T>(Count)); }

	FString& AppendChar(TCHAR Char)
	{
		Data.push_back(Char);
		return *this;
	}
	FString& Append(const FString& Text)
	{
		Data.append(Text.Data);
		return *this;
	}
	FString& Append(const TCHAR* Text)
	{
		Data.append(Text);
		return *this;
	}
	FString& AppendChars(const TCHAR* Text, int32 Count)
	{
		Data.append(Text, static_cast<SIZE_T>(Count));
		return *this;
	}
	void AppendInt(int32 Number);
	FString& operator+=(const FString& Text) { return Append(Text); }
	FString& operator+=(const TCHAR* Text) { return Append(Text); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }
	friend FString operator+(FString A, const FString& B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString A, const TCHAR* B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(const TCHAR* A, const FString& B) { return MoveTemp(FString(A).Append(B)); }
	friend FString operator+(FString A, TCHAR B) { return MoveTemp(A.AppendChar(B)); }
	/** Joins as paths: one "/" between the two. An empty path behind leaves the "/" at the end. */
	FString& operator/=(const TCHAR* Path);
	friend FString operator/(FString A, const FString& B) { return MoveTemp(A /= *B); }
	friend FString operator/(FString A, const TCHAR* B) { return MoveTemp(A /= B); }
	void InsertAt(int32 Index, const FString& Text) { Data.insert(static_cast<SIZE_T>(Index), Text.Data); }
	void RemoveAt(int32 Index, int32 Count = 1) { Data.erase(static_cast<SIZE_T>(Index), static_cast<SIZE_T>(Count)); }

	bool operator==(const FString& Other) const { return EqualsIgnoringCase(Data, Other.Data); }
	bool operator==(const TCHAR* Other) const { return EqualsIgnoringCase(Data, Other); }
	std::weak_ordering operator<=>(const FString& Other) const { return Compare(Other, ESearchCase::IgnoreCase) <=> 0; }
	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	/** Below, equal or above zero. */
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	/** @return the index of the first character of the place found, or INDEX_NONE */
	int32 Find(const TCHAR* Text, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	int32 Find(const FString& Text, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	bool Contains(const FString& Text, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Text, SearchCase) != INDEX_NONE;
	}
	bool Contains(const TCHAR* Text, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Text, SearchCase) != INDEX_NONE;
	}
	bool FindChar(TCHAR Char, int32& OutIndex) const;
	bool FindLastChar(TCHAR Char, int32& OutIndex) const;
	/** False for an empty Prefix. */
	bool StartsWith(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** False for an empty Suffix. */
	bool EndsWith(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool RemoveFromStart(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	/** Whether the text fits a pattern with "*" and "?". */
	bool MatchesWildcard(const FString& Pattern, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;

	FString Left(int32 Count) const { return Mid(0, Count); }
	FString LeftChop(int32 Count) const { return Left(Len() - Count); }
	FString Right(int32 Count) const { return Mid(Len() - Clamped(Count)); }
	FString RightChop(int32 Count) const { return Mid(Clamped(Count)); }
	/** The part from Start on; what lies outside the text is cut off. */
	FString Mid(int32 Start, int32 Count = MAX_COUNT) const;
	void LeftInline(int32 Count) { *this = Left(Count); }
	void RightChopInline(int32 Count) { *this = RightChop(Count); }
	void MidInline(int32 Start, int32 Count = MAX_COUNT) { *this = Mid(Start, Count); }

	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** Replaces each place that does not overlap the one before, from the left. @return how many */
	int32 ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	void ReplaceCharInline(TCHAR From, TCHAR To);
	FString TrimStart() const;
	FString TrimEnd() const;
	FString TrimStartAndEnd() const;
	void TrimStartInline() { *this = TrimStart(); }
	void TrimEndInline() { *this = TrimEnd(); }
	void TrimStartAndEndInline() { *this = TrimStartAndEnd(); }
	FString ToLower() const;
	FString ToUpper() const;

	/** Splits at each Delimiter; Out is emptied first. @return how many parts */
	int32 ParseIntoArray(TArray<FString>& Out, const TCHAR* Delimiter, bool bCullEmpty = true) const;
	/** Splits at "\r\n", "\r" and "\n". A line end that ends the text starts no further line. */
	int32 ParseIntoArrayLines(TArray<FString>& Out, bool bCullEmpty = true) const;
	/** Splits at the first (or last) Separator; false, with nothing written, when there is none. */
	bool Split(const FString& Separator, FString* OutLeft, FString* OutRight, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase,
		ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	template <typename RangeType>
	static FString Join(const RangeType& Parts, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const FString& Part : Parts)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += Part;
		}
		return Result;
	}

	/** As the C library's printf; %s takes TCHAR strings, %hs UTF-8 ones. */
	template <typename... ArgTypes>
	static FString Printf(const TCHAR* Format, ArgTypes... Args)
	{
		static_assert((... && (std::is_scalar_v<ArgTypes>)), "a format's arguments are numbers and pointers: write *String");
		return PrintfImpl(Format, Args...);
	}
	template <typename... ArgTypes>
	FString& Appendf(const TCHAR* Format, ArgTypes... Args)
	{
		return Append(Printf(Format, Args...));
	}
	static FString FromInt(int32 Number);
	static FString Chr(TCHAR Char) { return FString(1, &Char); }
	static FString ChrN(int32 Count, TCHAR Char) { return FString(std::u16string(static_cast<SIZE_T>(Count), Char)); }
	/** Six decimals without the zeros at the end, but at least as many decimals as asked for. */
	static FString SanitizeFloat(double Number, int32 MinFractionalDigits = 1);
	bool IsNumeric() const { return FCString::IsNumeric(**this); }
	bool ToBool() const { return FCString::ToBool(**this); }

	static bool EqualsIgnoringCase(std::u16string_view A, std::u16string_view B);
	static uint32 HashIgnoringCase(std::u16string_view Text);

private:
	static constexpr int32 MAX_COUNT = 0x7fffffff;

	static FString PrintfImpl(const TCHAR* Format, ...);
	int32 Clamped(int32 Count) const { return Count < 0 ? 0 : (Count > Len() ? Len() : Count); }

	std::u16string Data;
};

inline uint32 GetTypeHash(const FString& Text)
{
	return FString::HashIgnoringCase(Text.View());
}

/** A value as text. */
CORE_API FString LexToString(int32 Number);
CORE_API FString LexToString(int64 Number);
CORE_API FString LexToString(bool bValue);
CORE_API FString LexToString(double Number);
inline const FString& LexToString(const FString& Text)
{
	return Text;
}
