#include "BlueprintSupport.h"
#include "CoreHost/MainLoop.h"
#include "Engine/World.h"
#include "FileHelpers.h"

TEST_F(Blueprints, DeferredCommandsRunInTheNextFrame)
{
	FLogLines Seen;
	UPackage* const Package = CreatePackage(TEXT("/Game/Unused"));
	const TWeakObjectPtr<UObject> Left(NewObject<UBlueprint>(Package, TEXT("Unused")));
	GEngine->DeferredCommands.Append(
		{ TEXT("Nonsense 1"), TEXT("rescanallblueprintclasses"), TEXT("HotReload.ModuleCompilationFinished") });
	EXPECT_TRUE(Left.IsValid());
	FMainLoop::Tick();
	EXPECT_TRUE(GEngine->DeferredCommands.IsEmpty());
	EXPECT_FALSE(Left.IsValid()) << "what is left over goes";
	EXPECT_EQ(Seen.Lines.FilterByPredicate([](const FString& Line) { return Line.Contains(TEXT("Command not recognized")); }),
		TArray<FString>{ TEXT("LogGeneral|Warning|Command not recognized: Nonsense 1") });
}

TEST_F(Blueprints, ChangedPackagesAreListedByWhatTheyHold)
{
	const TCHAR* const Names[] = { TEXT("/Game/Clean"), TEXT("/Game/Asset"), TEXT("/Game/Ignored"), TEXT("/Elsewhere/Asset") };
	for (const TCHAR* const Name : Names)
	{
		CreatePackage(Name)->SetDirtyFlag(FString(Name) != TEXT("/Game/Clean"));
	}
	UWorld::CreateWorld(CreatePackage(TEXT("/Game/Map")), TEXT("Map"))->MarkPackageDirty();
	const auto IsIgnored = [](UPackage* Package) { return Package->GetName().EndsWith(TEXT("Ignored")); };
	TArray<UPackage*> Content;
	TArray<UPackage*> Worlds;
	FEditorFileUtils::GetDirtyContentPackages(Content, IsIgnored);
	FEditorFileUtils::GetDirtyWorldPackages(Worlds, IsIgnored);
	EXPECT_EQ(Content, TArray<UPackage*>{ FindPackage(nullptr, TEXT("/Game/Asset")) });
	EXPECT_EQ(Worlds, TArray<UPackage*>{ FindPackage(nullptr, TEXT("/Game/Map")) });
}
