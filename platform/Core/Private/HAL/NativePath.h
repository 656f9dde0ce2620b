#pragma once

#include "Containers/StringConv.h"

#include <algorithm>

/** A path as the operating system takes it: UTF-8, with "/". */
inline std::string NativePath(const TCHAR* Path)
{
	std::string Native = FUtf8::Encode(std::u16string_view(Path));
	std::replace(Native.begin(), Native.end(), '\\', '/');
	return Native;
}

/** A directory's path with "/" at its end. */
inline FString WithEndingSlash(FString Directory)
{
	if (!Directory.View().ends_with(u'/'))
	{
		Directory += TEXT("/");
	}
	return Directory;
}
