#include "PanelCommands.h"

#include "Framework/Docking/TabManager.h"
#include "HeadlessEvents.h"
#include "SlateHost/WidgetDriver.h"
#include "ToolMenus.h"

namespace
{
const FName PanelTab(TEXT("Kestrin"));

/** Acts on the open panel; an error event says what can't be done. */
void Drive(TFunctionRef<bool(const FWidgetDriver& Panel, FString& OutError)> Act)
{
	const TSharedPtr<SDockTab> Tab = FindPanel();
	FString Error = TEXT("The panel is not open.");
	if (!Tab.IsValid() || !Act(FWidgetDriver(Tab->GetContent()), Error))
	{
		WriteErrorEvent(Error);
	}
}

const FToolMenuEntry* FindEntry(const FString& CommandName)
{
	for (const TStrongObjectPtr<UToolMenu>& Menu : UToolMenus::Get()->GetMenus())
	{
		for (const FToolMenuSection& Section : Menu->Sections)
		{
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				if (Entry.GetCommand()->GetCommandName().ToString().Equals(CommandName))
				{
					return &Entry;
				}
			}
		}
	}
	return nullptr;
}
}

TSharedPtr<SDockTab> FindPanel()
{
	return FGlobalTabmanager::Get()->FindExistingLiveTab(PanelTab);
}

void OpenPanel()
{
	if (!FGlobalTabmanager::Get()->TryInvokeTab(PanelTab).IsValid())
	{
		WriteErrorEvent(TEXT("The plug-in has no panel."));
	}
}

void TypeIntoPanel(const FString& Text)
{
	Drive([&Text](const FWidgetDriver& Panel, FString& OutError) { return Panel.Type(Text, OutError); });
}

void PressKeyInPanel(const FString& Key, bool bShift)
{
	Drive([&](const FWidgetDriver& Panel, FString& OutError) { return Panel.PressKey(FKey(FName(Key)), bShift, OutError); });
}

void ClickInPanel(const FString& Button)
{
	Drive([&Button](const FWidgetDriver& Panel, FString& OutError) { return Panel.Click(Button, OutError); });
}

void ScrollPanel()
{
	Drive([](const FWidgetDriver& Panel, FString& OutError) { return Panel.Scroll(false, OutError); });
}

void WritePanelWidgets()
{
	Drive(
		[](const FWidgetDriver& Panel, FString&)
		{
		WriteWidgetsEvent(Panel);
		return true;
	});
}

void FireEditorCommand(const FString& Name)
{
	const FToolMenuEntry* const Entry = FindEntry(Name);
	if (!Entry)
	{
		WriteErrorEvent(FString::Printf(TEXT("There is no editor command '%s'."), *Name));
	}
	else if (!Entry->TryExecute())
	{
		WriteErrorEvent(FString::Printf(TEXT("The editor command '%s' can't be fired now."), *Name));
	}
}
