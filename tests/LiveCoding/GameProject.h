#pragma once

// What the tests of compiling share.

#include "CoreHost/Project.h"
#include "Engine/Blueprint.h"
#include "Modules/ModuleManager.h"
#include "TestSupport.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

/** A game with one small module, open in the editor. */
class FGameProject
{
public:
	FGameProject()
	{
		FHostProject::Set(Folder / "Game/Game.uproject");
		FHostProject::SetEngineDir(Folder / "Engine");
		FModuleManager::Get().LoadModule("UnrealEd");
		Write("Game.uproject", R"({"FileVersion":3,"Modules":[{"Name":"Game","Type":"Runtime"}]})");
	}
	~FGameProject()
	{
		FModuleManager::Get().UnloadModulesAtShutdown();
		CollectGarbage(RF_NoFlags);
	}
	UE_NONCOPYABLE(FGameProject)

	void WriteModule() const
	{
		Write("Source/Game/Game.Build.cs",
			R"(// Not a dependency: DependencyModuleNames.Add("Nothing");
public class Game : ModuleRules
{
	public Game(ReadOnlyTargetRules Target) : base(Target)
	{
		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject" /* , "Gone" */ });
		PrivateDependencyModuleNames.Add("Engine");
	}
}
)");
		Write("Source/Game/Game.cpp",
			"#include \"Modules/ModuleManager.h\"\nIMPLEMENT_PRIMARY_GAME_MODULE(FDefaultGameModuleImpl, Game, \"Game\");\n");
	}
	/** A class, with members of its own and what its constructor does. */
	void WriteClass(const std::string& Name, const std::string& Members, const std::string& Constructor = "") const
	{
		Write("Source/Game/Public/" + Name + ".h",
			"#pragma once\n#include \"UObject/Object.h\"\n#include \"" + Name +
				".generated.h\"\n\nUCLASS(Blueprintable)\nclass GAME_API U" + Name +
				" : public UObject\n{\n\tGENERATED_BODY()\npublic:\n\tU" + Name + "();\n" + Members + "};\n");
		Write("Source/Game/Private/" + Name + ".cpp",
			"#include \"" + Name + ".h\"\n\nU" + Name + "::U" + Name + "()\n{\n" + Constructor + "}\n");
	}
	void Write(const std::string& Path, std::string_view Bytes) const { Folder.Write("Game/" + Path, Bytes); }
	std::string Read(const std::string& Path) const { return Folder.Read("Game/" + Path); }
	void Remove(const std::string& Path) const { std::filesystem::remove(Folder.Native("Game/" + Path)); }
	std::string GetBuildLog() const { return Folder.Read("Engine/Programs/UnrealBuildTool/Log.txt"); }
	/** The names of the files in Binaries/Linux. */
	std::vector<std::string> GetLibraries() const
	{
		std::vector<std::string> Names;
		for (const auto& Entry : std::filesystem::directory_iterator(Folder.Native("Game/Binaries/Linux")))
		{
			Names.push_back(Entry.path().filename().string());
		}
		std::sort(Names.begin(), Names.end());
		return Names;
	}

	FTestDirectory Folder;
};
