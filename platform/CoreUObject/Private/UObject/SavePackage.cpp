#include "UObject/SavePackage.h"

#include "HAL/PlatformFileManager.h"
#include "LinkerSave.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogSavePackage, Log, All);

namespace
{
/** Writes beside the file and renames, so that a crash leaves the old file or the new one. @return empty, or what went wrong */
FString WriteFile(const FString& Filename, const TArray<uint8>& Bytes)
{
	IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
	const FString Folder = FPaths::GetPath(Filename);
	if (Files.IsReadOnly(*Filename))
	{
		return TEXT("the file is read-only");
	}
	if (!Files.CreateDirectoryTree(*Folder))
	{
		return TEXT("its folder can't be made");
	}
	const FString Beside = FPaths::CreateTempFilename(*Folder, *(TEXT(".") + FPaths::GetBaseFilename(Filename)));
	TUniquePtr<IFileHandle> File = Files.OpenWrite(*Beside);
	if (!File)
	{
		return TEXT("no file can be made in its folder");
	}
	const bool bWritten = File->Write(Bytes.GetData(), Bytes.Num()) && File->Flush();
	File.Reset();
	if (bWritten && Files.MoveFile(*Filename, *Beside))
	{
		return FString();
	}
	Files.DeleteFile(*Beside);
	return bWritten ? TEXT("the new file can't take the old one's place") : TEXT("not all of it could be written");
}

/** Gives numbers to the asset and to what has one of the flags. */
void AddTopLevel(FLinkerSave& Linker, UPackage* Package, UObject* Asset, EObjectFlags TopLevelFlags)
{
	Linker.GetNumber(Asset);
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects);
	for (UObject* const Object : Objects)
	{
		if (Object->HasAnyFlags(TopLevelFlags))
		{
			Linker.GetNumber(Object);
		}
	}
}

FSavePackageResultStruct Fail(const FString& Filename, const FString& Reason)
{
	UE_LOG(LogSavePackage, Error, TEXT("%s is not saved: %s"), *Filename, *Reason);
	return ESavePackageResult::Error;
}
}

FSavePackageResultStruct UPackage::Save(UPackage* Package, UObject* Asset, const TCHAR* Filename, const FSavePackageArgs& Args)
{
	if (!Package || !Package->CanBeSaved() || (Asset && !Asset->IsIn(Package)))
	{
		return Fail(Filename, TEXT("there is no such package with a file, or the asset is not in it"));
	}
	FLinkerSave Linker(Package);
	AddTopLevel(Linker, Package, Asset, Args.TopLevelFlags);
	Linker.WriteExports();
	if (Linker.File.Exports.IsEmpty())
	{
		return Fail(Filename, TEXT("the package has nothing to be saved"));
	}
	const TArray<uint8> Bytes = Linker.File.Pack();
	const FString Fault = WriteFile(FPaths::ConvertRelativePathToFull(Filename), Bytes);
	if (!Fault.IsEmpty())
	{
		return Fail(Filename, Fault);
	}
	Package->SetDirtyFlag(false);
	return { ESavePackageResult::Success, Bytes.Num() };
}

bool UPackage::SavePackage(UPackage* Package, UObject* Asset, const TCHAR* Filename, const FSavePackageArgs& Args)
{
	return Save(Package, Asset, Filename, Args).IsSuccessful();
}
