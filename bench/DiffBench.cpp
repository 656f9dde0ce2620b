// The line diff of the chat: 10,000 lines beside the plain table whose walk it gives, and 50,000 lines beside git diff on the same texts.

#include "HAL/PlatformTime.h"
#include "Memory.h"
#include "Widget/LineDiff.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace
{
using FLines = std::vector<std::string>;

/** As code is: a third of the lines are of few kinds. */
FLines MakeLines(int Count, const char* Word)
{
	static const char* const Common[] = { "", "{", "}", "\treturn;", "\t}", "#endif" };
	std::mt19937 Random(7);
	FLines Lines;
	for (int Index = 0; Index < Count; ++Index)
	{
		Lines.push_back(
			Random() % 3 == 0 ? Common[Random() % 6] : "\tconst float " + std::string(Word) + std::to_string(Index) + " = Oil;");
	}
	return Lines;
}

/** One line in a hundred is another. */
FLines Change(FLines Lines)
{
	for (size_t Index = 0; Index < Lines.size(); Index += 100)
	{
		Lines[Index] = "\tchanged " + std::to_string(Index);
	}
	return Lines;
}

FLines MoveBlock(FLines Lines)
{
	const auto Tenth = static_cast<std::ptrdiff_t>(Lines.size() / 10);
	std::rotate(Lines.begin() + Tenth, Lines.begin() + 2 * Tenth, Lines.begin() + 6 * Tenth);
	return Lines;
}

enum EKind
{
	Changed,
	Moved,
	Unlike
};

FLines MakeOther(const FLines& Lines, int64_t Kind)
{
	return Kind == Changed ? Change(Lines) : Kind == Moved ? MoveBlock(Lines) : MakeLines(static_cast<int>(Lines.size()), "Moth");
}

FString Join(const FLines& Lines)
{
	std::string Text;
	for (const std::string& Line : Lines)
	{
		Text += Line + "\n";
	}
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

void Diff(benchmark::State& State)
{
	const FLines Lines = MakeLines(static_cast<int>(State.range(0)), "Flame");
	const FString Old = Join(Lines);
	const FString New = Join(MakeOther(Lines, State.range(1)));
	const double Before = ReadMemory("VmRSS:");
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(ComputeLineDiff(Old, New));
	}
	State.counters["MiB"] = ReadMemory("VmHWM:") - Before;
}

/** Only the table, on numbers in place of lines, and no walk. */
void Table(benchmark::State& State)
{
	const FLines Lines = MakeLines(static_cast<int>(State.range(0)), "Flame");
	const FLines Others = MakeOther(Lines, State.range(1));
	const auto GetNumbers = [](const FLines& From)
	{
		std::vector<size_t> Numbers;
		for (const std::string& Line : From)
		{
			Numbers.push_back(std::hash<std::string>()(Line));
		}
		return Numbers;
	};
	const std::vector<size_t> Old = GetNumbers(Lines);
	const std::vector<size_t> New = GetNumbers(Others);
	for (auto _ : State)
	{
		const size_t Width = New.size() + 1;
		std::vector<int32> Cells((Old.size() + 1) * Width);
		for (size_t I = 1; I <= Old.size(); ++I)
		{
			for (size_t J = 1; J <= New.size(); ++J)
			{
				Cells[I * Width + J] = Old[I - 1] == New[J - 1] ? Cells[(I - 1) * Width + J - 1] + 1
																: std::max(Cells[(I - 1) * Width + J], Cells[I * Width + J - 1]);
			}
		}
		benchmark::DoNotOptimize(Cells.data());
	}
}

void GitDiff(benchmark::State& State)
{
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / "kestrin-bench-diff";
	std::filesystem::create_directories(Folder);
	const FLines Lines = MakeLines(static_cast<int>(State.range(0)), "Flame");
	const auto Write = [&Folder](const char* Name, const FLines& From)
	{
		std::ofstream File(Folder / Name);
		for (const std::string& Line : From)
		{
			File << Line << "\n";
		}
	};
	Write("old.txt", Lines);
	Write("new.txt", MakeOther(Lines, State.range(1)));
	const std::string Command =
		"git diff --no-index " + (Folder / "old.txt").string() + " " + (Folder / "new.txt").string() + " >/dev/null";
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(std::system(Command.c_str()));
	}
	std::filesystem::remove_all(Folder);
}

BENCHMARK(Diff)
	->ArgNames({ "lines", "kind" })
	->ArgsProduct({ { 50000 }, { Changed, Moved, Unlike } })
	->ArgsProduct({ { 10000 }, { Changed, Moved, Unlike } })
	->Unit(benchmark::kMillisecond)
	->UseRealTime();
BENCHMARK(GitDiff)
	->ArgNames({ "lines", "kind" })
	->ArgsProduct({ { 50000 }, { Changed, Moved, Unlike } })
	->Unit(benchmark::kMillisecond)
	->UseRealTime();
BENCHMARK(Table)->ArgNames({ "lines", "kind" })->Args({ 10000, Changed })->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK_MAIN();
