#include "Misc/Guid.h"

#include <random>

FGuid FGuid::NewGuid()
{
	thread_local std::random_device Random;
	FGuid Guid(Random(), Random(), Random(), Random());
	Guid.B = (Guid.B & 0xffff0fff) | 0x00004000;
	Guid.C = (Guid.C & 0x3fffffff) | 0x80000000;
	return Guid;
}

void FGuid::AppendString(FString& Out, EGuidFormats Format) const
{
	static const TCHAR* const Formats[] = {
		TEXT("%08X%04X%04X%04X%04X%08X"),
		TEXT("%08x%04x%04x%04x%04x%08x"),
		TEXT("%08X-%04X-%04X-%04X-%04X%08X"),
		TEXT("%08x-%04x-%04x-%04x-%04x%08x"),
	};
	Out.Appendf(Formats[static_cast<uint8>(Format)], A, B >> 16, B & 0xffff, C >> 16, C & 0xffff, D);
}

FString FGuid::ToString(EGuidFormats Format) const
{
	FString Result;
	AppendString(Result, Format);
	return Result;
}
