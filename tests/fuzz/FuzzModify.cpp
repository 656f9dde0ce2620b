// Any text as a modification document on a small Blueprint, with the compile and the save: nothing crashes, and one undo gives back the
// Blueprint as it was.

#include "Agent/BlueprintUtils.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "CoreHost/Project.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Modules/ModuleManager.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace
{
void OpenProject()
{
	// One of each process, for runs side by side.
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / ("kestrin-fuzz-modify-" + std::to_string(::getpid()));
	std::filesystem::create_directories(Folder);
	FHostProject::Set(FUtf8::Decode((Folder / "Game.uproject").string()));
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry"));
	FModuleManager::Get().LoadModule(TEXT("UnrealEd"));
}

void MakeBlueprint()
{
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(TEXT("/Game/BP_Lamp")), TEXT("BP_Lamp"), BPTYPE_Normal);
	FEdGraphPinType Int;
	Int.PinCategory = UEdGraphSchema_K2::PC_Int;
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Oil"), Int, TEXT("4"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
}

FString Read()
{
	return FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Lamp"), TEXT("All"));
}
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	OpenProject();
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	MakeBlueprint();
	const FString Before = Read();
	const FString Document = FUtf8::Decode(std::string_view(reinterpret_cast<const char*>(Data), Size));
	FKestrinBlueprintUtils::ModifyBlueprint(TEXT("BP_Lamp"), Document);
	while (GEditor->Trans->CanUndo())
	{
		GEditor->UndoTransaction();
	}
	if (!Read().Equals(Before, ESearchCase::CaseSensitive))
	{
		std::fprintf(stderr, "before: %s\nafter:  %s\n", TCHAR_TO_UTF8(*Before), TCHAR_TO_UTF8(*Read()));
		std::abort();
	}
	GEditor->ResetTransaction(FText::GetEmpty());
	CollectGarbage(RF_NoFlags);
	return 0;
}
