#include "Misc/Char.h"

#include <array>
#include <cwctype>
#include <locale.h>

namespace
{
/** Simple case mappings of the basic plane, from the C library's Unicode tables. */
struct FCaseTables
{
	FCaseTables()
	{
		const locale_t Unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
		for (uint32 Char = 0; Char < 0x10000; ++Char)
		{
			Lower[Char] = Narrow(Unicode ? towlower_l(static_cast<wint_t>(Char), Unicode) : Char, Char);
			Upper[Char] = Narrow(Unicode ? towupper_l(static_cast<wint_t>(Char), Unicode) : Char, Char);
		}
		if (Unicode)
		{
			freelocale(Unicode);
		}
	}

	static TCHAR Narrow(wint_t Mapped, uint32 Char) { return static_cast<TCHAR>(Mapped < 0x10000 ? Mapped : Char); }

	static const FCaseTables& Get()
	{
		static const FCaseTables Tables;
		return Tables;
	}

	std::array<TCHAR, 0x10000> Lower;
	std::array<TCHAR, 0x10000> Upper;
};
}

bool FChar::IsWideWhitespace(TCHAR Char)
{
	return Char == 0x1680 || (Char >= 0x2000 && Char <= 0x200A) || Char == 0x2028 || Char == 0x2029 || Char == 0x202F || Char == 0x205F ||
		Char == 0x3000;
}

TCHAR FChar::ToLowerWide(TCHAR Char)
{
	return FCaseTables::Get().Lower[Char];
}

TCHAR FChar::ToUpperWide(TCHAR Char)
{
	return FCaseTables::Get().Upper[Char];
}
