#include "Framework/Docking/TabManager.h"

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = MakeShared<FGlobalTabmanager>();
	return Instance;
}

FTabSpawnerEntry& FTabManager::AddSpawner(const FName& TabId, const FOnSpawnTab& OnSpawnTab)
{
	const TSharedPtr<FTabSpawnerEntry> Entry = MakeShared<FTabSpawnerEntry>();
	Entry->TabType = TabId;
	Entry->OnSpawnTab = OnSpawnTab;
	Spawners.Add(TabId, Entry);
	return *Entry;
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	const FOpenTab* const Open = OpenTabs.FindByPredicate([&TabId](const FOpenTab& Each) { return Each.Id == TabId; });
	return Open ? Open->Tab.ToSharedPtr() : nullptr;
}

TSharedPtr<SDockTab> FTabManager::TryInvokeTab(const FTabId& TabId)
{
	const TSharedPtr<FTabSpawnerEntry> Spawner = Spawners.FindRef(TabId.TabType);
	TSharedPtr<SDockTab> Tab = FindExistingLiveTab(TabId);
	if (!Tab.IsValid() && Spawner.IsValid() && Spawner->OnSpawnTab.IsBound())
	{
		const TSharedRef<SDockTab> Spawned = Spawner->OnSpawnTab.Execute(FSpawnTabArgs(TabId));
		OpenTabs.Add({ TabId, Spawned });
		Tab = Spawned;
	}
	if (Tab.IsValid() && Spawner.IsValid())
	{
		OnTabInvoked.Broadcast(*Spawner, Tab.ToSharedRef());
	}
	return Tab;
}

bool FTabManager::CloseTab(const TSharedRef<SDockTab>& Tab)
{
	const int32 Index = OpenTabs.IndexOfByPredicate([&Tab](const FOpenTab& Each) { return Each.Tab == Tab; });
	if (Index == INDEX_NONE)
	{
		return false;
	}
	OnTabClosing.Broadcast(Tab);
	OpenTabs.RemoveAt(Index);
	return true;
}

void FTabManager::CloseAllTabs()
{
	while (!OpenTabs.IsEmpty())
	{
		const TSharedRef<SDockTab> Tab = OpenTabs.Last().Tab;
		CloseTab(Tab);
	}
}

bool SDockTab::RequestCloseTab()
{
	return FGlobalTabmanager::Get()->CloseTab(StaticCastSharedRef<SDockTab>(AsShared()));
}
