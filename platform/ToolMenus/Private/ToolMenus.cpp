#include "ToolMenus.h"

#include "Containers/Ticker.h"
#include "UObject/Package.h"

namespace
{
FSimpleMulticastDelegate& StartupCallbacks()
{
	static FSimpleMulticastDelegate Callbacks;
	return Callbacks;
}

FToolMenuEntry InitEntry(EMultiBlockType Type, const FUICommandInfo& Command, const TOptional<FName>& NameOverride)
{
	FToolMenuEntry Entry;
	Entry.Type = Type;
	Entry.Name = NameOverride.Get(Command.GetCommandName());
	return Entry;
}
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FName, const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = InitEntry(EMultiBlockType::MenuEntry, *InCommand, InNameOverride);
	Entry.Command = InCommand;
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = InitMenuEntry(InCommand, InLabel, InToolTip, InIcon, InTutorialHighlightName, InNameOverride);
	Entry.Type = EMultiBlockType::ToolBarButton;
	return Entry;
}

bool FToolMenuEntry::CanExecute() const
{
	return Command.IsValid() && CommandList.IsValid() && CommandList->CanExecuteAction(Command.ToSharedRef());
}

ECheckBoxState FToolMenuEntry::GetCheckState() const
{
	const bool bKnown = Command.IsValid() && CommandList.IsValid();
	return bKnown ? CommandList->GetCheckState(Command.ToSharedRef()) : ECheckBoxState::Unchecked;
}

bool FToolMenuEntry::TryExecute() const
{
	return Command.IsValid() && CommandList.IsValid() && CommandList->TryExecuteAction(Command.ToSharedRef());
}

const FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName) const
{
	return Blocks.FindByPredicate([&InName](const FToolMenuEntry& Each) { return Each.Name == InName; });
}

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	FToolMenuEntry* Entry = Blocks.FindByPredicate([&Args](const FToolMenuEntry& Each) { return Each.Name == Args.Name; });
	if (!Entry)
	{
		Entry = &Blocks.AddDefaulted_GetRef();
	}
	*Entry = Args;
	Entry->Owner = UToolMenus::Get()->CurrentOwner();
	return *Entry;
}

FToolMenuEntry& FToolMenuSection::AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FName InTutorialHighlightName, const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry = FToolMenuEntry::InitMenuEntry(InCommand, InLabel, InToolTip, InIcon, InTutorialHighlightName, InNameOverride);
	Entry.SetCommandList(InCommandList);
	return AddEntry(Entry);
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName InSectionName)
{
	FToolMenuSection* Section = Sections.FindByPredicate([&](const FToolMenuSection& Each) { return Each.Name == InSectionName; });
	if (!Section)
	{
		Section = &Sections.AddDefaulted_GetRef();
		Section->Name = InSectionName;
	}
	return *Section;
}

UToolMenus* UToolMenus::Get()
{
	static const TStrongObjectPtr<UToolMenus> Instance(NewObject<UToolMenus>(GetTransientPackage()));
	return Instance.Get();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	FTSTicker::GetCoreTicker().AddTicker(TEXT("UToolMenus::Startup"), 0.0f,
		[](float)
		{
		const FSimpleMulticastDelegate Waiting = StartupCallbacks();
		StartupCallbacks().Clear();
		Waiting.Broadcast();
		return false;
	});
	return StartupCallbacks().Add(InDelegate);
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	StartupCallbacks().RemoveAll(UserPointer);
}

UToolMenu* UToolMenus::ExtendMenu(const FName InName)
{
	for (const TStrongObjectPtr<UToolMenu>& Menu : Menus)
	{
		if (Menu->MenuName == InName)
		{
			return Menu.Get();
		}
	}
	UToolMenu* const Menu = NewObject<UToolMenu>(this);
	Menu->MenuName = InName;
	Menus.Add(TStrongObjectPtr<UToolMenu>(Menu));
	return Menu;
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	for (const TStrongObjectPtr<UToolMenu>& Menu : Get()->Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
		}
	}
}

void UToolMenus::PopOwner(FToolMenuOwner Owner)
{
	check(CurrentOwner() == Owner);
	OwnerStack.Pop();
}
