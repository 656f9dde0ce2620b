// update_file and read_file with a range on texts of 25 and 50 MB, and what a program takes that only reads and writes the bytes.

#include "Agent/FileUtils.h"
#include "CoreHost/Project.h"
#include "Memory.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
std::string MakeText(int64 MegaBytes)
{
	std::string Text;
	for (int64 Line = 0; Text.size() < static_cast<SIZE_T>(MegaBytes) << 20; ++Line)
	{
		Text += "\tconst int32 Value" + std::to_string(Line) + " = Compute(" + std::to_string(Line * 7) + "); // a line of source\n";
	}
	return Text + "\tlast line\n";
}

std::filesystem::path OpenProject(int64 MegaBytes)
{
	const std::filesystem::path Root = std::filesystem::temp_directory_path() / "kestrin-bench-large";
	std::filesystem::create_directories(Root);
	std::ofstream(Root / "Game.uproject") << "{}";
	std::ofstream(Root / "large.txt") << MakeText(MegaBytes);
	FHostProject::Set(FUtf8::Decode((Root / "Game.uproject").string()));
	return Root / "large.txt";
}

/** The peak of a process that does nothing but this. */
template <typename FunctionType>
double MeasurePeak(FunctionType Run)
{
	int Pipe[2];
	if (pipe(Pipe) != 0)
	{
		return 0.0;
	}
	const pid_t Child = fork();
	if (Child == 0)
	{
		const double Base = ReadMemory("VmRSS:");
		Run();
		const double Peak = ReadMemory("VmHWM:") - Base;
		_exit(write(Pipe[1], &Peak, sizeof(Peak)) == sizeof(Peak) ? 0 : 1);
	}
	double Peak = 0.0;
	if (read(Pipe[0], &Peak, sizeof(Peak)) != sizeof(Peak))
	{
		Peak = 0.0;
	}
	waitpid(Child, nullptr, 0);
	close(Pipe[0]);
	close(Pipe[1]);
	return Peak;
}

void Update()
{
	FString Old;
	FString New;
	const FString Result = FFileUtils::UpdateFile(TEXT("large.txt"), TEXT("last line"), TEXT("last line"), Old, New);
	check(!FFileUtils::IsFailure(Result));
}

void ReadRange()
{
	const FString Result = FFileUtils::ReadFileLineRange(TEXT("large.txt"), 1000, 1010);
	check(!FFileUtils::IsFailure(Result));
}

template <typename FunctionType>
void Measure(benchmark::State& State, FunctionType Run)
{
	OpenProject(State.range(0));
	for (auto _ : State)
	{
		Run();
	}
	State.counters["peak_MiB"] = MeasurePeak(Run);
}

void UpdateFile(benchmark::State& State)
{
	Measure(State, &Update);
}

void ReadFileRange(benchmark::State& State)
{
	Measure(State, &ReadRange);
}

void CopyBytes(benchmark::State& State)
{
	const std::filesystem::path File = OpenProject(State.range(0));
	for (auto _ : State)
	{
		std::ostringstream Bytes;
		Bytes << std::ifstream(File, std::ios::binary).rdbuf();
		std::ofstream(File, std::ios::binary) << Bytes.view();
	}
}

BENCHMARK(CopyBytes)->Arg(25)->Arg(50)->ArgName("MB")->Unit(benchmark::kMillisecond);
BENCHMARK(UpdateFile)->Arg(25)->Arg(50)->ArgName("MB")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadFileRange)->Arg(25)->Arg(50)->ArgName("MB")->Unit(benchmark::kMillisecond);
}

BENCHMARK_MAIN();
