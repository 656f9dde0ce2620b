#pragma once

#include "CoreMinimal.h"

#include <cstring>

/**
 * The first character at or behind At that JSON treats in a special way inside a string: a quotation mark, a backslash or a
 * control character; End when there is none. Looks at four characters at a time.
 */
inline const TCHAR* FindSpecial(const TCHAR* At, const TCHAR* End)
{
	constexpr uint64 Ones = 0x0001000100010001;
	constexpr uint64 Highs = 0x8000800080008000;
	const auto HasZero = [](uint64 Four) { return (Four - Ones) & ~Four & Highs; };
	for (; End - At >= 4; At += 4)
	{
		uint64 Four;
		std::memcpy(&Four, At, sizeof(Four));
		const uint64 Control = (Four - Ones * 0x20) & ~Four & Highs;
		if (Control | HasZero(Four ^ (Ones * '"')) | HasZero(Four ^ (Ones * '\\')))
		{
			break;
		}
	}
	while (At != End && *At >= 0x20 && *At != '"' && *At != '\\')
	{
		++At;
	}
	return At;
}
