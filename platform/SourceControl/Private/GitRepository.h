#pragma once

#include "Containers/UnrealString.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

struct git_index;
struct git_repository;

/** What went wrong, where something did. */
using FGitError = std::optional<FString>;

/** A repository, opened for one question or change, so that what it says is what is on the disk. Files go by their full paths. */
class FGitRepository
{
public:
	/** Whether a directory lies in a repository, or in the folder of a bare one. */
	static bool Exists(const FString& Directory);
	/** Whether a status is that of a file which git keeps, or is told to keep. */
	static bool IsControlled(uint32 Status);

	/** Opens the one that the directory lies in. */
	FGitError Open(const FString& Directory);

	/** @param OutStatus flags of git_status_t; those of a file that git does not know for what is not in the working tree */
	FGitError GetStatus(const FString& File, uint32& OutStatus) const;

	// The index in memory; Save writes it.
	FGitError Check(const FString& File);
	FGitError Add(const FString& File);
	/** The file itself stays. */
	FGitError Remove(const FString& File);
	FGitError RevertAddition(const FString& File);
	/** Writes nothing when nothing has changed. */
	FGitError Save();

private:
	/** A file's path from the working tree on, with links on its way resolved; empty when it does not belong to this repository. */
	std::string GetRelativePath(const FString& File) const;
	/** Whether a folder of the working tree belongs to another repository: a submodule, or one that was cloned there. */
	bool IsForeign(const std::filesystem::path& Folder) const;

	struct FFree
	{
		void operator()(git_repository* Repository) const;
		void operator()(git_index* Index) const;
	};
	std::unique_ptr<git_repository, FFree> Repository;
	std::unique_ptr<git_index, FFree> Index;
	std::filesystem::path WorkTree;
	bool bChanged = false;
};
