// Compiles of a game in the editor: all of it, nothing, one line of one file. Beside it what the compiler alone takes for that file.

#include "CoreHost/Project.h"
#include "CoreMinimal.h"
#include "ILiveCodingModule.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace
{
namespace Files = std::filesystem;

constexpr int Classes = 20;
const Files::path Root = Files::temp_directory_path() / "kestrin-bench-compile";

void Write(const Files::path& Path, const std::string& Text)
{
	Files::create_directories((Root / Path).parent_path());
	std::ofstream(Root / Path) << Text;
}

void MakeGame()
{
	Files::remove_all(Root);
	Write("Game.uproject", R"({"Modules":[{"Name":"Game"}]})");
	Write("Source/Game/Game.Build.cs", R"(PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject", "Engine" });)");
	Write("Source/Game/Game.cpp",
		"#include \"Modules/ModuleManager.h\"\nIMPLEMENT_PRIMARY_GAME_MODULE(FDefaultGameModuleImpl, Game, \"Game\");\n");
	for (int Index = 0; Index < Classes; ++Index)
	{
		const std::string Name = "Class" + std::to_string(Index);
		Write("Source/Game/Public/" + Name + ".h",
			"#pragma once\n#include \"GameFramework/Actor.h\"\n#include \"" + Name + ".generated.h\"\n\nUCLASS()\nclass GAME_API A" + Name +
				" : public AActor\n{\n\tGENERATED_BODY()\npublic:\n\tUPROPERTY(EditAnywhere)\n\tTArray<FString> Lines;\n"
				"\tUFUNCTION(BlueprintCallable)\n\tint32 Count(const FString& Text) const;\n};\n");
		Write("Source/Game/Private/" + Name + ".cpp",
			"#include \"" + Name + ".h\"\n\nint32 A" + Name +
				"::Count(const FString& Text) const\n{\n\treturn Lines.FilterByPredicate([&Text](const "
				"FString& Line) { return Line.Contains(Text); }).Num();\n}\n");
	}
	FHostProject::Set(FUtf8::Decode((Root / "Game.uproject").string()));
	FHostProject::SetEngineDir(FUtf8::Decode((Root / "Engine").string()));
	FModuleManager::Get().LoadModule("UnrealEd");
}

void Compile(benchmark::State& State, ELiveCodingCompileResult Expected)
{
	ELiveCodingCompileResult Result = ELiveCodingCompileResult::Failure;
	FModuleManager::LoadModuleChecked<ILiveCodingModule>("LiveCoding").Compile(ELiveCodingCompileFlags::WaitForCompletion, &Result);
	if (Result != Expected)
	{
		State.SkipWithError("the compile ended otherwise");
	}
}

void Full(benchmark::State& State)
{
	for (auto _ : State)
	{
		State.PauseTiming();
		MakeGame();
		State.ResumeTiming();
		Compile(State, ELiveCodingCompileResult::Success);
	}
}

void NoChanges(benchmark::State& State)
{
	for (auto _ : State)
	{
		Compile(State, ELiveCodingCompileResult::NoChanges);
	}
}

void OneLine(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::ofstream(Root / "Source/Game/Private/Class7.cpp", std::ios::app) << "// changed\n";
		Compile(State, ELiveCodingCompileResult::Success);
	}
}

/** The command for the file as ninja has it: no link, no change to the new module. */
void OneFileBare(benchmark::State& State)
{
	const std::string Folder = (Root / "Intermediate/Build/Linux").string();
	const std::string Shell = "cd '" + Folder + "' && ninja -t commands Game/Obj/Private/Class7.cpp.o | tail -1 | sh >/dev/null 2>&1";
	for (auto _ : State)
	{
		if (std::system(Shell.c_str()) != 0)
		{
			State.SkipWithError("the compiler failed");
		}
	}
}

BENCHMARK(Full)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(NoChanges)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OneLine)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(OneFileBare)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
}

BENCHMARK_MAIN();
