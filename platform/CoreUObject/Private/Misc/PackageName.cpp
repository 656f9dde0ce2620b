#include "Misc/PackageName.h"

#include "Misc/Paths.h"
#include "UObject/Package.h"

namespace
{
constexpr std::u16string_view InvalidCharacters = u"\\:*?\"<>|' ,.&!~\n\r\t@#";
constexpr int32 MaxLength = 1000;

struct FRoot
{
	const TCHAR* Name;
	FString Folder;
};

/** The roots of packages that have files. */
TArray<FRoot> GetRoots()
{
	return { { TEXT("/Game/"), FPaths::ProjectContentDir() }, { TEXT("/Engine/"), FPaths::EngineDir() + TEXT("Content/") } };
}

/** Most callers want no reason, so it is put together only for those that do. */
bool FailWith(FText* OutReason, const FString& Name, const TCHAR* What)
{
	if (OutReason)
	{
		*OutReason = FText::FromString(TEXT("Input '") + Name.Left(MaxLength) + TEXT("' ") + What);
	}
	return false;
}

/** From the last of Separators on, without it; all of Text when there is none. */
FString BehindLast(const FString& Text, std::u16string_view Separators)
{
	const SIZE_T Place = Text.View().find_last_of(Separators);
	return Place == std::u16string_view::npos ? Text : FString(Text.View().substr(Place + 1));
}
}

const FString& FPackageName::GetAssetPackageExtension()
{
	static const FString Extension(TEXT(".uasset"));
	return Extension;
}

const FString& FPackageName::GetMapPackageExtension()
{
	static const FString Extension(TEXT(".umap"));
	return Extension;
}

FString FPackageName::LongPackageNameToFilename(const FString& LongPackageName, const FString& Extension)
{
	FString Filename;
	const bool bConverted = TryConvertLongPackageNameToFilename(LongPackageName, Filename, Extension);
	checkf(bConverted, TEXT("'%s' is not the name of a package with a file"), *LongPackageName);
	return Filename;
}

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& LongPackageName, FString& OutFilename, const FString& Extension)
{
	for (const FRoot& Root : GetRoots())
	{
		if (LongPackageName.StartsWith(Root.Name))
		{
			OutFilename = Root.Folder + LongPackageName.RightChop(FCString::Strlen(Root.Name)) + Extension;
			return true;
		}
	}
	return false;
}

FString FPackageName::FilenameToLongPackageName(const FString& Filename)
{
	FString PackageName;
	TryConvertFilenameToLongPackageName(Filename, PackageName);
	return PackageName;
}

bool FPackageName::TryConvertFilenameToLongPackageName(const FString& Filename, FString& OutPackageName, FString* OutFailureReason)
{
	if (IsValidLongPackageName(Filename, true))
	{
		OutPackageName = Filename;
		return true;
	}
	const FString Full = FPaths::ConvertRelativePathToFull(Filename);
	for (const FRoot& Root : GetRoots())
	{
		if (Full.StartsWith(Root.Folder, ESearchCase::CaseSensitive))
		{
			const FString Name = Root.Name + FPaths::GetBaseFilename(Full.RightChop(Root.Folder.Len()), false);
			FText Reason;
			if (IsValidLongPackageName(Name, false, &Reason))
			{
				OutPackageName = Name;
				return true;
			}
			if (OutFailureReason)
			{
				*OutFailureReason = Reason.ToString();
			}
			return false;
		}
	}
	if (OutFailureReason)
	{
		*OutFailureReason = FString::Printf(TEXT("'%s' lies outside the content folders"), *Filename);
	}
	return false;
}

bool FPackageName::IsValidLongPackageName(const FString& LongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	if (LongPackageName.Len() < 4 || LongPackageName.Len() > MaxLength)
	{
		return FailWith(OutReason, LongPackageName, TEXT("contains fewer or more characters than a package's name may have."));
	}
	if (LongPackageName[0] != '/')
	{
		return FailWith(OutReason, LongPackageName, TEXT("does not start with a '/'."));
	}
	if (LongPackageName.EndsWith(TEXT("/")) || LongPackageName.View().find(u"//") != std::u16string_view::npos)
	{
		return FailWith(OutReason, LongPackageName, TEXT("has an empty part."));
	}
	const SIZE_T Invalid = LongPackageName.View().find_first_of(InvalidCharacters);
	if (Invalid != std::u16string_view::npos)
	{
		const FString Found = FString::Chr(LongPackageName[static_cast<int32>(Invalid)]);
		return FailWith(OutReason, LongPackageName, *(TEXT("contains the invalid character '") + Found + TEXT("'.")));
	}
	const bool bRooted = (bIncludeReadOnlyRoots && IsScriptPackage(LongPackageName)) || LongPackageName.StartsWith(TEXT("/Game/")) ||
		LongPackageName.StartsWith(TEXT("/Engine/"));
	return bRooted || FailWith(OutReason, LongPackageName, TEXT("does not start with a root that packages can have."));
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, FString* OutFilename)
{
	FString Base;
	if (!IsValidLongPackageName(LongPackageName) || !TryConvertLongPackageNameToFilename(LongPackageName, Base))
	{
		return false;
	}
	for (const FString& Extension : { GetAssetPackageExtension(), GetMapPackageExtension() })
	{
		if (FPaths::FileExists(Base + Extension))
		{
			if (OutFilename)
			{
				*OutFilename = Base + Extension;
			}
			return true;
		}
	}
	return false;
}

FString FPackageName::GetShortName(const FString& LongName)
{
	return BehindLast(LongName, u"/");
}

FString FPackageName::GetShortName(const UPackage* Package)
{
	return GetShortName(Package->GetName());
}

FString FPackageName::GetLongPackagePath(const FString& LongPackageName)
{
	return FPaths::GetPath(LongPackageName);
}

FString FPackageName::ObjectPathToPackageName(const FString& ObjectPath)
{
	return FString(ObjectPath.View().substr(0, ObjectPath.View().find_first_of(u".:")));
}

FString FPackageName::ObjectPathToObjectName(const FString& ObjectPath)
{
	return BehindLast(ObjectPath, u".:");
}

FString FPackageName::ExportTextPathToObjectPath(const FString& ExportTextPath)
{
	int32 Open = INDEX_NONE;
	if (!ExportTextPath.EndsWith(TEXT("'")) || !ExportTextPath.FindChar('\'', Open) || Open == ExportTextPath.Len() - 1)
	{
		return ExportTextPath;
	}
	return ExportTextPath.Mid(Open + 1, ExportTextPath.Len() - Open - 2).Replace(TEXT("\""), TEXT(""));
}
