#pragma once

#include "Containers/UnrealString.h"

/** A part of somebody else's text, which must outlive it. Not ended by a zero. */
class FStringView
{
public:
	FStringView() = default;
	FStringView(const TCHAR* Text)
		: View(Text)
	{
	}
	FStringView(const TCHAR* Text, int32 Len)
		: View(Text, static_cast<SIZE_T>(Len))
	{
	}
	FStringView(const FString& Text)
		: View(Text.View())
	{
	}

	const TCHAR* GetData() const { return View.data(); }
	int32 Len() const { return static_cast<int32>(View.size()); }
	bool IsEmpty() const { return View.empty(); }
	TCHAR operator[](int32 Index) const
	{
		check(Index >= 0 && Index < Len());
		return View[static_cast<SIZE_T>(Index)];
	}

	FStringView Left(int32 Count) const { return FStringView(View.substr(0, Clamped(Count))); }
	FStringView RightChop(int32 Count) const { return FStringView(View.substr(Clamped(Count))); }
	void LeftChopInline(int32 Count) { View.remove_suffix(Clamped(Count)); }
	void RightChopInline(int32 Count) { View.remove_prefix(Clamped(Count)); }
	FStringView TrimStartAndEnd() const
	{
		FStringView Result = *this;
		while (!Result.IsEmpty() && FChar::IsWhitespace(Result.View.front()))
		{
			Result.RightChopInline(1);
		}
		while (!Result.IsEmpty() && FChar::IsWhitespace(Result.View.back()))
		{
			Result.LeftChopInline(1);
		}
		return Result;
	}

	bool Equals(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return SearchCase == ESearchCase::IgnoreCase ? FString::EqualsIgnoringCase(View, Other.View) : View == Other.View;
	}
	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Prefix.Len() <= Len() && Left(Prefix.Len()).Equals(Prefix, SearchCase);
	}

private:
	explicit FStringView(std::u16string_view InView)
		: View(InView)
	{
	}
	SIZE_T Clamped(int32 Count) const { return static_cast<SIZE_T>(Count < 0 ? 0 : (Count > Len() ? Len() : Count)); }

	std::u16string_view View;
};
