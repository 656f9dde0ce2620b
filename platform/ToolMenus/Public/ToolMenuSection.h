#pragma once

#include "ToolMenuEntry.h"

/** A part of a menu. Entries belong to the owner in whose scope they are added. */
struct TOOLMENUS_API FToolMenuSection
{
	FName Name;
	TArray<FToolMenuEntry> Blocks;

	/** Null when there is none. */
	const FToolMenuEntry* FindEntry(const FName InName) const;
	/** One of the same name is replaced. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);
	FToolMenuEntry& AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const TAttribute<FText>& InToolTip = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const FName InTutorialHighlightName = NAME_None, const TOptional<FName> InNameOverride = TOptional<FName>());
};
