// The chat panel's tree: one more block in a chat of so many, a diff of so many lines, and a long message.

#include "Memory.h"
#include "OpenPanel.h"

#include <benchmark/benchmark.h>

namespace
{
void BM_AddBlock(benchmark::State& State)
{
	const FOpenPanel Panel;
	const double Before = AllocatedMemory();
	for (int64_t Index = 0; Index < State.range(0); ++Index)
	{
		Say(FString::Printf(TEXT("Block %d"), static_cast<int32>(Index)));
	}
	State.counters["MiB"] = AllocatedMemory() - Before;
	int32 Index = 0;
	for (auto _ : State)
	{
		Say(TEXT("Working..."));
		Say(FString::Printf(TEXT("Another %d"), Index++));
	}
}
BENCHMARK(BM_AddBlock)->Arg(0)->Arg(5000)->Arg(20000)->Iterations(200)->Unit(benchmark::kMicrosecond);

void BM_AddDiff(benchmark::State& State)
{
	const FChangedFile File(State.range(0));
	const FOpenPanel Panel;
	const double Before = AllocatedMemory();
	for (auto _ : State)
	{
		FKestrinInterface::Get().OnAddDiffMessage(TEXT("Source/Lantern.cpp"), File.Old, File.New);
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
		Say(Text);
	}
}
BENCHMARK(BM_LongMessage)->Arg(10 << 20)->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK_MAIN();
