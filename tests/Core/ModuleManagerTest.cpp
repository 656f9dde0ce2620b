#include "Modules/ModuleManager.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
/** Looks for modules where the test libraries are. */
class ModuleManager : public ::testing::Test
{
protected:
	ModuleManager() { Manager.AddBinariesDirectory(TEXT(TEST_MODULES)); }
	~ModuleManager() override { Manager.UnloadModulesAtShutdown(); }

	FModuleManager& Manager = FModuleManager::Get();
	FLogLines Log;
};

TEST_F(ModuleManager, ModulesEndInReverseOrderOfTheirStart)
{
	EXPECT_FALSE(Manager.IsModuleLoaded("First"));
	EXPECT_TRUE(Manager.ModuleExists(TEXT("First")));
	TArray<FString> Changes;
	const FDelegateHandle OnChanged = Manager.OnModulesChanged().AddLambda([&Changes](FName Name, EModuleChangeReason Reason)
		{ Changes.Add((Reason == EModuleChangeReason::ModuleLoaded ? TEXT("+") : TEXT("-")) + Name.ToString()); });
	IModuleInterface* const First = FModuleManager::LoadModulePtr<IModuleInterface>("First");
	ASSERT_NE(First, nullptr);
	EXPECT_EQ(Manager.LoadModule("first"), First);
	EXPECT_TRUE(FModuleManager::GetModuleChecked<IModuleInterface>("Second").IsGameModule());
	Manager.UnloadModulesAtShutdown();
	Manager.OnModulesChanged().Remove(OnChanged);
	EXPECT_EQ(Changes, (TArray<FString>{ TEXT("+Second"), TEXT("+First"), TEXT("-First"), TEXT("-Second") }));
	EXPECT_EQ(Log.Lines,
		(TArray<FString>{ TEXT("LogTemp|Display|Second starts"), TEXT("LogTemp|Display|First starts"), TEXT("LogTemp|Display|First ends"),
			TEXT("LogTemp|Display|Second ends") }));
	EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>("First"), nullptr);
}

TEST_F(ModuleManager, AnUnloadedModuleLoadsAgain)
{
	ASSERT_NE(Manager.LoadModule("Second"), nullptr);
	EXPECT_TRUE(Manager.UnloadModule("Second"));
	EXPECT_FALSE(Manager.UnloadModule("Second"));
	EXPECT_NE(Manager.LoadModule("Second"), nullptr);
}

TEST_F(ModuleManager, TellsWhyAModuleDoesNotLoad)
{
	const struct
	{
		const TCHAR* Name;
		EModuleLoadResult Result;
		const TCHAR* InLog;
	} Cases[] = {
		{ u"Missing", EModuleLoadResult::FileNotFound, u"libKestrinEditor-Missing.so in " },
		{ u"NoModule", EModuleLoadResult::FailedToInitialize, u"IMPLEMENT_MODULE" },
		{ u"MissingSymbol", EModuleLoadResult::CouldNotBeLoadedByOS, u"KestrinMissingSymbol" },
	};
	for (const auto& Case : Cases)
	{
		EModuleLoadResult Result = EModuleLoadResult::Success;
		EXPECT_EQ(Manager.LoadModuleWithFailureReason(Case.Name, Result), nullptr);
		EXPECT_EQ(Result, Case.Result);
		EXPECT_TRUE(Log.HasLineWith(Case.InLog)) << TCHAR_TO_UTF8(Case.InLog);
		EXPECT_FALSE(Manager.IsModuleLoaded(Case.Name));
	}
}

TEST_F(ModuleManager, WhatALibraryRegistersIsProcessedBeforeItsModuleStarts)
{
	TArray<FString> Seen;
	const FDelegateHandle Handle = Manager.OnProcessLoadedObjectsCallback().AddLambda(
		[&](FName Name, bool) { Seen.Add(Name.ToString() + (Log.HasLineWith(TEXT("Second starts")) ? TEXT(" late") : TEXT(""))); });
	Manager.LoadModule("Second");
	Manager.OnProcessLoadedObjectsCallback().Remove(Handle);
	EXPECT_EQ(Seen, (TArray<FString>{ TEXT("Second") }));
}
}
