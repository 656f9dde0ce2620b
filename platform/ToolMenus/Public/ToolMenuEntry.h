#pragma once

#include "Framework/Commands/UICommandList.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuOwner.h"

enum class EMultiBlockType : uint8
{
	None,
	MenuEntry,
	ToolBarButton
};

/** A line of a menu or a button of a tool bar that fires a command. */
struct TOOLMENUS_API FToolMenuEntry
{
	FName Name;
	FToolMenuOwner Owner;
	EMultiBlockType Type = EMultiBlockType::None;
	/** The command's own where they are not set. */
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;

	/** Named after its command unless it is given a name. */
	static FToolMenuEntry InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabel = TAttribute<FText>(), const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());
	static FToolMenuEntry InitToolBarButton(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabel = TAttribute<FText>(), const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Who performs the command. */
	void SetCommandList(const TSharedPtr<const FUICommandList>& InCommandList) { CommandList = InCommandList; }

	const TSharedPtr<const FUICommandInfo>& GetCommand() const { return Command; }
	FText GetLabel() const { return Label.Get(Command->GetLabel()); }
	FText GetToolTip() const { return ToolTip.Get(Command->GetDescription()); }
	/** The stand-in's own: whether choosing the entry does anything now, and whether it is on. */
	bool CanExecute() const;
	ECheckBoxState GetCheckState() const;
	/** The stand-in's own: as if the entry was chosen. @return false when its command can't be performed now */
	bool TryExecute() const;

private:
	TSharedPtr<const FUICommandInfo> Command;
	TSharedPtr<const FUICommandList> CommandList;
};
