#pragma once

#include "CoreTypes.h"

#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/** Which directory a path leads to, whatever links are on the way. */
struct FDirectoryIdentity
{
	dev_t Device = 0;
	ino_t Inode = 0;
	bool operator==(const FDirectoryIdentity&) const = default;
};

/**
 * The names in one directory, in byte order, "." and ".." left out. One pass over the directory; the file system is asked about an
 * entry only when the directory itself does not tell what it is. What is neither a file nor a directory is left out, and so is a
 * link to the directory itself or to one above it: whoever walks down would never come to an end.
 */
class FDirectoryListing
{
public:
	explicit FDirectoryListing(const std::string& InPath);
	UE_NONCOPYABLE(FDirectoryListing)

	/** False when there is no such directory or it can't be read. */
	bool IsValid() const { return bValid; }
	/** Whether it is this path's, and another listing would certainly be the same. */
	bool IsCurrent(const std::string& OtherPath) const;
	const FDirectoryIdentity& GetIdentity() const { return Identity; }
	/** The names live as long as the listing. */
	const std::vector<std::string_view>& GetFiles() const { return Files; }
	const std::vector<std::string_view>& GetDirectories() const { return Directories; }

private:
	void NoteState(int Descriptor);

	std::string Path;
	std::string Names;
	std::vector<std::string_view> Files;
	std::vector<std::string_view> Directories;
	FDirectoryIdentity Identity;
	/** When the directory last changed; 0 when that was too short a time ago for a further change to be told from it. */
	int64 ChangedAt = 0;
	bool bValid = false;
};
