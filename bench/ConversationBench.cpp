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
const char* const Answer = R"({"status":"COMPLETED","response":{"auto_continue":true,"response":[)"
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

/** One answer: acceptance, a poll, its tools, the results. A wire of its own, so that the record of requests does not count. */
void RunAnswer()
{
	FScriptedTransport Wire;
	FKestrinInterface::Get().Continue(TEXT("go on"));
	Wire.Answer(Wire.GetRequests().Last().Id, 200, R"({"request_id":"r"})");
	FMainLoop::RunFor(2.2);
	Wire.Answer(Wire.GetRequests().Last().Id, 200, Answer);
	FMainLoop::RunFor(0.1);
	// The results are on their way: the next answer's acceptance takes their place.
}

void ThousandAnswers(benchmark::State& State)
{
	OpenProject();
	for (auto _ : State)
	{
		FScriptedTransport Start;
		FKestrinInterface::Get().InitialRequest(TEXT("start"));
		Start.Answer(Start.GetRequests().Last().Id, 200, R"({"request_id":"r"})");
		FMainLoop::RunFor(0.1);
		double Before = 0.0;
		for (int Count = 0; Count < 1000; ++Count)
		{
			if (Count == 100)
			{
				Before = AllocatedMemory();
			}
			RunAnswer();
		}
		const double Grown = AllocatedMemory() - Before;
		const int32 Records = FAgent::Get().GetConversationMessages().Num();
		FAgent::Get().GetConversationMessages().Empty();
		State.counters["records"] = Records;
		State.counters["grown_KiB_per_answer"] = Grown * 1024.0 / 900.0;
		State.counters["of_it_records_KiB"] = (Grown - (AllocatedMemory() - Before)) * 1024.0 / 900.0;
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
