#include "HAL/DirectoryListing.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <time.h>

namespace
{
/** Whether a link leads to the directory that it lies in or to one above. */
bool LeadsBack(const std::string& Directory, const char* Name)
{
	std::error_code Error;
	const std::filesystem::path Here = std::filesystem::canonical(Directory, Error);
	const std::filesystem::path Target = std::filesystem::canonical(Here / Name, Error);
	return Error || std::mismatch(Target.begin(), Target.end(), Here.begin(), Here.end()).first == Target.end();
}

/** DT_REG, DT_DIR or something else. */
uint8 TypeOf(DIR* Handle, const dirent& Entry, const std::string& Directory)
{
	if (Entry.d_type != DT_UNKNOWN && Entry.d_type != DT_LNK)
	{
		return Entry.d_type;
	}
	struct stat Stat;
	if (::fstatat(::dirfd(Handle), Entry.d_name, &Stat, 0) != 0)
	{
		return DT_UNKNOWN;
	}
	if (S_ISDIR(Stat.st_mode))
	{
		return Entry.d_type == DT_LNK && LeadsBack(Directory, Entry.d_name) ? DT_UNKNOWN : DT_DIR;
	}
	return S_ISREG(Stat.st_mode) ? DT_REG : DT_UNKNOWN;
}

int64 ToNanoseconds(const timespec& Time)
{
	return static_cast<int64>(Time.tv_sec) * 1'000'000'000 + Time.tv_nsec;
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

FDirectoryListing::FDirectoryListing(const std::string& InPath)
	: Path(InPath)
{
	const std::unique_ptr<DIR, int (*)(DIR*)> Directory(::opendir(Path.c_str()), &::closedir);
	if (!Directory)
	{
		return;
	}
	bValid = true;
	NoteState(::dirfd(Directory.get()));

	std::vector<FPlace> FilePlaces;
	std::vector<FPlace> DirectoryPlaces;
	while (const dirent* Entry = ::readdir(Directory.get()))
	{
		const std::string_view Name(Entry->d_name);
		const uint8 Type = TypeOf(Directory.get(), *Entry, Path);
		const bool bDirectory = Type == DT_DIR && !IsSelfOrParent(Name);
		if (Type == DT_REG || bDirectory)
		{
			(bDirectory ? DirectoryPlaces : FilePlaces).push_back({ Names.size(), Name.size() });
			Names += Name;
		}
	}
	Files = SortedNames(Names, FilePlaces);
	Directories = SortedNames(Names, DirectoryPlaces);
}

void FDirectoryListing::NoteState(int Descriptor)
{
	struct stat Stat;
	timespec Now;
	if (::fstat(Descriptor, &Stat) != 0 || ::clock_gettime(CLOCK_REALTIME, &Now) != 0)
	{
		return;
	}
	Identity = { Stat.st_dev, Stat.st_ino };
	// File systems stamp changes with a clock that ticks every few milliseconds: two changes in one tick look alike.
	constexpr int64 Settled = 100'000'000;
	const int64 Stamp = ToNanoseconds(Stat.st_mtim);
	ChangedAt = ToNanoseconds(Now) - Stamp > Settled ? Stamp : 0;
}

bool FDirectoryListing::IsCurrent(const std::string& OtherPath) const
{
	struct stat Stat;
	return Path == OtherPath && ChangedAt != 0 && ::stat(Path.c_str(), &Stat) == 0 &&
		Identity == FDirectoryIdentity{ Stat.st_dev, Stat.st_ino } && ToNanoseconds(Stat.st_mtim) == ChangedAt;
}
