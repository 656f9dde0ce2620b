#pragma once

#include "ToolMenuActions.h"

#include <list>

/** The pull-downs of a menu bar: each ToolMenus menu "LevelEditor.MainMenu.<Name>", for as long as it has entries. */
class FMainMenu
{
public:
	/** @param InBar outlives it */
	explicit FMainMenu(QMenuBar& InBar)
		: Bar(InBar)
	{
	}

	/** To be called once a frame. */
	void Follow();

private:
	struct FPullDown
	{
		FName Name;
		QMenu& Menu;
		FToolMenuActions Actions;

		FPullDown(QMenuBar& Bar, UToolMenu& Source, const FString& Title);
	};

	QMenuBar& Bar;
	std::list<FPullDown> PullDowns;
};
