#include "GitRepository.h"

#include "Containers/StringConv.h"
#include "Misc/Paths.h"

#include <git2.h>

namespace
{
/** Git's own words for what a call answered. */
FGitError ToError(int Result)
{
	if (Result >= 0)
	{
		return std::nullopt;
	}
	const git_error* const Error = git_error_last();
	return FUtf8::Decode(Error ? Error->message : "git failed");
}

std::filesystem::path ToNative(const FString& Path)
{
	return FUtf8::Encode(FPaths::ConvertRelativePathToFull(Path));
}
}

void FGitRepository::FFree::operator()(git_repository* Freed) const
{
	git_repository_free(Freed);
}

void FGitRepository::FFree::operator()(git_index* Freed) const
{
	git_index_free(Freed);
}

bool FGitRepository::Exists(const FString& Directory)
{
	git_buf Found = {};
	const int Result = git_repository_discover(&Found, ToNative(Directory).c_str(), 0, nullptr);
	git_buf_dispose(&Found);
	return Result >= 0;
}

bool FGitRepository::IsControlled(uint32 Status)
{
	return Status != GIT_STATUS_WT_NEW && (Status & GIT_STATUS_IGNORED) == 0;
}

FGitError FGitRepository::Open(const FString& Directory)
{
	git_repository* Opened = nullptr;
	if (FGitError Error = ToError(git_repository_open_ext(&Opened, ToNative(Directory).c_str(), 0, nullptr)))
	{
		return Error;
	}
	Repository.reset(Opened);
	if (git_repository_is_bare(Opened))
	{
		return FString(TEXT("the repository is bare: it has no working tree"));
	}
	std::error_code Ignored;
	WorkTree = std::filesystem::weakly_canonical(git_repository_workdir(Opened), Ignored) / "";
	git_index* OpenedIndex = nullptr;
	FGitError Error = ToError(git_repository_index(&OpenedIndex, Opened));
	Index.reset(OpenedIndex);
	return Error;
}

bool FGitRepository::IsForeign(const std::filesystem::path& Folder) const
{
	std::error_code Ignored;
	const git_index_entry* const Entry = git_index_get_bypath(Index.get(), Folder.c_str(), GIT_INDEX_STAGE_NORMAL);
	return (Entry && Entry->mode == GIT_FILEMODE_COMMIT) || std::filesystem::exists(WorkTree / Folder / ".git", Ignored);
}

std::string FGitRepository::GetRelativePath(const FString& File) const
{
	// The last name is not resolved: git keeps a link itself.
	std::error_code Ignored;
	const std::filesystem::path Path = ToNative(File);
	const std::filesystem::path Folder = std::filesystem::weakly_canonical(Path.parent_path(), Ignored);
	const std::filesystem::path Relative = (Folder / Path.filename()).lexically_relative(WorkTree);
	if (Relative.empty() || *Relative.begin() == ".." || *Relative.begin() == ".git")
	{
		return {};
	}
	for (std::filesystem::path Above = Relative.parent_path(); !Above.empty(); Above = Above.parent_path())
	{
		if (IsForeign(Above))
		{
			return {};
		}
	}
	return Relative.string();
}

FGitError FGitRepository::GetStatus(const FString& File, uint32& OutStatus) const
{
	OutStatus = GIT_STATUS_WT_NEW;
	const std::string Path = GetRelativePath(File);
	if (Path.empty())
	{
		return std::nullopt;
	}
	const int Result = git_status_file(&OutStatus, Repository.get(), Path.c_str());
	if (Result == GIT_ENOTFOUND || Result == GIT_EAMBIGUOUS)
	{
		OutStatus = GIT_STATUS_WT_NEW; // there is no such file, or it is a directory
		return std::nullopt;
	}
	return ToError(Result);
}

FGitError FGitRepository::Check(const FString& File)
{
	uint32 Status;
	return GetStatus(File, Status);
}

FGitError FGitRepository::Add(const FString& File)
{
	const std::string Path = GetRelativePath(File);
	if (Path.empty())
	{
		return FString(TEXT("the file does not belong to the repository"));
	}
	uint32 Status;
	if (FGitError Error = GetStatus(File, Status))
	{
		return Error;
	}
	if (Status & GIT_STATUS_IGNORED)
	{
		return FString(TEXT("the repository ignores the file"));
	}
	bChanged = true;
	return ToError(git_index_add_bypath(Index.get(), Path.c_str()));
}

FGitError FGitRepository::Remove(const FString& File)
{
	uint32 Status;
	if (FGitError Error = GetStatus(File, Status))
	{
		return Error;
	}
	if (!IsControlled(Status))
	{
		return FString(TEXT("the file is not under source control"));
	}
	bChanged = true;
	return ToError(git_index_remove_bypath(Index.get(), GetRelativePath(File).c_str()));
}

FGitError FGitRepository::RevertAddition(const FString& File)
{
	uint32 Status;
	if (FGitError Error = GetStatus(File, Status))
	{
		return Error;
	}
	// What has been committed could be brought back from there alone, over what is in the file now.
	return Status & GIT_STATUS_INDEX_NEW ? Remove(File) : FString(TEXT("only the addition of a file can be reverted"));
}

FGitError FGitRepository::Save()
{
	return bChanged ? ToError(git_index_write(Index.get())) : std::nullopt;
}
