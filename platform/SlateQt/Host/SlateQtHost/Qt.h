#pragma once

// Qt's headers, for code that also has the engine's: both sides know a "check" and a "verify".

#pragma push_macro("check")
#pragma push_macro("verify")
#undef check
#undef verify
#include <QtWidgets/QtWidgets>
#pragma pop_macro("verify")
#pragma pop_macro("check")

#include "Containers/UnrealString.h"

inline QString ToQString(const FString& Text)
{
	return QString::fromUtf16(*Text, Text.Len());
}

inline FString ToFString(const QString& Text)
{
	return FString(Text.toStdU16String());
}
