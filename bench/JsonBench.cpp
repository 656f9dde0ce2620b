// Reading and writing JSON: this project's, RapidJSON and nlohmann's ordered_json, on the same documents.

#include "CoreMinimal.h"
#include "Serialization/JsonSerializer.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <map>
#include <random>

namespace
{
/** Answers with tool calls: texts with escapes and other scripts, numbers, flags, nesting. */
std::string MakeAnswers(SIZE_T Bytes)
{
	std::mt19937 Random(7);
	std::string Document = "{\"auto_continue\":true,\"response\":[";
	for (int Index = 0; Document.size() < Bytes; ++Index)
	{
		Document += Index ? "," : "";
		Document += R"({"type":"tool_use","id":"call_)" + std::to_string(Random()) +
			R"(","name":"update_file","input":{"path":"Source/Game/File)" + std::to_string(Index) +
			R"(.cpp","old_string":"if (bReady)\n{\n\treturn \"grün\";\n}","new_string":")" + std::string(Random() % 200, 'x') +
			R"(","view_range":[)" + std::to_string(Random() % 1000) + "," + std::to_string(Random() % 100000) + R"(],"weight":)" +
			std::to_string(static_cast<double>(Random() % 1000000) / 1000.0) + R"(,"confirmed":false,"note":null}})";
	}
	return Document + "]}";
}

std::string MakeManyKeys(int Count)
{
	std::string Document = "{";
	for (int Index = 0; Index < Count; ++Index)
	{
		Document += (Index ? ",\"File_" : "\"File_") + std::to_string(Index * 7919) + ".cpp\":\"#\"";
	}
	return Document + "}";
}

const std::string& GetDocument(int64 Which)
{
	static std::map<int64, std::string> Made;
	std::string& Document = Made[Which];
	if (Document.empty())
	{
		Document = Which == 0 ? MakeManyKeys(20000) : MakeAnswers(static_cast<SIZE_T>(Which));
	}
	return Document;
}

TSharedPtr<FJsonObject> Parse(const FString& Text)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(Text), Object);
	return Object;
}

void CountBytes(benchmark::State& State)
{
	State.SetBytesProcessed(static_cast<int64>(State.iterations()) * static_cast<int64>(GetDocument(State.range(0)).size()));
}

void ParseKestrin(benchmark::State& State)
{
	const FString Text = FUtf8::Decode(GetDocument(State.range(0)));
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Parse(Text));
	}
	CountBytes(State);
}

void ParseRapid(benchmark::State& State)
{
	const std::string& Text = GetDocument(State.range(0));
	for (auto _ : State)
	{
		rapidjson::Document Document;
		Document.Parse(Text.data(), Text.size());
		benchmark::DoNotOptimize(Document);
	}
	CountBytes(State);
}

void ParseNlohmann(benchmark::State& State)
{
	const std::string& Text = GetDocument(State.range(0));
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(nlohmann::ordered_json::parse(Text));
	}
	CountBytes(State);
}

void WriteKestrin(benchmark::State& State)
{
	const TSharedRef<FJsonObject> Object = Parse(FUtf8::Decode(GetDocument(State.range(0)))).ToSharedRef();
	for (auto _ : State)
	{
		FString Text;
		FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
		benchmark::DoNotOptimize(Text);
	}
	CountBytes(State);
}

void WriteRapid(benchmark::State& State)
{
	rapidjson::Document Document;
	Document.Parse(GetDocument(State.range(0)).c_str());
	for (auto _ : State)
	{
		rapidjson::StringBuffer Buffer;
		rapidjson::Writer<rapidjson::StringBuffer> Writer(Buffer);
		Document.Accept(Writer);
		benchmark::DoNotOptimize(Buffer);
	}
	CountBytes(State);
}

void WriteNlohmann(benchmark::State& State)
{
	const auto Document = nlohmann::ordered_json::parse(GetDocument(State.range(0)));
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Document.dump());
	}
	CountBytes(State);
}

void ForDocuments(benchmark::internal::Benchmark* Bench)
{
	// Bytes of a document of answers; 0 is the object with 20,000 keys.
	for (const int64 Document : { int64(1) << 10, int64(1) << 20, int64(50) << 20, int64(0) })
	{
		Bench->Arg(Document);
	}
	Bench->ArgName("bytes")->Unit(benchmark::kMicrosecond);
}

BENCHMARK(ParseKestrin)->Apply(ForDocuments);
BENCHMARK(ParseRapid)->Apply(ForDocuments);
BENCHMARK(ParseNlohmann)->Apply(ForDocuments);
BENCHMARK(WriteKestrin)->Apply(ForDocuments);
BENCHMARK(WriteRapid)->Apply(ForDocuments);
BENCHMARK(WriteNlohmann)->Apply(ForDocuments);
}

BENCHMARK_MAIN();
