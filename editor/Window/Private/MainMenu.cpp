#include "MainMenu.h"

#include <algorithm>

FMainMenu::FPullDown::FPullDown(QMenuBar& Bar, UToolMenu& Source, const FString& Title)
	: Name(Source.MenuName)
	, Menu(*Bar.addMenu(QLatin1Char('&') + ToQString(Title)))
	, Actions(Menu, Source)
{
	Menu.setToolTipsVisible(true);
}

void FMainMenu::Follow()
{
	static const FString Prefix(TEXT("LevelEditor.MainMenu."));
	for (const TStrongObjectPtr<UToolMenu>& Menu : UToolMenus::Get()->GetMenus())
	{
		const FString Name = Menu->MenuName.ToString();
		const bool bKnown = std::ranges::find(PullDowns, Menu->MenuName, &FPullDown::Name) != PullDowns.end();
		if (!bKnown && Name.StartsWith(Prefix))
		{
			PullDowns.emplace_back(Bar, *Menu, Name.RightChop(Prefix.Len()));
		}
	}
	for (FPullDown& PullDown : PullDowns)
	{
		PullDown.Actions.Follow();
		PullDown.Menu.menuAction()->setVisible(!PullDown.Actions.IsEmpty());
	}
}
