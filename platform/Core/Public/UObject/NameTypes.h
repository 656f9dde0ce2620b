#pragma once

#include "Containers/UnrealString.h"

/** What no object's name holds. */
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")

/** Well-known names. */
enum EName : uint32
{
	NAME_None = 0
};

/**
 * A short text that is kept once for the process: names are compared by number and ignore case, but each prints its own spelling.
 * A tail "_<number>" (no leading zero) is kept apart from the text. At most 1,023 characters; what is beyond is cut off.
 */
class CORE_API FName
{
public:
	FName() = default;
	FName(EName) {}
	FName(const TCHAR* Text);
	FName(const ANSICHAR* Utf8);
	explicit FName(const FString& Text);
	FName(const FName& Base, int32 InNumber)
		: ComparisonIndex(Base.ComparisonIndex)
		, DisplayIndex(Base.DisplayIndex)
		, Number(InNumber)
	{
	}

	FString ToString() const;
	void ToString(FString& Out) const { Out = ToString(); }
	/** Whether an object may have the name. @param OutReason why not */
	bool IsValidObjectName(class FText& OutReason) const;
	/** The text without the number. */
	FString GetPlainNameString() const;
	bool IsNone() const { return ComparisonIndex == 0 && Number == 0; }
	bool IsValid() const { return true; }
	/** 0 when there is none, else the number shown plus one. */
	int32 GetNumber() const { return Number; }
	/** Which entry of the table of names prints the name, without its number. */
	uint32 GetDisplayIndex() const { return DisplayIndex; }

	bool operator==(const FName& Other) const { return ComparisonIndex == Other.ComparisonIndex && Number == Other.Number; }
	bool operator==(EName Other) const { return *this == FName(Other); }
	/** By text, ignoring case. */
	int32 Compare(const FName& Other) const;
	bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }

	friend uint32 GetTypeHash(const FName& Name) { return MurmurFinalize32(Name.ComparisonIndex * 31u + static_cast<uint32>(Name.Number)); }

private:
	void Init(std::u16string_view Text);

	/** Which entry of the table: the first spelling seen, for comparing; and the spelling given, for printing. */
	uint32 ComparisonIndex = 0;
	uint32 DisplayIndex = 0;
	int32 Number = 0;
};

CORE_API FString LexToString(const FName& Name);
