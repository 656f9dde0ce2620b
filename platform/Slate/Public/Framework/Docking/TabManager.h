#pragma once

#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"

/** Which tab. */
struct FTabId
{
	FName TabType;

	FTabId(const FName& InTabType)
		: TabType(InTabType)
	{
	}
	bool operator==(const FTabId&) const = default;
};

class FSpawnTabArgs
{
public:
	explicit FSpawnTabArgs(const FTabId& InTabBeingSpawnedId)
		: TabIdBeingSpawned(InTabBeingSpawnedId)
	{
	}
	const FTabId& GetTabId() const { return TabIdBeingSpawned; }

private:
	FTabId TabIdBeingSpawned;
};

DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&);

namespace ETabSpawnerMenuType
{
enum Type : uint8
{
	/** In the menu of tabs. */
	Enabled,
	Hidden
};
}

/** What is known of a kind of tab. */
struct FTabSpawnerEntry
{
	FTabSpawnerEntry& SetDisplayName(TAttribute<FText> InDisplayName)
	{
		DisplayName = MoveTemp(InDisplayName);
		return *this;
	}
	FTabSpawnerEntry& SetMenuType(TAttribute<ETabSpawnerMenuType::Type> InMenuType)
	{
		MenuType = MoveTemp(InMenuType);
		return *this;
	}
	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon)
	{
		Icon = InIcon;
		return *this;
	}

	/** The tab's own name where none was given. */
	FText GetDisplayName() const { return DisplayName.Get(FText::FromName(TabType)); }
	ETabSpawnerMenuType::Type GetMenuType() const { return MenuType.Get(); }
	const FSlateIcon& GetIcon() const { return Icon; }
	FName GetTabType() const { return TabType; }

private:
	friend class FTabManager;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	TAttribute<FText> DisplayName;
	TAttribute<ETabSpawnerMenuType::Type> MenuType;
	FSlateIcon Icon;
};

/** Which tabs can be opened and which are open. Game thread. */
class SLATE_API FTabManager
{
public:
	/** Opens the tab, or brings the open one to the front. @return null when nobody spawns such a tab */
	TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId);
	/** Null when it is not open. */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	/** The stand-in's own: fired when a tab was opened or asked for again, and when one is about to be closed. */
	TMulticastDelegate<const FTabSpawnerEntry&, const TSharedRef<SDockTab>&> OnTabInvoked;
	TMulticastDelegate<const TSharedRef<SDockTab>&> OnTabClosing;
	void CloseAllTabs();

protected:
	friend class SDockTab;

	/** One of the same name is replaced. */
	FTabSpawnerEntry& AddSpawner(const FName& TabId, const FOnSpawnTab& OnSpawnTab);
	void RemoveSpawner(const FName& TabId) { Spawners.Remove(TabId); }
	bool CloseTab(const TSharedRef<SDockTab>& Tab);

private:
	struct FOpenTab
	{
		FTabId Id;
		TSharedRef<SDockTab> Tab;
	};

	TMap<FName, TSharedPtr<FTabSpawnerEntry>> Spawners;
	TArray<FOpenTab> OpenTabs;
};

/** The tabs that may stand anywhere. */
class SLATE_API FGlobalTabmanager : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	/** The entry is valid until its spawner is unregistered. Open tabs stay open then. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab) { return AddSpawner(TabId, OnSpawnTab); }
	void UnregisterNomadTabSpawner(const FName TabId) { RemoveSpawner(TabId); }
};
