// Any bytes as a package, with check sums that are right: it is loaded or refused, and what is refused leaves nothing behind. What is
// loaded is saved and loaded again.

#include "UObject/LinkerSave.h"
#include "UObject/PackageLoader.h"
#include "UObject/UObjectGlobals.h"

#include <cstdlib>
#include <cstring>

namespace
{
void Check(bool bHolds)
{
	if (!bHolds)
	{
		std::abort();
	}
}

/** Overwrites the check sums, which no chance would get right. */
void Seal(TArray<uint8>& Bytes)
{
	constexpr int32 SumSize = sizeof(uint32);
	uint32 Prologue[4];
	if (Bytes.Num() < static_cast<int32>(sizeof(Prologue)) + SumSize)
	{
		return;
	}
	std::memcpy(Prologue, Bytes.GetData(), sizeof(Prologue));
	Prologue[0] = FPackagePrologue::RightMagic;
	Prologue[1] = FPackagePrologue::RightVersion;
	const uint32 Room = static_cast<uint32>(Bytes.Num()) - SumSize - sizeof(Prologue);
	Prologue[2] = Prologue[2] > Room ? Prologue[2] % (Room + 1) : Prologue[2];
	Prologue[3] = GetCheckSum(Bytes.GetData() + sizeof(Prologue), Prologue[2]);
	std::memcpy(Bytes.GetData(), Prologue, sizeof(Prologue));
	const uint32 Sum = GetCheckSum(Bytes.GetData(), Bytes.Num() - SumSize);
	std::memcpy(Bytes.GetData() + Bytes.Num() - SumSize, &Sum, SumSize);
}

UPackage* Load(const TArray<uint8>& Bytes)
{
	FPackageLoader Loader(LOAD_Quiet);
	Loader.Open(TEXT("/Game/Fuzzed"), TEXT("Fuzzed.uasset"), Bytes);
	Loader.Finish();
	return FindPackage(nullptr, TEXT("/Game/Fuzzed"));
}

TArray<uint8> Save(UPackage* Package)
{
	FLinkerSave Linker(Package);
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects);
	for (UObject* const Object : Objects)
	{
		Linker.GetNumber(Object);
	}
	Linker.WriteExports();
	return Linker.File.Pack();
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	ProcessNewlyLoadedUObjects();
	TArray<uint8> Bytes(Data, static_cast<int32>(Size));
	Seal(Bytes);
	if (UPackage* const Package = Load(Bytes))
	{
		const TArray<uint8> Saved = Save(Package);
		CollectGarbage(RF_NoFlags);
		Check(!FindPackage(nullptr, TEXT("/Game/Fuzzed")));
		Check(Load(Saved) != nullptr);
	}
	CollectGarbage(RF_NoFlags);
	Check(!FindPackage(nullptr, TEXT("/Game/Fuzzed")));
	return 0;
}
