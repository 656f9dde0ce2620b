#pragma once

#include "Widgets/SCompoundWidget.h"

enum ETabRole : uint8
{
	/** May stand in any of the editor's windows. */
	NomadTab
};

/** A tab of the editor. The tab manager that spawned it keeps it until it is closed. */
class SLATE_API SDockTab : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDockTab) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ARGUMENT(ETabRole, TabRole)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		TabRole = InArgs._TabRole;
		ChildSlot[InArgs._Content.ToSharedRef()];
	}

	const TSharedRef<SWidget>& GetContent() const { return ChildSlot.GetWidget(); }
	ETabRole GetTabRole() const { return TabRole; }
	/** @return whether the tab is closed now */
	bool RequestCloseTab();

private:
	ETabRole TabRole = NomadTab;
};
