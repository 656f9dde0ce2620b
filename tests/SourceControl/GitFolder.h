#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

/** A folder in which git itself works, whatever the machine's configuration. */
class FGitFolder
{
public:
	explicit FGitFolder(const std::filesystem::path& InPath)
		: Path(InPath)
	{
	}

	/** Runs lines of shell; "git" commits without further ado. @return what they print */
	std::string Run(const std::string& Script) const
	{
		::setenv("GIT_FOLDER", Path.c_str(), 1);
		const std::string Prelude =
			"set -e; cd \"$GIT_FOLDER\"; "
			"export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_NOSYSTEM=1 GIT_AUTHOR_NAME=A GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=A "
			"GIT_COMMITTER_EMAIL=a@b; git() { command git -c core.quotepath=off -c protocol.file.allow=always \"$@\"; }; ";
		std::FILE* const Pipe = ::popen((Prelude + "{ " + Script + "\n} 2>&1").c_str(), "r");
		std::string Output;
		for (int Char = std::fgetc(Pipe); Char != EOF; Char = std::fgetc(Pipe))
		{
			Output += static_cast<char>(Char);
		}
		EXPECT_EQ(::pclose(Pipe), 0) << Script << "\n" << Output;
		return Output;
	}

	/** One line a file that is not as committed, two letters before its name. */
	std::string Status() const { return Run("git status --porcelain --untracked-files=all"); }

private:
	std::filesystem::path Path;
};
