#include "HAL/DirectoryListing.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace
{
/** DT_REG, DT_DIR or something else. */
uint8 TypeOf(DIR* Directory, const dirent& Entry)
{
	if (Entry.d_type != DT_UNKNOWN && Entry.d_type != DT_LNK)
	{
		return Entry.d_type;
	}
	struct stat Stat;
	if (::fstatat(::dirfd(Directory), Entry.d_name, &Stat, 0) != 0)
	{
		return DT_UNKNOWN;
	}
	return S_ISDIR(Stat.st_mode) ? DT_DIR : (S_ISREG(Stat.st_mode) ? DT_REG : DT_UNKNOWN);
}

bool Has(EListed Wanted, EListed Kind)
{
	return (static_cast<uint8>(Wanted) & static_cast<uint8>(Kind)) != 0;
}

bool IsSelfOrParent(std::string_view Name)
{
	return Name == "." || Name == "..";
}

/** Where a name lies in the text of all names, which still grows. */
struct FPlace
{
	SIZE_T Start;
	SIZE_T Length;
};

std::vector<std::string_view> SortedNames(const std::string& Names, const std::vector<FPlace>& Places)
{
	std::vector<std::string_view> Sorted;
	Sorted.reserve(Places.size());
	for (const FPlace& Place : Places)
	{
		Sorted.emplace_back(Names.data() + Place.Start, Place.Length);
	}
	std::sort(Sorted.begin(), Sorted.end());
	return Sorted;
}
}

FDirectoryListing::FDirectoryListing(const std::string& Path, EListed Wanted)
{
	Read(Path, Wanted, nullptr);
}

FDirectoryListing::FDirectoryListing(const std::string& Path, EListed Wanted, FDirectoryIdentity& OutIdentity)
{
	Read(Path, Wanted, &OutIdentity);
}

void FDirectoryListing::Read(const std::string& Path, EListed Wanted, FDirectoryIdentity* OutIdentity)
{
	const std::unique_ptr<DIR, int (*)(DIR*)> Directory(::opendir(Path.c_str()), &::closedir);
	if (!Directory)
	{
		return;
	}
	bValid = true;
	struct stat Stat;
	if (OutIdentity && ::fstat(::dirfd(Directory.get()), &Stat) == 0)
	{
		*OutIdentity = { Stat.st_dev, Stat.st_ino };
	}

	std::vector<FPlace> FilePlaces;
	std::vector<FPlace> DirectoryPlaces;
	while (const dirent* Entry = ::readdir(Directory.get()))
	{
		const std::string_view Name(Entry->d_name);
		const uint8 Type = TypeOf(Directory.get(), *Entry);
		const bool bFile = Type == DT_REG && Has(Wanted, EListed::Files);
		const bool bDirectory = Type == DT_DIR && Has(Wanted, EListed::Directories) && !IsSelfOrParent(Name);
		if (bFile || bDirectory)
		{
			(bFile ? FilePlaces : DirectoryPlaces).push_back({ Names.size(), Name.size() });
			Names += Name;
		}
	}
	Files = SortedNames(Names, FilePlaces);
	Directories = SortedNames(Names, DirectoryPlaces);
}
