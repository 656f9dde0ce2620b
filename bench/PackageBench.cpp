// Packages: a million small records in one file, many objects in one file, the registry's part of many files beside opening and reading
// the same bytes, and finding objects by path among a million.

#include "CoreHost/Project.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/PackageName.h"
#include "UObject/PackageReader.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace
{
constexpr int32 NumFiles = 2000;

/** A project whose packages have a class with an array of records: a name, an enumerator and a link each. */
class FProject
{
public:
	static FProject& Get()
	{
		static FProject Project;
		return Project;
	}

	~FProject() { std::filesystem::remove_all(Folder); }

	/** Saves an asset of that many records and objects inside it, and forgets it. */
	void MakeAsset(const FString& PackageName, int32 NumRecords, int32 NumObjects)
	{
		UClass* const Class = LoadObject<UClass>(nullptr, TEXT("/Game/Holder.Holder_C"));
		UObject* const Asset =
			NewObject<UObject>(CreatePackage(*PackageName), Class, *FPackageName::GetShortName(PackageName), RF_Public | RF_Standalone);
		const FArrayProperty* const Records = FindFProperty<FArrayProperty>(Class, "Records");
		const FArrayProperty* const Objects = FindFProperty<FArrayProperty>(Class, "Objects");
		FScriptArrayHelper Record(Records, Records->ContainerPtrToValuePtr<void>(Asset));
		FScriptArrayHelper Object(Objects, Objects->ContainerPtrToValuePtr<void>(Asset));
		Record.Resize(NumRecords);
		Object.Resize(NumObjects);
		for (int32 Index = 0; Index < NumRecords; ++Index)
		{
			Fill(static_cast<const FStructProperty*>(Records->Inner)->Struct, Record.GetRawPtr(Index), Index, Asset);
		}
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			*reinterpret_cast<UObject**>(Object.GetRawPtr(Index)) = NewObject<UObject>(Asset, Class);
		}
		Save(Asset);
		CollectGarbage(RF_NoFlags);
	}

private:
	FProject()
		: Folder(std::filesystem::temp_directory_path() / "kestrin-package-bench")
	{
		std::filesystem::remove_all(Folder);
		FHostProject::Set(FUtf8::Decode((Folder / "Bench.uproject").string()));
		ProcessNewlyLoadedUObjects();
		UPackage* const Package = CreatePackage(TEXT("/Game/Holder"));
		UEnum* const Enum = NewObject<UEnum>(Package, "Mode", RF_Public | RF_Standalone);
		Enum->AddEnumerator("Mode::Slow", 0, {});
		Enum->AddEnumerator("Mode::Fast", 1, {});
		UScriptStruct* const Struct = NewObject<UScriptStruct>(Package, "Record", RF_Public | RF_Standalone);
		Struct->AddCppProperty(new FNameProperty(Struct, "Name"));
		FByteProperty* const Mode = new FByteProperty(Struct, "Mode");
		Mode->Enum = Enum;
		Struct->AddCppProperty(Mode);
		Struct->AddCppProperty(MakeLink(Struct, "Link"));
		Struct->StaticLink();
		UClass* const Class = NewObject<UClass>(Package, "Holder_C", RF_Public | RF_Standalone);
		Class->SetSuperStruct(UObject::StaticClass());
		FArrayProperty* const Records = new FArrayProperty(Class, "Records");
		FStructProperty* const Record = new FStructProperty(Records, "Records");
		Record->Struct = Struct;
		Records->Inner = Record;
		Class->AddCppProperty(Records);
		FArrayProperty* const Objects = new FArrayProperty(Class, "Objects");
		Objects->Inner = MakeLink(Objects, "Objects");
		Class->AddCppProperty(Objects);
		Class->Bind();
		Class->StaticLink();
		Class->GetDefaultObject();
		Save(Class);
	}

	static FObjectProperty* MakeLink(FFieldVariant Owner, FName Name)
	{
		FObjectProperty* const Link = new FObjectProperty(Owner, Name);
		Link->PropertyClass = UObject::StaticClass();
		return Link;
	}

	static void Fill(const UStruct* Struct, void* Record, int32 Index, UObject* Link)
	{
		*FindFProperty<FNameProperty>(Struct, "Name")->ContainerPtrToValuePtr<FName>(Record) = FName(FName("Pin"), Index % 1000);
		*FindFProperty<FByteProperty>(Struct, "Mode")->ContainerPtrToValuePtr<uint8>(Record) = static_cast<uint8>(Index & 1);
		*FindFProperty<FObjectProperty>(Struct, "Link")->ContainerPtrToValuePtr<UObject*>(Record) = Link;
	}

	static void Save(UObject* Asset)
	{
		FSavePackageArgs Args;
		Args.TopLevelFlags = RF_Standalone;
		const FString Name = Asset->GetPackage()->GetName();
		const FString Filename = FPackageName::LongPackageNameToFilename(Name, FPackageName::GetAssetPackageExtension());
		check(UPackage::Save(Asset->GetPackage(), Asset, *Filename, Args).IsSuccessful());
	}

	std::filesystem::path Folder;
};

void BM_Load(benchmark::State& State, const TCHAR* PackageName, int32 NumRecords, int32 NumObjects)
{
	FProject::Get().MakeAsset(PackageName, NumRecords, NumObjects);
	for (auto _ : State)
	{
		check(LoadPackage(nullptr, PackageName));
		State.PauseTiming();
		CollectGarbage(RF_NoFlags);
		State.ResumeTiming();
	}
	State.SetItemsProcessed(State.iterations() * (NumRecords + NumObjects));
}
BENCHMARK_CAPTURE(BM_Load, Records, TEXT("/Game/Records"), 1000000, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Load, Objects, TEXT("/Game/Objects"), 0, 100000)->Unit(benchmark::kMillisecond);

FString GetScanName(int32 Index)
{
	return TEXT("/Game/Scan/Asset") + FString::FromInt(Index);
}

const TArray<FString>& GetScanFiles()
{
	static const TArray<FString> Files = []
	{
		TArray<FString> Made;
		for (int32 Index = 0; Index < NumFiles; ++Index)
		{
			FProject::Get().MakeAsset(GetScanName(Index), 20, 2);
			Made.Add(FPackageName::LongPackageNameToFilename(GetScanName(Index), FPackageName::GetAssetPackageExtension()));
		}
		return Made;
	}();
	return Files;
}

void BM_ScanRegistryParts(benchmark::State& State)
{
	const TArray<FString>& Files = GetScanFiles();
	for (auto _ : State)
	{
		TArray<FAssetData> Assets;
		FString Error;
		for (int32 Index = 0; Index < NumFiles; ++Index)
		{
			check(FPackageReader::ReadAssets(Files[Index], FName(GetScanName(Index)), Assets, Error));
		}
		check(Assets.Num() == NumFiles);
	}
	State.SetItemsProcessed(State.iterations() * NumFiles);
}
BENCHMARK(BM_ScanRegistryParts)->Unit(benchmark::kMillisecond);

void BM_OpenAndReadTheSameBytes(benchmark::State& State)
{
	const TArray<FString>& Files = GetScanFiles();
	for (auto _ : State)
	{
		for (const FString& Filename : Files)
		{
			const TUniquePtr<IFileHandle> File = FPlatformFileManager::Get().GetPlatformFile().OpenRead(*Filename);
			uint8 Bytes[1024];
			check(File->Read(Bytes, FMath::Min(File->Size(), static_cast<int64>(sizeof(Bytes)))));
			benchmark::DoNotOptimize(Bytes);
		}
	}
	State.SetItemsProcessed(State.iterations() * NumFiles);
}
BENCHMARK(BM_OpenAndReadTheSameBytes)->Unit(benchmark::kMillisecond);

void BM_FindByPath(benchmark::State& State)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Many"));
	UClass* const Class = UObject::StaticClass();
	for (int64 Index = 0; Index < State.range(0); ++Index)
	{
		NewObject<UObject>(Package, Class, FName("Object", static_cast<int32>(Index) + 1));
	}
	int64 Index = 0;
	for (auto _ : State)
	{
		const FString Path = TEXT("/Game/Many.Object_") + FString::FromInt(static_cast<int32>(Index++ % State.range(0)));
		check(FindObject<UObject>(nullptr, *Path));
	}
	CollectGarbage(RF_NoFlags);
}
BENCHMARK(BM_FindByPath)->Arg(10000)->Arg(1000000);
}

BENCHMARK_MAIN();
