#include "Misc/Paths.h"

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Guid.h"

#include <vector>

namespace
{
constexpr std::u16string_view Separators = u"/\\";

/** The index behind the last separator. */
SIZE_T StartOfName(std::u16string_view Path)
{
	return Path.find_last_of(Separators) + 1;
}

/** The index of the name's last ".", or the path's length. */
SIZE_T StartOfExtension(std::u16string_view Path)
{
	const SIZE_T Dot = Path.rfind(u'.');
	return Dot == std::u16string_view::npos || Dot < StartOfName(Path) ? Path.size() : Dot;
}

/** The components of a path with "." and ".." resolved. */
std::vector<std::u16string_view> ResolvedParts(std::u16string_view Path, bool bRooted)
{
	std::vector<std::u16string_view> Parts;
	for (SIZE_T Start = 0; Start <= Path.size();)
	{
		const SIZE_T End = std::min(Path.find(u'/', Start), Path.size());
		const std::u16string_view Part = Path.substr(Start, End - Start);
		Start = End + 1;
		if (Part == u".." && !Parts.empty() && Parts.back() != u"..")
		{
			Parts.pop_back();
		}
		else if (!Part.empty() && Part != u"." && (Part != u".." || !bRooted))
		{
			Parts.push_back(Part);
		}
	}
	return Parts;
}
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const std::u16string_view Extension = InPath.View().substr(StartOfExtension(InPath.View()));
	return FString(bIncludeDot || Extension.empty() ? Extension : Extension.substr(1));
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return FString(InPath.View().substr(StartOfName(InPath.View())));
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const std::u16string_view Stem = InPath.View().substr(0, StartOfExtension(InPath.View()));
	return FString(bRemovePath ? Stem.substr(StartOfName(Stem)) : Stem);
}

FString FPaths::GetPath(const FString& InPath)
{
	const SIZE_T Name = StartOfName(InPath.View());
	return FString(InPath.View().substr(0, Name == 0 ? 0 : Name - 1));
}

bool FPaths::IsRelative(const FString& InPath)
{
	const std::u16string_view Path = InPath.View();
	const bool bDrive = Path.size() >= 2 && Path[1] == ':' && FChar::IsAlpha(Path[0]);
	return !(Path.starts_with(u"/") || Path.starts_with(u"\\\\") || bDrive);
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceCharInline('\\', '/');
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	const std::u16string_view Path = InPath.View();
	if (Path.size() > 1 && Path.ends_with(u"/") && !Path.ends_with(u"//") && !Path.ends_with(u":/"))
	{
		InPath.Native().pop_back();
	}
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	std::u16string& Path = InPath.Native();
	const auto BothSlashes = [](TCHAR A, TCHAR B) { return A == '/' && B == '/'; };
	Path.erase(std::unique(Path.begin(), Path.end(), BothSlashes), Path.end());
}

void FPaths::CollapseRelativeDirectories(FString& InPath)
{
	const bool bRooted = InPath.View().starts_with(u'/');
	const bool bEndingSlash = InPath.View().ends_with(u'/');
	std::u16string Result = bRooted ? u"/" : u"";
	for (const std::u16string_view Part : ResolvedParts(InPath.View(), bRooted))
	{
		Result.append(Part).append(u"/");
	}
	if (!bEndingSlash && Result.size() > 1)
	{
		Result.pop_back();
	}
	InPath = FString(std::move(Result));
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(FPlatformProcess::BaseDir(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Path = IsRelative(InPath) ? BasePath / InPath : InPath;
	NormalizeFilename(Path);
	CollapseRelativeDirectories(Path);
	return Path;
}

void FPaths::CombineInternal(FString& OutPath, const TCHAR* const* InPaths, int32 NumPaths)
{
	for (int32 Index = 0; Index < NumPaths; ++Index)
	{
		OutPath /= InPaths[Index];
	}
}

FString FPaths::CreateTempFilename(const TCHAR* Path, const TCHAR* Prefix, const TCHAR* Extension)
{
	FString Result;
	do
	{
		Result = Combine(Path, FString(Prefix) + FGuid::NewGuid().ToString() + Extension);
	} while (FileExists(Result));
	return Result;
}
