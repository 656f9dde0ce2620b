#include "Modules/ModuleManager.h"

#include "CoreHost/ModuleLibrary.h"
#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <dlfcn.h>

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace
{
using FInitializeFunction = IModuleInterface* (*)();

/** The folder of the library that this code is in. */
FString OwnDirectory()
{
	static const ANSICHAR Inside = 0;
	Dl_info Info;
	return ::dladdr(&Inside, &Info) != 0 ? FPaths::GetPath(FPaths::ConvertRelativePathToFull(FUtf8::Decode(Info.dli_fname))) : FString();
}

FString LibraryName(const FString& ModuleName)
{
	return FString::Printf(TEXT("lib" KESTRIN_MODULE_PREFIX "%s.so"), *ModuleName);
}

/** Loads a library for good and finds its entry; null, with the reason, when one of the two fails. */
FInitializeFunction LoadEntry(const FString& File, bool bGame, EModuleLoadResult& OutResult, FString& OutReason)
{
	void* const Library = ::dlopen(NativePath(*File).c_str(), RTLD_NOW | (bGame ? RTLD_LOCAL : RTLD_GLOBAL));
	void* const Entry = Library ? FindModuleEntry(Library) : nullptr;
	if (Entry)
	{
		OutResult = EModuleLoadResult::Success;
		return reinterpret_cast<FInitializeFunction>(Entry);
	}
	OutResult = Library ? EModuleLoadResult::FailedToInitialize : EModuleLoadResult::CouldNotBeLoadedByOS;
	OutReason = Library ? FString(TEXT("no source file has IMPLEMENT_MODULE for it")) : FUtf8::Decode(::dlerror());
	return nullptr;
}
}

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: modules are shut down by UnloadModulesAtShutdown or not at all.
	static FModuleManager* const Manager = new FModuleManager;
	return *Manager;
}

FModuleManager::FModuleManager()
{
	AddBinariesDirectory(*OwnDirectory());
}

FModuleManager::~FModuleManager() = default;

void FModuleManager::AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory)
{
	const FString Directory = FPaths::ConvertRelativePathToFull(InDirectory);
	Directories.RemoveAll([&Directory](const FDirectory& Each) { return Each.Path.Equals(Directory); });
	Directories.Insert({ Directory, bIsGameDirectory }, 0);
}

void FModuleManager::SetModuleFilename(FName ModuleName, const FString& Filename)
{
	Filenames.Add(ModuleName, Filename);
}

FModuleManager::FLibrary FModuleManager::FindLibrary(const FString& ModuleName) const
{
	if (const FString* const File = Filenames.Find(FName(ModuleName)))
	{
		return { *File, true };
	}
	for (const FDirectory& Directory : Directories)
	{
		const FString File = FPaths::Combine(Directory.Path, LibraryName(ModuleName));
		if (FPaths::FileExists(File))
		{
			return { File, Directory.bGame };
		}
	}
	return {};
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return !FindLibrary(ModuleName).File.IsEmpty();
}

IModuleInterface* FModuleManager::GetModule(FName InModuleName) const
{
	const auto Found =
		std::find_if(Modules.begin(), Modules.end(), [InModuleName](const FModule& Module) { return Module.Name == InModuleName; });
	return Found == Modules.end() ? nullptr : Found->Interface.get();
}

IModuleInterface* FModuleManager::LoadModule(FName InModuleName)
{
	EModuleLoadResult Result;
	return LoadModuleWithFailureReason(InModuleName, Result);
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* const Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	const FString Name = InModuleName.ToString();
	const FLibrary Library = FindLibrary(Name);
	if (Library.File.IsEmpty())
	{
		OutFailureReason = EModuleLoadResult::FileNotFound;
		TArray<FString> Searched;
		for (const FDirectory& Directory : Directories)
		{
			Searched.Add(Directory.Path);
		}
		UE_LOG(LogModuleManager, Warning, TEXT("Module '%s' could not be loaded: there is no %s in %s"), *Name, *LibraryName(Name),
			*FString::Join(Searched, TEXT(", ")));
		return nullptr;
	}
	FString Reason;
	const FInitializeFunction Initialize = LoadEntry(Library.File, Library.bGame, OutFailureReason, Reason);
	if (!Initialize)
	{
		UE_LOG(LogModuleManager, Warning, TEXT("Module '%s' could not be loaded: %s"), *Name, *Reason);
		return nullptr;
	}
	ProcessLoadedObjects.Broadcast(InModuleName, true);
	IModuleInterface* const Module = Modules.emplace_back(InModuleName, std::unique_ptr<IModuleInterface>(Initialize())).Interface.get();
	Module->StartupModule();
	// Modules that this one loaded while it started come before it, and go after it.
	const auto Own = std::find_if(Modules.begin(), Modules.end(), [Module](const FModule& Each) { return Each.Interface.get() == Module; });
	std::rotate(Own, Own + 1, Modules.end());
	ModulesChanged.Broadcast(InModuleName, EModuleChangeReason::ModuleLoaded);
	return Module;
}

bool FModuleManager::UnloadModule(FName InModuleName)
{
	IModuleInterface* const Module = GetModule(InModuleName);
	if (!Module)
	{
		return false;
	}
	Module->ShutdownModule();
	std::erase_if(Modules, [Module](const FModule& Each) { return Each.Interface.get() == Module; });
	ModulesChanged.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	while (!Modules.empty())
	{
		UnloadModule(Modules.back().Name);
	}
}
