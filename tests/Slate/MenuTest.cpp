#include "CoreHost/MainLoop.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Docking/TabManager.h"
#include "ToolMenus.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MenuTest"

namespace
{
class FTestCommands : public TCommands<FTestCommands>
{
public:
	FTestCommands()
		: TCommands<FTestCommands>("Test", INVTEXT("Test"), NAME_None, "TestStyle")
	{
	}
	void RegisterCommands() override { UI_COMMAND(Open, "Open it", "Opens it", EUserInterfaceActionType::Button, FInputChord()); }

	TSharedPtr<FUICommandInfo> Open;
};

TEST(Commands, HaveKeysForTheirTextsAndDoWhatTheirListSays)
{
	FTestCommands::Register();
	const TSharedPtr<FUICommandInfo> Open = FTestCommands::Get().Open;
	FString Namespace, Key;
	ASSERT_TRUE(Open->GetDescription().GetNamespaceAndKey(Namespace, Key));
	EXPECT_TRUE(Namespace.Equals(TEXT("MenuTest")) && Key.Equals(TEXT("Open_ToolTip")));
	EXPECT_EQ(Open->GetBindingContext(), FName("Test"));
	EXPECT_FALSE(Open->GetDefaultChord(0).IsValidChord());

	int32 Opened = 0;
	bool bCan = true;
	FUICommandList List;
	EXPECT_FALSE(List.TryExecuteAction(Open.ToSharedRef()));
	List.MapAction(Open, FExecuteAction::CreateLambda([&Opened] { ++Opened; }), FCanExecuteAction::CreateLambda([&bCan] { return bCan; }));
	EXPECT_TRUE(List.TryExecuteAction(Open.ToSharedRef()));
	bCan = false;
	EXPECT_FALSE(List.TryExecuteAction(Open.ToSharedRef()));
	EXPECT_EQ(Opened, 1);
	FTestCommands::Unregister();
	EXPECT_FALSE(FTestCommands::IsRegistered());
}

TEST(ToolMenus, EntriesGoWithTheirOwner)
{
	FTestCommands::Register();
	const TSharedPtr<FUICommandInfo> Open = FTestCommands::Get().Open;
	const int32 Owners[2] = {};
	FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu("Test.Menu")->FindOrAddSection("Part");
	for (const int32& Owner : Owners)
	{
		const FToolMenuOwnerScoped Scope(&Owner);
		const FName Name(FString::Printf(TEXT("Entry%d"), static_cast<int32>(&Owner - Owners)));
		Section.AddEntry(FToolMenuEntry::InitToolBarButton(Open, INVTEXT("Mine"), {}, {}, NAME_None, Name));
		Section.AddEntry(FToolMenuEntry::InitToolBarButton(Open, INVTEXT("Mine again"), {}, {}, NAME_None, Name));
	}
	ASSERT_EQ(Section.Blocks.Num(), 2) << "one of the same name is replaced";
	EXPECT_TRUE(Section.Blocks[0].GetLabel().ToString().Equals(TEXT("Mine again")));
	EXPECT_TRUE(Section.Blocks[0].GetToolTip().ToString().Equals(TEXT("Opens it"))) << "the command's own";
	UToolMenus::UnregisterOwner(&Owners[0]);
	ASSERT_EQ(Section.Blocks.Num(), 1);
	EXPECT_EQ(Section.Blocks[0].Name, FName("Entry1"));
	UToolMenus::UnregisterOwner(&Owners[1]);
	FTestCommands::Unregister();
}

TEST(ToolMenus, StartupWaitsForAFrameAndCanBeCalledOff)
{
	struct FExtender
	{
		void Extend() { ++Calls; }
		int32 Calls = 0;
	} Stays, Leaves;
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(&Stays, &FExtender::Extend));
	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(&Leaves, &FExtender::Extend));
	EXPECT_EQ(Stays.Calls, 0);
	UToolMenus::UnRegisterStartupCallback(&Leaves);
	FMainLoop::Tick();
	FMainLoop::Tick();
	EXPECT_EQ(Stays.Calls, 1);
	EXPECT_EQ(Leaves.Calls, 0);
}

TEST(Tabs, OpenOnceAndGoWhenTheyAreClosed)
{
	int32 Spawned = 0;
	const TSharedRef<FGlobalTabmanager> Tabs = FGlobalTabmanager::Get();
	EXPECT_FALSE(Tabs->TryInvokeTab(FName("Test")).IsValid());
	Tabs->RegisterNomadTabSpawner("Test",
		FOnSpawnTab::CreateLambda(
			[&Spawned](const FSpawnTabArgs& Args)
			{
		EXPECT_EQ(Args.GetTabId().TabType, FName("Test"));
		++Spawned;
		return SNew(SDockTab).TabRole(ETabRole::NomadTab)[SNew(STextBlock)];
		}));
	const TWeakPtr<SDockTab> Tab = Tabs->TryInvokeTab(FName("Test"));
	EXPECT_TRUE(Tabs->TryInvokeTab(FName("test")) == Tab.Pin());
	EXPECT_EQ(Spawned, 1);
	EXPECT_TRUE(Tab.Pin()->RequestCloseTab());
	EXPECT_FALSE(Tab.IsValid());
	EXPECT_TRUE(Tabs->TryInvokeTab(FName("Test")).IsValid());
	Tabs->UnregisterNomadTabSpawner("Test");
	EXPECT_TRUE(Tabs->FindExistingLiveTab(FName("Test")).IsValid()) << "an open tab stays";
	Tabs->CloseAllTabs();
	EXPECT_FALSE(Tabs->TryInvokeTab(FName("Test")).IsValid());
	EXPECT_EQ(Spawned, 2);
}
}

#undef LOCTEXT_NAMESPACE
