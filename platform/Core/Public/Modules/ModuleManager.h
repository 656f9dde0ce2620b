#pragma once

// Modules are shared libraries, one for each, that are loaded by name. A library stays loaded once it is: what it has registered
// remains valid. Unloading a module shuts it down and deletes its object.

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "UObject/NameTypes.h"

#include <memory>
#include <vector>

enum class EModuleLoadResult : uint8
{
	Success,
	FileNotFound,
	/** The library itself does not load, for example because a symbol or a library that it needs is missing. */
	CouldNotBeLoadedByOS,
	/** The library has no module in it. */
	FailedToInitialize
};

enum class EModuleChangeReason : uint8
{
	ModuleLoaded,
	ModuleUnloaded
};

/** Game thread. */
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();
	FModuleManager();
	~FModuleManager();
	UE_NONCOPYABLE(FModuleManager)

	/**
	 * Adds a folder in which modules are looked for, before those added earlier; the folder of Core itself comes last.
	 * @param bIsGameDirectory its libraries may be replaced while they are loaded, so that no other library sees their symbols unless it
	 * links them
	 */
	void AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory = false);
	/** The library that a game module is loaded from the next time, instead of the one in its folder. */
	void SetModuleFilename(FName ModuleName, const FString& Filename);

	/** Loads a module and starts it, unless it is there already. @return null on failure, which is logged */
	IModuleInterface* LoadModule(FName InModuleName);
	IModuleInterface* LoadModuleWithFailureReason(FName InModuleName, EModuleLoadResult& OutFailureReason);
	/** Whether there is a library for it. */
	bool ModuleExists(const TCHAR* ModuleName) const;
	bool IsModuleLoaded(FName InModuleName) const { return GetModule(InModuleName) != nullptr; }
	/** Null when it is not loaded. */
	IModuleInterface* GetModule(FName InModuleName) const;
	/** @return whether it was loaded */
	bool UnloadModule(FName InModuleName);
	/** Unloads all, each before those that were started before it. */
	void UnloadModulesAtShutdown();

	/** Called with true after a library was loaded and before its module starts, for what the library has registered. */
	TMulticastDelegate<FName, bool>& OnProcessLoadedObjectsCallback() { return ProcessLoadedObjects; }
	TMulticastDelegate<FName, EModuleChangeReason>& OnModulesChanged() { return ModulesChanged; }

	template <typename ModuleType>
	static ModuleType* GetModulePtr(FName InModuleName)
	{
		return static_cast<ModuleType*>(Get().GetModule(InModuleName));
	}
	template <typename ModuleType>
	static ModuleType* LoadModulePtr(FName InModuleName)
	{
		return static_cast<ModuleType*>(Get().LoadModule(InModuleName));
	}
	/** The module must be loaded. */
	template <typename ModuleType>
	static ModuleType& GetModuleChecked(FName InModuleName)
	{
		return CheckedCast<ModuleType>(Get().GetModule(InModuleName));
	}
	/** It is an error of the program when the module can't be loaded. */
	template <typename ModuleType>
	static ModuleType& LoadModuleChecked(FName InModuleName)
	{
		return CheckedCast<ModuleType>(Get().LoadModule(InModuleName));
	}

private:
	struct FDirectory
	{
		FString Path;
		bool bGame;
	};

	struct FLibrary
	{
		/** Empty when there is none. */
		FString File;
		bool bGame = false;
	};

	struct FModule
	{
		FName Name;
		std::unique_ptr<IModuleInterface> Interface;
	};

	template <typename ModuleType>
	static ModuleType& CheckedCast(IModuleInterface* Module)
	{
		check(Module);
		return static_cast<ModuleType&>(*Module);
	}
	FLibrary FindLibrary(const FString& ModuleName) const;

	TArray<FDirectory> Directories;
	TMap<FName, FString> Filenames;
	/** In the order in which they finished starting; one that is starting is at the end. */
	std::vector<FModule> Modules;
	TMulticastDelegate<FName, bool> ProcessLoadedObjects;
	TMulticastDelegate<FName, EModuleChangeReason> ModulesChanged;
};

class FDefaultModuleImpl : public IModuleInterface
{
};

class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
public:
	bool IsGameModule() const override { return true; }
};

/** Names the class that a library's module is an object of. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)                                                                                      \
	extern "C" DLLEXPORT IModuleInterface* InitializeModule();                                                                             \
	extern "C" DLLEXPORT IModuleInterface* InitializeModule()                                                                              \
	{                                                                                                                                      \
		return new ModuleImplClass();                                                                                                      \
	}

#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
#define IMPLEMENT_PRIMARY_GAME_MODULE(ModuleImplClass, ModuleName, GameName) IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName)
