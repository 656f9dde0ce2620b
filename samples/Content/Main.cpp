// Makes the assets of the sample game: lantern-hollow-content PROJECT.uproject

#include "Containers/StringConv.h"
#include "Content.h"
#include "CoreHost/LogDevice.h"
#include "CoreHost/Project.h"
#include "Modules/ModuleManager.h"
#include "Misc/Paths.h"

#include <cstdio>

int main(int Count, char** Arguments)
{
	if (Count != 2)
	{
		std::fprintf(stderr, "usage: lantern-hollow-content PROJECT.uproject\n");
		return 2;
	}
	const FLogDevice Log;
	FHostProject::Set(FUtf8::Decode(Arguments[1]));
	FModuleManager& Modules = FModuleManager::Get();
	for (const TCHAR* const Module : { TEXT("Engine"), TEXT("BlueprintGraph"), TEXT("UnrealEd"), TEXT("AssetRegistry"), TEXT("AIModule") })
	{
		Modules.LoadModule(Module);
	}
	Modules.AddBinariesDirectory(*FPaths::Combine(FPaths::ProjectDir(), TEXT("Binaries"), TEXT("Linux")));
	if (!Modules.LoadModule(TEXT("LanternHollow")))
	{
		std::fprintf(stderr, "lantern-hollow-content: the game's module does not load\n");
		return 1;
	}
	const FLanternTypes Types = MakeTypes();
	UClass* const LanternPost = MakeLanterns(Types);
	MakeMoths(Types, LanternPost);
	MakeHollow(Types, LanternPost);
	return 0;
}
