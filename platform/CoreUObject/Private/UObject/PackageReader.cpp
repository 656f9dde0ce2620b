#include "UObject/PackageReader.h"

#include "HAL/PlatformFileManager.h"
#include "PackageFile.h"
#include "Serialization/MemoryReader.h"

#include <array>

namespace
{
/** Enough for the sections of most packages, so that one read gets them. */
constexpr int64 FirstRead = 1024;
}

bool FPackageReader::ReadAssets(const FString& Filename, FName PackageName, TArray<FAssetData>& OutAssets, FString& OutError)
{
	const TUniquePtr<IFileHandle> File = FPlatformFileManager::Get().GetPlatformFile().OpenRead(*Filename);
	return ReadAssets(File.Get(), File ? File->Size() : -1, PackageName, OutAssets, OutError);
}

bool FPackageReader::ReadAssets(IFileHandle* File, int64 FileSize, FName PackageName, TArray<FAssetData>& OutAssets, FString& OutError)
{
	std::array<uint8, FirstRead> First;
	const int64 FirstSize = FMath::Min(FileSize, FirstRead);
	if (FirstSize < FPackagePrologue::Size || !File->Read(First.data(), FirstSize))
	{
		OutError = FileSize < 0 ? TEXT("it can't be read") : TEXT("it is cut off");
		return false;
	}
	FMemoryReader Reader(First.data(), FirstSize);
	FPackagePrologue Prologue;
	Reader << Prologue;
	OutError = Prologue.FindFault();
	const int64 SectionEnd = FPackagePrologue::Size + Prologue.RegistrySize;
	if (OutError.IsEmpty() && SectionEnd > FileSize)
	{
		OutError = TEXT("it is cut off");
	}
	if (!OutError.IsEmpty())
	{
		return false;
	}
	TArray<uint8> Long;
	if (SectionEnd > FirstSize)
	{
		Long.Append(First.data(), static_cast<int32>(FirstSize));
		Long.SetNum(static_cast<int32>(SectionEnd));
		if (!File->Read(Long.GetData() + FirstSize, SectionEnd - FirstSize))
		{
			OutError = TEXT("it can't be read");
			return false;
		}
	}
	TArray<FPackageAsset> Assets;
	OutError = ReadPackageAssets(Prologue, (Long.IsEmpty() ? First.data() : Long.GetData()) + FPackagePrologue::Size, Assets);
	for (FPackageAsset& Asset : Assets)
	{
		if (OutError.IsEmpty())
		{
			OutAssets.Emplace(PackageName, Asset.Name, Asset.Class, MoveTemp(Asset.Tags));
		}
	}
	return OutError.IsEmpty();
}
