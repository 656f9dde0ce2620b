#pragma once

#include "SlateQtHost/Qt.h"
#include "ToolMenus.h"

/**
 * The entries of a ToolMenus menu as the actions of a Qt menu or tool bar, with a line between two sections. Entries come and go and
 * change what they show at any time; the actions follow when they are told to.
 */
class FToolMenuActions
{
public:
	/** @param InTarget outlives it */
	FToolMenuActions(QWidget& InTarget, UToolMenu& InMenu);
	UE_NONCOPYABLE(FToolMenuActions)

	/** To be called once a frame. */
	void Follow();
	bool IsEmpty() const { return Shown.IsEmpty(); }

private:
	/** Which entry an action stands for; no name is a line. */
	struct FPlace
	{
		FName Section;
		FName Entry;

		bool operator==(const FPlace&) const = default;
	};

	TArray<FPlace> GetPlaces() const;
	const FToolMenuEntry* FindEntry(const FPlace& Place) const;
	QAction* MakeAction(const FPlace& Place);
	void Replace(TArray<FPlace> Places);

	QWidget& Target;
	TStrongObjectPtr<UToolMenu> Menu;
	TArray<FPlace> Shown;
	TArray<QAction*> Actions;
};
