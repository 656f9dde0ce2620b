#include "IHotReload.h"

#include "GameProject.h"
#include "ILiveCodingModule.h"
#include "UObject/UObjectGlobals.h"

namespace
{
struct FEnd
{
	FString Output;
	ECompilationResult::Type Result = ECompilationResult::Unknown;
};

class HotReload : public testing::Test
{
protected:
	HotReload()
	{
		Game.WriteModule();
		Game.WriteClass("Lamp", "");
		IHotReloadInterface::Get().OnModuleCompilerFinished().AddLambda(
			[this](const FString& Output, ECompilationResult::Type Result, bool) {
			Ends.Add({ Output, Result });
		});
	}

	FEnd Compile()
	{
		Ends.Empty();
		EXPECT_EQ(IHotReloadInterface::Get().DoHotReloadFromEditor(EHotReloadFlags::WaitForCompletion), ECompilationResult::Unknown);
		EXPECT_TRUE(IHotReloadInterface::Get().IsCurrentlyCompiling());
		EXPECT_TRUE(Ends.IsEmpty()) << "the main loop tells it";
		EXPECT_TRUE(FMainLoop::RunUntil([this] { return !Ends.IsEmpty(); }, 120));
		EXPECT_FALSE(IHotReloadInterface::Get().IsCurrentlyCompiling());
		return Ends.IsEmpty() ? FEnd() : Ends.Last();
	}

	FGameProject Game;
	FLogLines Log;
	TArray<FEnd> Ends;
};
}

TEST_F(HotReload, BuildsInTheBackgroundAndTellsInTheMainLoop)
{
	EXPECT_EQ(Compile().Result, ECompilationResult::Succeeded);
	EXPECT_NE(FindObject<UClass>(nullptr, TEXT("/Script/Game.Lamp")), nullptr);
	EXPECT_TRUE(Ends[0].Output.Contains(TEXT("Compiling Lamp.cpp\n")));
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogCompile|Display|Compiling Lamp.cpp"))) << "also from the other thread";

	EXPECT_EQ(Compile().Result, ECompilationResult::Succeeded) << "nothing to do";
	EXPECT_EQ(Ends[0].Output, TEXT(""));

	Game.Write("Source/Game/Private/Lamp.cpp", "nonsense\n");
	EXPECT_EQ(Compile().Result, ECompilationResult::OtherCompilationError);
	EXPECT_TRUE(Ends[0].Output.Contains(TEXT("Private/Lamp.cpp:1:1: error:")));
}

TEST_F(HotReload, IsOneOfTheCompilesOfWhichThereIsOneAtATime)
{
	ILiveCodingModule& LiveCoding = FModuleManager::LoadModuleChecked<ILiveCodingModule>("LiveCoding");
	IHotReloadInterface::Get().DoHotReloadFromEditor(EHotReloadFlags::None);
	EXPECT_EQ(IHotReloadInterface::Get().DoHotReloadFromEditor(EHotReloadFlags::None), ECompilationResult::Canceled);
	ELiveCodingCompileResult Result = ELiveCodingCompileResult::Success;
	EXPECT_FALSE(LiveCoding.Compile(ELiveCodingCompileFlags::WaitForCompletion, &Result));
	EXPECT_EQ(Result, ELiveCodingCompileResult::CompileStillActive);
	// The editor closes meanwhile: nobody is called, nothing hangs.
	FModuleManager::Get().UnloadModulesAtShutdown();
	FMainLoop::Tick();
	EXPECT_TRUE(Ends.IsEmpty());
}
