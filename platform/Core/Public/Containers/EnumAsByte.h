#pragma once

#include "CoreTypes.h"

/** An enum of any size, kept in one byte. */
template <typename EnumType>
class TEnumAsByte
{
public:
	using EnumTypeName = EnumType;

	TEnumAsByte() = default;
	TEnumAsByte(EnumType InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}

	EnumType GetValue() const { return static_cast<EnumType>(Value); }
	operator EnumType() const { return GetValue(); }

private:
	uint8 Value = 0;
};
