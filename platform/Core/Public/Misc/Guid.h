#pragma once

#include "Containers/UnrealString.h"

class FOutputDevice;
class UObject;

/** How a GUID is written. */
enum class EGuidFormats : uint8
{
	/** 32 hexadecimal digits in capitals. */
	Digits,
	DigitsLower,
	/** 8-4-4-4-12 digits in capitals. */
	DigitsWithHyphens,
	DigitsWithHyphensLower
};

/** A globally unique identifier; all zero when it is none. */
struct CORE_API FGuid
{
	constexpr FGuid() = default;
	constexpr FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{
	}
	/** Random, of version 4. */
	static FGuid NewGuid();

	bool IsValid() const { return (A | B | C | D) != 0; }
	void AppendString(FString& Out, EGuidFormats Format = EGuidFormats::Digits) const;
	FString ToString(EGuidFormats Format = EGuidFormats::Digits) const;
	/** Any of the formats. @return false, with nothing written, for any other text */
	static bool Parse(const FString& Text, FGuid& OutGuid);
	// As a property's value: 32 digits.
	bool ExportTextItem(FString& ValueStr, const FGuid& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	bool operator==(const FGuid&) const = default;

	uint32 A = 0;
	uint32 B = 0;
	uint32 C = 0;
	uint32 D = 0;
};

inline uint32 GetTypeHash(const FGuid& Guid)
{
	return Guid.A ^ Guid.B ^ Guid.C ^ Guid.D;
}
