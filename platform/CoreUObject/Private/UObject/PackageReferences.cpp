#include "Misc/FileHelper.h"
#include "Misc/PackageName.h"
#include "PackageFile.h"
#include "UObject/PackageReader.h"

bool FPackageReader::MayReferTo(const FString& Filename, FName PackageName)
{
	TArray<uint8> Bytes;
	FPackageFile File;
	if (!FFileHelper::LoadFileToArray(Bytes, *Filename) || !File.Unpack(Bytes).IsEmpty())
	{
		return false;
	}
	const FString Wanted = PackageName.ToString();
	// A soft reference is among the names, which are kept without their numbers.
	return File.Imports.ContainsByPredicate(
			   [&Wanted](const FObjectImport& Import) { return FPackageName::ObjectPathToPackageName(Import.Path) == Wanted; }) ||
		File.Names.Contains(PackageName.GetPlainNameString());
}
