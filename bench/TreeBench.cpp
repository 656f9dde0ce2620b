// The project tree of 100,000 files in 5,000 directories, with 50,000 more files in excluded ones, beside a bare walker that
// writes the same JSON.

#include "Agent/FileUtils.h"
#include "CoreHost/Project.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
void MakeFiles(const std::string& Directory, int Count)
{
	mkdir(Directory.c_str(), 0755);
	for (int Index = 0; Index < Count; ++Index)
	{
		const std::string File = Directory + "/SourceFile" + std::to_string(Index * 37) + (Index % 3 ? ".cpp" : ".h");
		close(open(File.c_str(), O_CREAT | O_WRONLY, 0644));
	}
}

/** 50 groups of 100 directories with 20 files each; 10 excluded directories of 5,000 files. */
std::string MakeProject()
{
	const std::string Root = (std::filesystem::temp_directory_path() / "kestrin-bench-tree").string();
	if (!std::filesystem::exists(Root + "/Game.uproject"))
	{
		MakeFiles(Root, 0);
		for (int Group = 0; Group < 50; ++Group)
		{
			const std::string Folder = Root + "/Group" + std::to_string(Group);
			MakeFiles(Folder, 0);
			for (int Index = 0; Index < 100; ++Index)
			{
				MakeFiles(Folder + "/Directory" + std::to_string(Index), 20);
			}
		}
		for (int Index = 0; Index < 5; ++Index)
		{
			const std::string Folder = Root + "/Group" + std::to_string(Index);
			MakeFiles(Folder + "/Saved", 5000);
			MakeFiles(Folder + "/Intermediate", 5000);
		}
		close(open((Root + "/Game.uproject").c_str(), O_CREAT | O_WRONLY, 0644));
	}
	return Root;
}

const char* const Extensions[] = { "py", "cs", "json", "cpp", "h", "uasset", "umap", "ini", "uproject", "csv" };
const char* const Excluded[] = { "__ExternalObjects__", "__ExternalActors__", "Binaries", "Intermediate", "Saved", "Build",
	"DerivedDataCache", "Engine", "Shared", ".git" };

bool IsIn(const char* const* Begin, const char* const* End, const char* Name)
{
	return std::any_of(Begin, End, [Name](const char* Each) { return strcasecmp(Each, Name) == 0; });
}

/** What the tree takes at the least: one pass over each directory, sorted, straight into the text. @return whether there was a file */
bool WalkBare(std::string& Path, std::string& Out)
{
	std::vector<std::string> Files;
	std::vector<std::string> Directories;
	DIR* const Handle = opendir(Path.c_str());
	while (const dirent* Entry = readdir(Handle))
	{
		if (Entry->d_type == DT_DIR)
		{
			if (Entry->d_name[0] != '.' && !IsIn(std::begin(Excluded), std::end(Excluded), Entry->d_name))
			{
				Directories.emplace_back(Entry->d_name);
			}
			continue;
		}
		const char* const Dot = std::strrchr(Entry->d_name, '.');
		if (Dot && IsIn(std::begin(Extensions), std::end(Extensions), Dot + 1))
		{
			Files.emplace_back(Entry->d_name);
		}
	}
	closedir(Handle);
	std::sort(Files.begin(), Files.end());
	std::sort(Directories.begin(), Directories.end());
	Out += '{';
	bool bAny = false;
	for (const std::string& File : Files)
	{
		Out += bAny ? ",\"" : "\"";
		Out.append(File).append("\":\"#\"");
		bAny = true;
	}
	for (const std::string& Directory : Directories)
	{
		const SIZE_T Before = Out.size();
		const SIZE_T Length = Path.size();
		Out += bAny ? ",\"" : "\"";
		Out.append(Directory).append("\":");
		Path.append("/").append(Directory);
		if (WalkBare(Path, Out))
		{
			bAny = true;
		}
		else
		{
			Out.resize(Before);
		}
		Path.resize(Length);
	}
	Out += '}';
	return bAny;
}

void TreeKestrin(benchmark::State& State)
{
	const std::string Root = MakeProject();
	FHostProject::Set(FUtf8::Decode(Root + "/Game.uproject"));
	std::string Path = Root;
	std::string Expected;
	WalkBare(Path, Expected);
	for (auto _ : State)
	{
		const FString Tree = FFileUtils::GetSubDirectoryStructureAsJsonObject(FUtf8::Decode(Root));
		if (Tree.Len() != static_cast<int32>(Expected.size()))
		{
			State.SkipWithError("the two trees differ");
		}
	}
}

void TreeBareWalker(benchmark::State& State)
{
	const std::string Root = MakeProject();
	for (auto _ : State)
	{
		std::string Path = Root;
		std::string Out;
		WalkBare(Path, Out);
		benchmark::DoNotOptimize(Out);
	}
}

void TreeTool(benchmark::State& State, const char* Command)
{
	const std::string Line = Command + MakeProject() + " > /dev/null";
	for (auto _ : State)
	{
		if (std::system(Line.c_str()) != 0)
		{
			State.SkipWithError("the tool is not there");
		}
	}
}

BENCHMARK(TreeBareWalker)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(TreeKestrin)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK_CAPTURE(TreeTool, fd, "fdfind -j1 -tf . ")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(TreeTool, tree, "tree -J ")->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK_MAIN();
