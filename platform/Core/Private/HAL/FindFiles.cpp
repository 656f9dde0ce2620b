#include "HAL/FileManager.h"

#include "Containers/StringConv.h"
#include "HAL/DirectoryListing.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/Paths.h"

#include <memory>
#include <vector>

namespace
{
std::string NativeDirectory(const FString& Directory)
{
	return Directory.IsEmpty() ? "." : NativePath(*Directory);
}

/** Keeps the newest listing: who wants a directory's files asks for its directories next, or the other way round. */
std::shared_ptr<const FDirectoryListing> GetListing(const std::string& Path)
{
	thread_local std::shared_ptr<const FDirectoryListing> Newest;
	if (!Newest || !Newest->IsCurrent(Path))
	{
		Newest = std::make_shared<const FDirectoryListing>(Path);
	}
	return Newest;
}

/** A pattern of file names with "*" and "?", which ignores case; "*" and "*.*" fit every name. */
class FNamePattern
{
public:
	explicit FNamePattern(FString InPattern)
		: Pattern(MoveTemp(InPattern))
		, bAny(Pattern == TEXT("*") || Pattern == TEXT("*.*"))
	{
	}

	/** Adds those names that fit, behind Prefix. */
	void AddFitting(TArray<FString>& Out, const std::vector<std::string_view>& Names, const FString& Prefix) const
	{
		Out.Reserve(Out.Num() + (bAny ? static_cast<int32>(Names.size()) : 0));
		for (const std::string_view Name : Names)
		{
			if (bAny || FUtf8::Decode(Name).MatchesWildcard(Pattern))
			{
				std::u16string& Text = Out.AddDefaulted_GetRef().Native();
				Text.reserve(Prefix.View().size() + Name.size());
				Text = Prefix.View();
				FUtf8::AppendTo(Text, Name);
			}
		}
	}

private:
	FString Pattern;
	bool bAny;
};

/** A walk down a tree of directories. */
class FTreeSearch
{
public:
	FTreeSearch(TArray<FString>& InFound, const TCHAR* InPattern, bool bInFiles, bool bInDirectories)
		: Found(InFound)
		, Pattern(InPattern)
		, bFiles(bInFiles)
		, bDirectories(bInDirectories)
	{
	}

	/** @param Directory ends with "/" */
	void Search(const FString& Directory)
	{
		const FDirectoryListing Listing(NativeDirectory(Directory));
		// Two links may lead to each other's directories.
		if (!Listing.IsValid() || std::find(Path.begin(), Path.end(), Listing.GetIdentity()) != Path.end())
		{
			return;
		}
		if (bFiles)
		{
			Pattern.AddFitting(Found, Listing.GetFiles(), Directory);
		}
		if (bDirectories)
		{
			Pattern.AddFitting(Found, Listing.GetDirectories(), Directory);
		}
		Path.push_back(Listing.GetIdentity());
		for (const std::string_view Name : Listing.GetDirectories())
		{
			FString Child = Directory;
			FUtf8::AppendTo(Child.Native(), Name);
			Search(Child += TEXT("/"));
		}
		Path.pop_back();
	}

private:
	TArray<FString>& Found;
	FNamePattern Pattern;
	bool bFiles;
	bool bDirectories;
	std::vector<FDirectoryIdentity> Path;
};
}

void IFileManager::FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool bFiles, bool bDirectories)
{
	const FNamePattern Pattern(FPaths::GetCleanFilename(Filename));
	const std::shared_ptr<const FDirectoryListing> Listing = GetListing(NativeDirectory(FPaths::GetPath(Filename)));
	if (bFiles)
	{
		Pattern.AddFitting(FileNames, Listing->GetFiles(), FString());
	}
	if (bDirectories)
	{
		Pattern.AddFitting(FileNames, Listing->GetDirectories(), FString());
	}
}

void IFileManager::FindFilesRecursive(
	TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool bFiles, bool bDirectories, bool bClearFileNames)
{
	if (bClearFileNames)
	{
		FileNames.Empty();
	}
	FString Start(StartDirectory);
	FPaths::NormalizeFilename(Start);
	FTreeSearch(FileNames, Filename, bFiles, bDirectories).Search(Start.IsEmpty() ? Start : WithEndingSlash(Start));
}

bool IPlatformFile::IterateDirectory(const TCHAR* Directory, FDirectoryVisitorFunc Visitor)
{
	const FDirectoryListing Listing((NativeDirectory(Directory)));
	const auto Visit = [&](const std::vector<std::string_view>& Names, bool bIsDirectory)
	{
		return std::all_of(Names.begin(), Names.end(),
			[&](std::string_view Name) { return Visitor(*(FString(Directory) / *FUtf8::Decode(Name)), bIsDirectory); });
	};
	return Listing.IsValid() && Visit(Listing.GetFiles(), false) && Visit(Listing.GetDirectories(), true);
}

void IPlatformFile::FindFiles(TArray<FString>& FoundFiles, const TCHAR* Directory, const TCHAR* FileExtension)
{
	FoundFiles.Empty();
	IterateDirectory(Directory,
		[&](const TCHAR* Path, bool bIsDirectory)
		{
		if (!bIsDirectory && (!FileExtension || !*FileExtension || FString(Path).EndsWith(FileExtension)))
		{
			FoundFiles.Add(Path);
		}
		return true;
	});
}
