// Any bytes as an ini file: they are read, come back unchanged, and a key that is set in them is read back.

#include "Misc/ConfigCacheIni.h"
#include "Misc/ConfigText.h"
#include "Misc/TextEncoding.h"

#include <algorithm>
#include <cstdlib>

namespace
{
FConfigFile Read(const TArray<uint8>& Bytes)
{
	FConfigFile File;
	File.CombineFromBuffer(
		DecodeText({ reinterpret_cast<const char*>(Bytes.GetData()), static_cast<SIZE_T>(Bytes.Num()) }), TEXT("Fuzz.ini"));
	return File;
}

void Check(bool bHolds)
{
	if (!bHolds)
	{
		std::abort();
	}
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, SIZE_T Size)
{
	LogConfig.SetVerbosity(ELogVerbosity::NoLogging);
	const TArray<uint8> Bytes(Data, static_cast<int32>(Size));
	Read(Bytes);

	FConfigText Text;
	Text.SetBytes(Bytes);
	Check(Text.GetBytes() == Bytes);
	// Beyond Latin-1, so that such a file changes its encoding.
	const bool bWide = Size % 2 == 0;
	const FString Value = bWide ? TEXT("\u20AC") : TEXT("\u00E9");
	Text.SetKey(TEXT("S"), TEXT("K"), { TEXT("K=") + Value });
	FString Found;
	Check(Read(Text.GetBytes()).GetString(TEXT("S"), TEXT("K"), Found) && Found.Equals(Value));
	return 0;
}
