// The assistant writes a Blueprint in one document: variables, functions with parameters, and nodes linked in chains, spread over the
// functions or all in one; each with the compile and the save. Every run begins with a new Blueprint and an empty undo buffer.

#include "Agent/BlueprintUtils.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "CoreHost/Project.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Memory.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "UObject/SavePackage.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace
{
/** How much of everything a document has; nodes are of all functions together. */
struct FSize
{
	int32 Variables = 0;
	int32 Functions = 0;
	int32 Nodes = 0;
};

/** Sets a variable, after the node before it and to that one's value: it is found by its title, among all nodes up to there. */
FString MakeNode(int32 Index, int32 Variables)
{
	const FString Variable = FString::Printf(TEXT("Value_%d"), Index % Variables);
	const FString Before = Index == 0 ? FString() : FString::Printf(TEXT("Set Value_%d"), (Index - 1) % Variables);
	return FString::Printf(TEXT(R"({"Class":"UK2Node_VariableSet","Location":{"X":%d,"Y":0},"Properties":{"VariableName":"%s",)")
							   TEXT(R"("Pins":[{"PinName":"execute","Connections":[{"Node":"%s","Pin":"then"}]},)")
								   TEXT(R"({"PinName":"%s","Connections":[{"Node":"%s","Pin":"Output_Get"}]}]}})"),
		Index * 300, *Variable, *Before, *Variable, *Before);
}

template <typename MakeType>
FString Join(int32 Count, MakeType Make)
{
	FString Text;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Text += (Index == 0 ? TEXT("") : TEXT(",")) + Make(Index);
	}
	return Text;
}

FString MakeDocument(const FSize& Size)
{
	const FString Variables = Join(Size.Variables,
		[](int32 Index)
		{
		return FString::Printf(
			TEXT(R"("Value_%d":{"Type":{"Category":"real","SubCategory":"double"},"Value":"1.5","Category":"Light","SaveGame":true})"),
			Index);
	});
	const FString Functions = Join(Size.Functions,
		[&Size](int32 Index)
		{
		return FString::Printf(TEXT(R"({"Name":"Function%d","InParams":[{"Name":"Oil","Type":"FloatProperty"}],)")
								   TEXT(R"("OutParams":[{"Name":"bLit","Type":"BoolProperty"}],"EdGraph":{"Nodes":[%s]}})"),
			Index, *Join(Size.Nodes / Size.Functions, [&Size](int32 Node) { return MakeNode(Node, Size.Variables); }));
	});
	return FString::Printf(TEXT(R"({"Variables":{%s},"Functions":[%s]})"), *Variables, *Functions);
}

/** Open as long as the program runs. */
void OpenProject()
{
	static const std::filesystem::path Folder = std::filesystem::temp_directory_path() / "kestrin-bench-modify";
	static const bool bOpen = []
	{
		std::filesystem::remove_all(Folder);
		std::filesystem::create_directories(Folder);
		FHostProject::Set(FUtf8::Decode((Folder / "Game.uproject").string()));
		FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
		FModuleManager::Get().LoadModule(TEXT("UnrealEd"));
		return true;
	}();
	verify(bOpen);
}

void MakeBlueprint()
{
	GEditor->ResetTransaction(FText::GetEmpty());
	CollectGarbage(RF_NoFlags);
	UPackage* const Package = CreatePackage(TEXT("/Game/BP_Lamp"));
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, TEXT("BP_Lamp"), BPTYPE_Normal);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	const FString File = FPackageName::LongPackageNameToFilename(TEXT("/Game/BP_Lamp"), FPackageName::GetAssetPackageExtension());
	verify(UPackage::Save(Package, Blueprint, *File, Args).IsSuccessful());
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
}

void Modify(benchmark::State& State)
{
	OpenProject();
	const FString Document =
		MakeDocument({ static_cast<int32>(State.range(0)), static_cast<int32>(State.range(1)), static_cast<int32>(State.range(2)) });
	double Grown = 0.0;
	for (auto _ : State)
	{
		State.PauseTiming();
		MakeBlueprint();
		const double Before = AllocatedMemory();
		State.ResumeTiming();
		const FString Answer = FKestrinBlueprintUtils::ModifyBlueprint(TEXT("BP_Lamp"), Document);
		Grown = AllocatedMemory() - Before;
		verify(Answer.Contains(TEXT("Blueprint modified, compiled, and saved successfully.")));
	}
	// The Blueprint itself, and what undo keeps of it.
	State.counters["MiB held"] = Grown;
	State.counters["document KiB"] = Document.Len() / 1024.0;
}

void Undo(benchmark::State& State)
{
	OpenProject();
	const FString Document = MakeDocument({ 500, 200, 5000 });
	for (auto _ : State)
	{
		State.PauseTiming();
		MakeBlueprint();
		FKestrinBlueprintUtils::ModifyBlueprint(TEXT("BP_Lamp"), Document);
		State.ResumeTiming();
		verify(GEditor->UndoTransaction());
	}
}

BENCHMARK(Modify)
	->ArgNames({ "variables", "functions", "nodes" })
	->Args({ 1, 0, 0 })
	->Args({ 500, 0, 0 })
	->Args({ 1000, 0, 0 })
	->Args({ 0, 200, 0 })
	->Args({ 0, 400, 0 })
	->Args({ 500, 200, 5000 })
	->Args({ 500, 200, 10000 })
	->Args({ 2500, 1, 2500 })
	->Args({ 2500, 0, 0 })
	->Args({ 5000, 1, 5000 })
	->Args({ 5000, 0, 0 })
	->Unit(benchmark::kMillisecond);
BENCHMARK(Undo)->Unit(benchmark::kMillisecond);
}

BENCHMARK_MAIN();
