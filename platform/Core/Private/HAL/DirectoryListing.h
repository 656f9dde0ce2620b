#pragma once

#include "CoreTypes.h"

#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

enum class EListed : uint8
{
	Files = 1,
	Directories = 2,
	Both = 3
};

/** Which directory a path leads to, whatever links are on the way. */
struct FDirectoryIdentity
{
	dev_t Device = 0;
	ino_t Inode = 0;
	bool operator==(const FDirectoryIdentity&) const = default;
};

/**
 * The names in one directory, in byte order, "." and ".." left out. One pass over the directory; the file system is asked about an
 * entry only when the directory itself does not tell what it is. What is neither a file nor a directory is left out.
 */
class FDirectoryListing
{
public:
	/** Without an identity, for those who don't descend. */
	FDirectoryListing(const std::string& Path, EListed Wanted);
	/** OutIdentity is left alone when the directory can't be read. */
	FDirectoryListing(const std::string& Path, EListed Wanted, FDirectoryIdentity& OutIdentity);

	/** False when there is no such directory or it can't be read. */
	bool IsValid() const { return bValid; }
	/** The names live as long as the listing. */
	const std::vector<std::string_view>& GetFiles() const { return Files; }
	const std::vector<std::string_view>& GetDirectories() const { return Directories; }

private:
	void Read(const std::string& Path, EListed Wanted, FDirectoryIdentity* OutIdentity);

	std::string Names;
	std::vector<std::string_view> Files;
	std::vector<std::string_view> Directories;
	bool bValid = false;
};
