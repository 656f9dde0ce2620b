// A project of many Blueprints, 20 variables, 5 functions and 100 nodes each: what the Asset Registry needs to list them, beside opening
// the files and reading the same bytes; loading them, beside RapidJSON's parse of the same content; finding a reference in all of them;
// the assistant's view of a large one; saving and compiling three changed ones; and what a long session of reading leaves in memory.

#include "Agent/BlueprintUtils.h"
#include "Agent/KestrinFindUtils.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "CoreHost/Project.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "KestrinSettings.h"
#include "Memory.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "UObject/SavePackage.h"

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace
{
constexpr int32 NumBlueprints = 2000;

struct FSize
{
	int32 Variables = 20;
	int32 Functions = 5;
	int32 Nodes = 100;
};

/** A chain of nodes that set a variable, each linked to the one before by execution and by value: two links a node. */
void AddNodes(UEdGraph* Graph, int32 Count)
{
	UK2Node_VariableSet* Before = nullptr;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		FGraphNodeCreator<UK2Node_VariableSet> Creator(*Graph);
		UK2Node_VariableSet* const Node = Creator.CreateNode(false);
		Node->VariableReference.SetSelfMember(TEXT("Value_0"));
		Creator.Finalize();
		if (Before)
		{
			Before->FindPin(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Node->FindPin(UEdGraphSchema_K2::PN_Execute));
			Before->FindPin(TEXT("Output_Get"))->MakeLinkTo(Node->FindPin(TEXT("Value_0"), EGPD_Input));
		}
		Before = Node;
	}
}

UBlueprint* MakeBlueprint(const FString& Path, const FSize& Size)
{
	UPackage* const Package = CreatePackage(*Path);
	UBlueprint* const Blueprint =
		FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, FName(FPackageName::GetShortName(Path)), BPTYPE_Normal);
	FEdGraphPinType Real;
	Real.PinCategory = UEdGraphSchema_K2::PC_Real;
	Real.PinSubCategory = UEdGraphSchema_K2::PC_Double;
	for (int32 Index = 0; Index < Size.Variables; ++Index)
	{
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, FName(FString::Printf(TEXT("Value_%d"), Index)), Real, TEXT("1.5"));
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	for (int32 Index = 0; Index < Size.Functions; ++Index)
	{
		UEdGraph* const Graph = FBlueprintEditorUtils::CreateNewGraph(
			Blueprint, FName(FString::Printf(TEXT("Function%d"), Index)), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
		FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
		AddNodes(Graph, Size.Nodes / Size.Functions);
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	return Blueprint;
}

FString GetFile(const FString& PackageName)
{
	return FPackageName::LongPackageNameToFilename(PackageName, FPackageName::GetAssetPackageExtension());
}

FString GetName(int32 Index)
{
	return FString::Printf(TEXT("BP_%d"), Index);
}

void Save(UBlueprint* Blueprint)
{
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	verify(UPackage::Save(Blueprint->GetOutermost(), Blueprint, *GetFile(Blueprint->GetOutermost()->GetName()), Args).IsSuccessful());
}

/** Made once, and removed at the end. */
class FProject
{
public:
	static const FProject& Get()
	{
		static const FProject Project;
		return Project;
	}
	~FProject() { std::filesystem::remove_all(Folder); }

private:
	FProject()
	{
		std::filesystem::remove_all(Folder);
		std::filesystem::create_directories(Folder);
		FHostProject::Set(FUtf8::Decode((Folder / "Game.uproject").string()));
		FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
		FModuleManager::Get().LoadModule(TEXT("UnrealEd"));
		GetMutableDefault<UKestrinSettings>()->BlueprintContentFilter = EKestrinBlueprintContentFilter::UseOnlyBlueprintClassContent;
		for (int32 Index = 0; Index < NumBlueprints; ++Index)
		{
			Save(MakeBlueprint(TEXT("/Game/Many/") + GetName(Index), FSize()));
			CollectGarbage(RF_NoFlags);
		}
	}

	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / "kestrin-bench-blueprints";
};

void LoadAll(int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		verify(LoadObject<UBlueprint>(nullptr, *(TEXT("/Game/Many/") + GetName(Index))));
	}
}

void Registry(benchmark::State& State)
{
	FProject::Get();
	for (auto _ : State)
	{
		IAssetRegistry::GetChecked().ScanPathsSynchronous({ TEXT("/Game") }, true);
	}
}

/** The first KiB of each file, which holds what the registry reads. */
void RegistryBytes(benchmark::State& State)
{
	FProject::Get();
	for (auto _ : State)
	{
		for (const auto& Entry :
			std::filesystem::directory_iterator(TCHAR_TO_UTF8(*FPaths::Combine(FPaths::ProjectContentDir(), TEXT("Many")))))
		{
			char Bytes[1024];
			const int File = ::open(Entry.path().c_str(), O_RDONLY);
			benchmark::DoNotOptimize(::read(File, Bytes, sizeof(Bytes)));
			::close(File);
		}
	}
}

void Load(benchmark::State& State)
{
	FProject::Get();
	for (auto _ : State)
	{
		LoadAll(static_cast<int32>(State.range(0)));
		State.PauseTiming();
		CollectGarbage(RF_NoFlags);
		State.ResumeTiming();
	}
}

/** The assistant's view of the same Blueprints: the content once, without positions, identifiers and pin types. */
void LoadAsJson(benchmark::State& State)
{
	FProject::Get();
	std::vector<std::string> Documents;
	int64 Bytes = 0;
	for (int32 Index = 0; Index < State.range(0); ++Index)
	{
		Documents.push_back(TCHAR_TO_UTF8(*FKestrinBlueprintUtils::ReadBlueprint(GetName(Index), TEXT("All"))));
		Bytes += static_cast<int64>(Documents.back().size());
	}
	CollectGarbage(RF_NoFlags);
	for (auto _ : State)
	{
		std::vector<rapidjson::Document> Parsed(Documents.size());
		for (size_t Index = 0; Index < Documents.size(); ++Index)
		{
			Parsed[Index].Parse(Documents[Index].data(), Documents[Index].size());
		}
		benchmark::DoNotOptimize(Parsed);
	}
	State.counters["MiB"] = static_cast<double>(Bytes) / (1 << 20);
}

/** Files of Blueprints from the given one on lie elsewhere while it lives. */
class FFewerBlueprints
{
public:
	explicit FFewerBlueprints(int32 InCount)
		: Count(InCount)
	{
		std::filesystem::create_directories(Elsewhere);
		Move(Folder, Elsewhere);
	}
	~FFewerBlueprints()
	{
		Move(Elsewhere, Folder);
		std::filesystem::remove(Elsewhere);
	}

private:
	void Move(const std::filesystem::path& From, const std::filesystem::path& To) const
	{
		for (int32 Index = Count; Index < NumBlueprints; ++Index)
		{
			const std::string Name = TCHAR_TO_UTF8(*(GetName(Index) + TEXT(".uasset")));
			std::filesystem::rename(From / Name, To / Name);
		}
	}

	const int32 Count;
	const std::filesystem::path Folder = TCHAR_TO_UTF8(*FPaths::Combine(FPaths::ProjectContentDir(), TEXT("Many")));
	const std::filesystem::path Elsewhere = TCHAR_TO_UTF8(*FPaths::Combine(FPaths::ProjectDir(), TEXT("Elsewhere")));
};

/** For a variable that every node uses, loading included; the project has no C++ files. */
void FindReferences(benchmark::State& State)
{
	FProject::Get();
	const FFewerBlueprints Fewer(static_cast<int32>(State.range(0)));
	int64 Length = 0;
	for (auto _ : State)
	{
		Length = FKestrinFindUtils::FindInAllFiles(TEXT("value_0")).Len();
		State.PauseTiming();
		CollectGarbage(RF_NoFlags);
		State.ResumeTiming();
	}
	State.counters["answer MiB"] = static_cast<double>(Length) / (1 << 20);
}

void ReadLarge(benchmark::State& State)
{
	FProject::Get();
	const FString Name = FString::Printf(TEXT("BP_Large%d"), static_cast<int32>(State.range(0)));
	UBlueprint* const Blueprint =
		MakeBlueprint(TEXT("/Game/") + Name, { .Variables = 20, .Functions = 5, .Nodes = static_cast<int32>(State.range(0)) });
	Save(Blueprint);
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(FKestrinBlueprintUtils::ReadBlueprint(Name, TEXT("All")));
	}
	std::filesystem::remove(TCHAR_TO_UTF8(*GetFile(Blueprint->GetOutermost()->GetName())));
	CollectGarbage(RF_NoFlags);
}

/** Of all that are loaded. */
void SaveAndCompileThree(benchmark::State& State)
{
	FProject::Get();
	LoadAll(NumBlueprints);
	for (auto _ : State)
	{
		for (const int32 Index : { 7, 700, 1700 })
		{
			FindObject<UBlueprint>(nullptr, *(TEXT("/Game/Many/") + GetName(Index) + TEXT(".") + GetName(Index)))->MarkPackageDirty();
		}
		const FString Answer = FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
		verify(Answer.Contains(TEXT("All dirty Blueprints were processed successfully.")));
	}
	CollectGarbage(RF_NoFlags);
}

/** Every Blueprint read ten times; from the second time on nothing may be added. */
void ReadAllTenTimes(benchmark::State& State)
{
	FProject::Get();
	for (auto _ : State)
	{
		double Before = 0.0;
		for (int32 Round = 0; Round < 10; ++Round)
		{
			for (int32 Index = 0; Index < NumBlueprints / 10; ++Index)
			{
				benchmark::DoNotOptimize(FKestrinBlueprintUtils::ReadBlueprint(GetName(Index), TEXT("All")));
			}
			Before = Round == 0 ? AllocatedMemory() : Before;
		}
		State.counters["grown MiB"] = AllocatedMemory() - Before;
	}
	CollectGarbage(RF_NoFlags);
}

BENCHMARK(Registry)->Unit(benchmark::kMillisecond);
BENCHMARK(RegistryBytes)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(NumBlueprints / 2)->Arg(NumBlueprints)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadAsJson)->Arg(NumBlueprints / 2)->Arg(NumBlueprints)->Unit(benchmark::kMillisecond);
BENCHMARK(FindReferences)->Arg(NumBlueprints / 2)->Arg(NumBlueprints)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadLarge)->Arg(2500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveAndCompileThree)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAllTenTimes)->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK_MAIN();
