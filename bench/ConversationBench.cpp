// A conversation of 1,000 answers with five tool calls each: what it leaves in memory; and what a tick between two polls costs.

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "Containers/Ticker.h"
#include "CoreHost/Clock.h"
#include "CoreHost/MainLoop.h"
#include "CoreHost/Project.h"
#include "HTTPHost/ScriptedTransport.h"
#include "KestrinSettings.h"
#include "Memory.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace
{
const char* const Answer =
	R"({"status":"COMPLETED","response":{"auto_continue":true,"response":[)"
	R"({"type":"tool_use","name":"read_file","id":"1","input":{"path":"a.txt"}},)"
	R"({"type":"tool_use","name":"read_file","id":"2","input":{"path":"a.txt","view_range":[1,2]}},)"
	R"({"type":"tool_use","name":"update_file","id":"3","input":{"path":"a.txt","old_string":"x","new_string":"x"}},)"
	R"({"type":"tool_use","name":"get_filesystem_tree","id":"4","input":{"dir_path":""}},)"
	R"({"type":"tool_use","name":"none","id":"5","input":{}}]}})";

void OpenProject()
{
	const std::filesystem::path Root = std::filesystem::temp_directory_path() / "kestrin-bench-conversation";
	std::filesystem::create_directories(Root);
	std::ofstream(Root / "Game.uproject") << "{}";
	std::ofstream(Root / "a.txt") << "x\ny\n";
	FHostProject::Set(FUtf8::Decode((Root / "Game.uproject").string()));
	FHostClock::SetManual(true);
	FAgent::Get().SetState(EAgentState::Idle);
}

/** The scripted service. The wire is a new one for each answer, so that its record of requests does not count. */
class FService
{
public:
	/** Takes the newest command on, waits for the poll and gives the answer, whose results are the next command. */
	void Answer(const char* Body)
	{
		Wire->Answer(Wire->GetRequests().Last().Id, 200, R"({"request_id":"r"})");
		FMainLoop::RunFor(0.1);
		Wire.Reset();
		Wire.Reset(new FScriptedTransport);
		while (Wire->GetRequests().IsEmpty())
		{
			FMainLoop::RunFor(0.1);
		}
		Wire->Answer(Wire->GetRequests().Last().Id, 200, Body);
		FMainLoop::RunFor(0.1);
	}

private:
	TUniquePtr<FScriptedTransport> Wire{ new FScriptedTransport };
};

void ThousandAnswers(benchmark::State& State)
{
	OpenProject();
	for (auto _ : State)
	{
		FService Service;
		FKestrinInterface::Get().InitialRequest(TEXT("start"));
		double Before = 0.0;
		for (int Count = 0; Count < 1000; ++Count)
		{
			if (Count == 100)
			{
				Before = AllocatedMemory();
			}
			Service.Answer(Answer);
		}
		const double Grown = AllocatedMemory() - Before;
		State.counters["records"] = FAgent::Get().GetConversationMessages().Num();
		FAgent::Get().GetConversationMessages().Empty();
		State.counters["grown_KiB_per_answer"] = Grown * 1024.0 / 900.0;
		// All thousand records go, nine hundred of which came in between.
		State.counters["records_KiB_per_answer"] = (Grown - (AllocatedMemory() - Before)) * 1024.0 / 1000.0;
		FKestrinInterface::Get().EndRequest(FString());
	}
}

void TickBetweenPolls(benchmark::State& State)
{
	OpenProject();
	FScriptedTransport Wire;
	FKestrinInterface::Get().InitialRequest(TEXT("start"));
	Wire.Answer(Wire.GetRequests().Last().Id, 200, R"({"request_id":"r"})");
	FMainLoop::RunFor(0.1);
	for (auto _ : State)
	{
		// The clock stands: every tick is due, none polls.
		FTSTicker::GetCoreTicker().Tick(0.1f);
	}
	FKestrinInterface::Get().EndRequest(FString());
}

BENCHMARK(ThousandAnswers)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(TickBetweenPolls);
}

BENCHMARK_MAIN();
