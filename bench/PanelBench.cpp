// The chat panel's tree: one more block in a chat of so many, a diff of so many lines, and a long message.

#include "Agent/KestrinInterface.h"
#include "CoreHost/Project.h"
#include "Framework/Docking/TabManager.h"
#include "Memory.h"
#include "Modules/ModuleManager.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

namespace
{
void Show(const FString& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(Text, FKestrinInterface::KestrinColor, FKestrinInterface::BoldFontName, 10.0f);
}

/** A project of its own with the panel open in it. */
class FOpenPanel
{
public:
	FOpenPanel()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "kestrin-bench-XXXXXX").string();
		Folder = mkdtemp(Pattern.data());
		FHostProject::Set(FUtf8::Decode((Folder / "Game.uproject").string()));
		FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
		FModuleManager::Get().LoadModule("Kestrin");
		FGlobalTabmanager::Get()->TryInvokeTab(FName("Kestrin"));
	}
	~FOpenPanel()
	{
		FGlobalTabmanager::Get()->CloseAllTabs();
		FModuleManager::Get().UnloadModule("Kestrin");
		std::filesystem::remove_all(Folder);
	}
	UE_NONCOPYABLE(FOpenPanel)

private:
	std::filesystem::path Folder;
};

void BM_AddBlock(benchmark::State& State)
{
	const FOpenPanel Panel;
	const double Before = AllocatedMemory();
	for (int64_t Index = 0; Index < State.range(0); ++Index)
	{
		Show(FString::Printf(TEXT("Block %d"), static_cast<int32>(Index)));
	}
	State.counters["MiB"] = AllocatedMemory() - Before;
	int32 Index = 0;
	for (auto _ : State)
	{
		Show(TEXT("Working..."));
		Show(FString::Printf(TEXT("Another %d"), Index++));
	}
}
BENCHMARK(BM_AddBlock)->Arg(0)->Arg(5000)->Arg(20000)->Iterations(200)->Unit(benchmark::kMicrosecond);

void BM_AddDiff(benchmark::State& State)
{
	FString Old;
	FString New;
	for (int64_t Index = 0; Index < State.range(0); ++Index)
	{
		const FString Line = FString::Printf(TEXT("\tconst float Lantern%d = Oil;\n"), static_cast<int32>(Index));
		Old += Line;
		New += Index % 50 == 0 ? FString(TEXT("\tchanged\n")) : Line;
	}
	const FOpenPanel Panel;
	const double Before = AllocatedMemory();
	for (auto _ : State)
	{
		FKestrinInterface::Get().OnAddDiffMessage(TEXT("Source/Lantern.cpp"), Old, New);
	}
	State.counters["MiB"] = (AllocatedMemory() - Before) / static_cast<double>(State.iterations());
}
BENCHMARK(BM_AddDiff)->Arg(5000)->Iterations(10)->Unit(benchmark::kMillisecond);

void BM_LongMessage(benchmark::State& State)
{
	FString Text;
	while (Text.Len() < State.range(0))
	{
		Text += TEXT("a line of some length with **marks** in it\n");
	}
	const FOpenPanel Panel;
	for (auto _ : State)
	{
		Show(Text);
	}
}
BENCHMARK(BM_LongMessage)->Arg(10 << 20)->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK_MAIN();
