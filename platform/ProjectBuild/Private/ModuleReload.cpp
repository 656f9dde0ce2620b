#include "ModuleReload.h"

#include "CoreHost/ModuleLibrary.h"
#include "Modules/ModuleManager.h"
#include "ModuleTypesReload.h"

#include <dlfcn.h>

namespace
{
/** Loads a library for good, for the other libraries to be loaded with it. @return what is wrong with it, or an empty text */
FString LoadLibrary(const FBuiltModule& Module)
{
	void* const Library = ::dlopen(TCHAR_TO_UTF8(*Module.Library), RTLD_NOW | RTLD_LOCAL);
	if (!Library)
	{
		return FUtf8::Decode(::dlerror());
	}
	return Module.bStarted && !FindModuleEntry(Library) ? TEXT("no source file has IMPLEMENT_MODULE for it") : FString();
}

/** @return whether all of them load */
bool LoadLibraries(const TArray<FBuiltModule>& Modules, FBuildLog& Log)
{
	for (const FBuiltModule& Module : Modules)
	{
		const FString Reason = LoadLibrary(Module);
		if (!Reason.IsEmpty())
		{
			Log.Add(FString::Printf(TEXT("error: the module %s can't be loaded: %s"), *Module.Name, *Reason));
			return false;
		}
	}
	return true;
}
}

bool ReloadModules(const TArray<FBuiltModule>& Modules, FBuildLog& Log)
{
	TArray<FName> Names;
	for (const FBuiltModule& Module : Modules)
	{
		Names.Add(FName(Module.Name));
	}
	FModuleTypesReload Types(Names);
	const bool bLoaded = LoadLibraries(Modules, Log);
	Types.MakeNewTypes();
	const TArray<FString> Obstacles = bLoaded ? Types.FindObstacles() : TArray<FString>();
	for (const FString& Obstacle : Obstacles)
	{
		Log.Add(TEXT("error: ") + Obstacle);
	}
	if (!bLoaded || !Obstacles.IsEmpty())
	{
		Types.GoBack();
		return false;
	}
	FModuleManager& Manager = FModuleManager::Get();
	for (int32 Index = Modules.Num() - 1; Index >= 0; --Index)
	{
		Manager.UnloadModule(Names[Index]);
	}
	Types.ChangeOver();
	bool bStarted = true;
	for (const FBuiltModule& Module : Modules)
	{
		Manager.SetModuleFilename(FName(Module.Name), Module.Library);
		bStarted &= !Module.bStarted || Manager.LoadModule(FName(Module.Name));
	}
	return bStarted;
}
