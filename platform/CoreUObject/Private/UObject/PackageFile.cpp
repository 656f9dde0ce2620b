#include "PackageFile.h"

#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <zlib.h>

namespace
{
/** Objects in files do not lie deeper in each other. */
constexpr int32 MaxDepth = 256;
constexpr int64 CheckSumSize = sizeof(uint32);

template <typename ReadType>
uint32 ReadNumber(const ReadType* Bytes)
{
	uint32 Number = 0;
	std::memcpy(&Number, Bytes, sizeof(Number));
	return Number;
}
}

uint32 GetCheckSum(const uint8* Bytes, int64 Size)
{
	return static_cast<uint32>(crc32_z(0, Bytes, static_cast<SIZE_T>(Size)));
}

FString FPackagePrologue::FindFault() const
{
	if (Magic != RightMagic)
	{
		return TEXT("it is not a package");
	}
	if (Version > RightVersion)
	{
		return FString::Printf(TEXT("its version is %u, the newest that is known here %u"), Version, RightVersion);
	}
	return Version == 0 ? TEXT("it has no version") : TEXT("");
}

FString ReadPackageAssets(const FPackagePrologue& Prologue, const uint8* Section, TArray<FPackageAsset>& OutAssets)
{
	if (GetCheckSum(Section, Prologue.RegistrySize) != Prologue.RegistryCheckSum)
	{
		return TEXT("it is damaged");
	}
	FMemoryReader Reader(Section, Prologue.RegistrySize);
	Reader << OutAssets;
	return Reader.IsError() || Reader.Tell() != Reader.TotalSize() ? TEXT("its list of assets makes no sense") : TEXT("");
}

TArray<uint8> FPackageFile::Pack()
{
	TArray<uint8> Registry;
	FMemoryWriter RegistryWriter(Registry);
	RegistryWriter << Assets;

	FPackagePrologue Prologue;
	Prologue.RegistrySize = static_cast<uint32>(Registry.Num());
	Prologue.RegistryCheckSum = GetCheckSum(Registry.GetData(), Registry.Num());
	TArray<uint8> Bytes;
	Bytes.Reserve(Registry.Num() + Values.Num() + Exports.Num() * static_cast<int32>(sizeof(FObjectExport)));
	FMemoryWriter Writer(Bytes);
	Writer << Prologue;
	Writer.Serialize(Registry.GetData(), Registry.Num());
	Writer << Names << Imports << Exports;
	Writer.Serialize(Values.GetData(), Values.Num());
	uint32 CheckSum = GetCheckSum(Bytes.GetData(), Bytes.Num());
	Writer << CheckSum;
	return Bytes;
}

FString FPackageFile::Unpack(const TArray<uint8>& Bytes)
{
	const int64 Size = Bytes.Num() - CheckSumSize;
	FMemoryReader Reader(Bytes.GetData(), FMath::Max(Size, int64(0)));
	FPackagePrologue Prologue;
	Reader << Prologue;
	if (Reader.IsError())
	{
		return TEXT("it is cut off");
	}
	FString Fault = Prologue.FindFault();
	if (!Fault.IsEmpty())
	{
		return Fault;
	}
	if (GetCheckSum(Bytes.GetData(), Size) != ReadNumber(Bytes.GetData() + Size) ||
		Prologue.RegistrySize > static_cast<uint64>(Size - Reader.Tell()))
	{
		return TEXT("it is damaged or cut off");
	}
	Fault = ReadPackageAssets(Prologue, Bytes.GetData() + Reader.Tell(), Assets);
	Reader.Seek(Reader.Tell() + Prologue.RegistrySize);
	Reader << Names << Imports << Exports;
	if (Fault.IsEmpty() && Reader.IsError())
	{
		Fault = TEXT("its tables make no sense");
	}
	ValueBytes = Bytes.GetData() + Reader.Tell();
	return Fault.IsEmpty() ? FindFault(Size - Reader.Tell()) : Fault;
}

FString FPackageFile::FindFault(int64 ValuesSize) const
{
	const auto IsNumber = [this](int32 Number) { return Number <= Exports.Num() && Number >= -Imports.Num(); };
	TArray<int32> Depths;
	Depths.Reserve(Exports.Num());
	for (const FObjectExport& Export : Exports)
	{
		const bool bOuter = Export.Outer >= 0 && Export.Outer <= Depths.Num();
		Depths.Add(bOuter && Export.Outer > 0 ? Depths[Export.Outer - 1] + 1 : 1);
		const bool bValues = Export.Offset >= 0 && Export.Size >= 0 && Export.Offset <= ValuesSize - Export.Size;
		const bool bNumbers = Export.Class != 0 && IsNumber(Export.Class) && IsNumber(Export.Super) && IsNumber(Export.Archetype);
		if (!bOuter || !bValues || !bNumbers || Export.Name.IsNone() || Depths.Last() > MaxDepth)
		{
			return FString::Printf(TEXT("its object %d makes no sense"), Depths.Num());
		}
	}
	return FString();
}
