// A search for a text in 20,000 C++ files of 400 MB: the tool that finds references, beside ripgrep on one thread doing the same and beside
// a program that only reads the files. The time is what the processor spent, system included, since machines are shared.

#include "Agent/KestrinFindUtils.h"
#include "CoreHost/Project.h"
#include "KestrinSettings.h"
#include "Memory.h"
#include "Modules/ModuleManager.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace
{
constexpr int NumFiles = 20000;
constexpr SIZE_T FileSize = 20000;

const char* const Words[] = { "Actor", "Component", "Health", "bIsValid", "int32", "const", "float", "Lantern", "Moth", "GetWorld",
	"return", "if", "for", "TArray", "FString", "UPROPERTY", "EditAnywhere", "Category", "Value", "Index", "Num", "Add", "World",
	"Location", "Rotation", "the", "of", "a", "when", "which", "nullptr", "this", "void", "virtual", "override", "FVector", "Delta", "Time",
	"Owner", "Instigator", "Speed", "Get", "Set", "Tick", "BeginPlay", "Super", "check", "static_cast", "Velocity", "Ground" };
const char* const Marks[] = { " ", "(", ")", "->", "::", ", ", " = ", ";\n\t", ";\n\t\t", " {\n\t", "\n}\n\n", " // ", ".", "[0]", " + 1" };

/** Words and marks as in sources, other ones in each file. */
std::string MakeSource(std::mt19937& Random)
{
	std::string Text;
	Text.reserve(FileSize + 64);
	while (Text.size() < FileSize)
	{
		Text += Words[Random() % std::size(Words)];
		Text += Marks[Random() % std::size(Marks)];
	}
	return Text;
}

/** Half of the files lie below "Source", the others below "Plugins"; a second project has the first half alone. */
class FCorpus
{
public:
	static const FCorpus& Get()
	{
		static const FCorpus Corpus;
		return Corpus;
	}
	~FCorpus()
	{
		std::filesystem::remove_all(Whole);
		std::filesystem::remove_all(Half);
	}

	void Open(bool bWhole) const { FHostProject::Set(FUtf8::Decode(((bWhole ? Whole : Half) / "Game.uproject").string())); }

	const std::filesystem::path Whole = std::filesystem::temp_directory_path() / "kestrin-bench-search";
	const std::filesystem::path Half = std::filesystem::temp_directory_path() / "kestrin-bench-search-half";
	std::vector<std::string> Files;

private:
	FCorpus()
	{
		std::filesystem::remove_all(Whole);
		std::filesystem::remove_all(Half);
		std::mt19937 Random(7);
		for (int Index = 0; Index < NumFiles; ++Index)
		{
			const std::filesystem::path Folder =
				Whole / (Index < NumFiles / 2 ? "Source" : "Plugins") / ("Module" + std::to_string(Index / 100));
			std::filesystem::create_directories(Folder);
			const std::filesystem::path File = Folder / ("File" + std::to_string(Index) + (Index % 2 ? ".cpp" : ".h"));
			std::ofstream(File, std::ios::binary) << MakeSource(Random) << (Index % 1000 == 7 ? "\n// lantern_KEEPER\n" : "\n");
			Files.push_back(File.string());
		}
		std::ofstream(Whole / "Game.uproject") << "{}";
		std::filesystem::create_directories(Half);
		std::ofstream(Half / "Game.uproject") << "{}";
		std::filesystem::create_directory_symlink(Whole / "Source", Half / "Source");
		FModuleManager::Get().LoadModule(TEXT("AssetRegistry"));
	}
};

double GetProcessorTime(int Who)
{
	rusage Usage;
	::getrusage(Who, &Usage);
	const auto ToSeconds = [](const timeval& Time) { return static_cast<double>(Time.tv_sec) + static_cast<double>(Time.tv_usec) * 1e-6; };
	return ToSeconds(Usage.ru_utime) + ToSeconds(Usage.ru_stime);
}

template <typename FunctionType>
void Measure(benchmark::State& State, int Who, FunctionType Run)
{
	for (auto _ : State)
	{
		const double Before = GetProcessorTime(Who);
		Run();
		State.SetIterationTime(GetProcessorTime(Who) - Before);
	}
}

int CountLines(const std::string& Command)
{
	std::FILE* const Pipe = ::popen(Command.c_str(), "r");
	int Lines = 0;
	for (int Char = std::fgetc(Pipe); Char != EOF; Char = std::fgetc(Pipe))
	{
		Lines += Char == '\n';
	}
	::pclose(Pipe);
	return Lines;
}

int CountRecords(const FString& Answer)
{
	TArray<FString> Parts;
	return Answer.ParseIntoArray(Parts, TEXT("\"Type\""), false) - 1;
}

std::string RipgrepCommand(const std::string& Reference)
{
	const std::string Root = FCorpus::Get().Whole.string();
	return "rg -j1 -i -l --fixed-strings --no-ignore -g '*.cpp' -g '*.h' -- '" + Reference + "' " + Root + "/Source " + Root + "/Plugins";
}

/** @param Reference as common in the files as its row says */
void Kestrin(benchmark::State& State, const char* Reference)
{
	FCorpus::Get().Open(State.range(0) == NumFiles);
	const FString Text(Reference);
	const int Found = CountRecords(FKestrinFindUtils::FindInAllFiles(Text));
	if (State.range(0) == NumFiles && Found != CountLines(RipgrepCommand(Reference)))
	{
		State.SkipWithError("ripgrep finds other files");
	}
	std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
	const double Before = ReadMemory("VmRSS:");
	Measure(State, RUSAGE_SELF, [&] { benchmark::DoNotOptimize(FKestrinFindUtils::FindInAllFiles(Text)); });
	State.counters["peak MiB"] = ReadMemory("VmHWM:") - Before;
	State.counters["found"] = Found;
}

void Ripgrep(benchmark::State& State, const char* Reference)
{
	const std::string Command = RipgrepCommand(Reference) + " >/dev/null";
	// Its answer is 1 when nothing was found.
	Measure(State, RUSAGE_CHILDREN, [&] { benchmark::DoNotOptimize(std::system(Command.c_str())); });
}

void ReadAlone(benchmark::State& State)
{
	const FCorpus& Corpus = FCorpus::Get();
	alignas(4096) static char Buffer[256 * 1024];
	Measure(State, RUSAGE_SELF,
		[&]
		{
		for (const std::string& Name : Corpus.Files)
		{
			const int File = ::open(Name.c_str(), O_RDONLY);
			benchmark::DoNotOptimize(::read(File, Buffer, sizeof(Buffer)));
			::close(File);
		}
	});
}

const char* const InTwenty = "LANTERN_keeper";
const char* const Nowhere = "GetLanternKind";
const char* const Everywhere = "velocity";

BENCHMARK(ReadAlone)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK_CAPTURE(Kestrin, InTwenty, InTwenty)
	->Arg(NumFiles / 2)
	->Arg(NumFiles)
	->UseManualTime()
	->Unit(benchmark::kMillisecond)
	->MinTime(3.0);
BENCHMARK_CAPTURE(Ripgrep, InTwenty, InTwenty)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK_CAPTURE(Kestrin, Nowhere, Nowhere)->Arg(NumFiles)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK_CAPTURE(Ripgrep, Nowhere, Nowhere)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK_CAPTURE(Kestrin, Everywhere, Everywhere)->Arg(NumFiles)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
BENCHMARK_CAPTURE(Ripgrep, Everywhere, Everywhere)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);
}

BENCHMARK_MAIN();
