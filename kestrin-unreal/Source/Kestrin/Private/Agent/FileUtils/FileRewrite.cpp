#include "Agent/FileUtils/FileRewrite.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Kestrin.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"

namespace
{
// A copy is three files of one name: "<id>.path" holds where the bytes belong and is there first; "<id>.part" is the copy while
// it is made; "<id>.old" is the whole copy. So an ".old" that is found is complete, whenever the editor was killed.
const TCHAR* const PathExtension = TEXT(".path");
const TCHAR* const PartExtension = TEXT(".part");
const TCHAR* const CopyExtension = TEXT(".old");

FString GetCopyDirectory()
{
	return FPaths::Combine(FPaths::ProjectPluginsDir(), TEXT("kestrin-unreal"), TEXT("Saved"), TEXT("Rewrites"));
}

IPlatformFile& GetPlatformFile()
{
	return FPlatformFileManager::Get().GetPlatformFile();
}

/** The old bytes of one file, out of harm's way. */
class FRewriteCopy
{
public:
	FRewriteCopy(const FString& InBase, const FString& InFullPath)
		: Base(InBase)
		, FullPath(InFullPath)
	{
	}

	bool Make() const
	{
		if (!GetPlatformFile().CreateDirectoryTree(*FPaths::GetPath(Base)) ||
			!FFileHelper::SaveStringToFile(FullPath, *(Base + PathExtension), FFileHelper::EEncodingOptions::ForceUTF8) ||
			!GetPlatformFile().CopyFile(*(Base + PartExtension), *FullPath) ||
			!GetPlatformFile().MoveFile(*(Base + CopyExtension), *(Base + PartExtension)))
		{
			Remove();
			return false;
		}
		return true;
	}

	/** Leaves the copy where it is when it can't be put back. */
	bool PutBack() const
	{
		if (GetPlatformFile().FileExists(*FullPath) && !IFileManager::Get().Delete(*FullPath, false, true, true))
		{
			return false;
		}
		if (!GetPlatformFile().CreateDirectoryTree(*FPaths::GetPath(FullPath)) ||
			!GetPlatformFile().MoveFile(*FullPath, *(Base + CopyExtension)))
		{
			return false;
		}
		Remove();
		return true;
	}

	void Remove() const
	{
		// The path goes last: a copy without one could not be put back.
		for (const TCHAR* Extension : { PartExtension, CopyExtension, PathExtension })
		{
			IFileManager::Get().Delete(*(Base + Extension), false, true, true);
		}
	}

private:
	FString Base;
	FString FullPath;
};
}

EFileRewrite RewriteFile(const FString& FullPath, TFunctionRef<bool()> Write)
{
	const FRewriteCopy Copy(FPaths::Combine(GetCopyDirectory(), FGuid::NewGuid().ToString()), FullPath);
	if (!Copy.Make())
	{
		return EFileRewrite::DeleteFailed;
	}
	if (!GetPlatformFile().DeleteFile(*FullPath))
	{
		Copy.Remove();
		return EFileRewrite::DeleteFailed;
	}
	if (Write())
	{
		Copy.Remove();
		return EFileRewrite::Done;
	}
	if (!Copy.PutBack())
	{
		UE_LOG(LogKestrin, Error, TEXT("%s could not be written, nor its old content put back. It is kept in %s."), *FullPath,
			*GetCopyDirectory());
	}
	return EFileRewrite::WriteFailed;
}

void RestoreInterruptedRewrites()
{
	TArray<FString> PathFiles;
	GetPlatformFile().FindFiles(PathFiles, *GetCopyDirectory(), PathExtension);
	for (const FString& PathFile : PathFiles)
	{
		const FString Base = PathFile.LeftChop(FCString::Strlen(PathExtension));
		FString FullPath;
		FFileHelper::LoadFileToString(FullPath, *PathFile);
		const FRewriteCopy Copy(Base, FullPath);
		if (FullPath.IsEmpty() || !GetPlatformFile().FileExists(*(Base + CopyExtension)))
		{
			Copy.Remove(); // the file itself had not been touched yet
		}
		else if (Copy.PutBack())
		{
			UE_LOG(LogKestrin, Warning, TEXT("A change of %s was interrupted; its old content has been put back."), *FullPath);
		}
		else
		{
			UE_LOG(LogKestrin, Error, TEXT("A change of %s was interrupted, and its old content could not be put back from %s."), *FullPath,
				*(Base + CopyExtension));
		}
	}
}
