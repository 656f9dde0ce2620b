#pragma once

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Styling/SlateTypes.h"

/** What commands do. */
class SLATE_API FUICommandList
{
public:
	void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction = FCanExecuteAction(), FIsActionChecked IsCheckedDelegate = FIsActionChecked());
	/** False when the command has no action here, or when the action can't be taken now. */
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** @return whether it was taken */
	bool TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;
	/** Unchecked for a command without that state. */
	ECheckBoxState GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

private:
	struct FBinding
	{
		TSharedPtr<const FUICommandInfo> Command;
		FExecuteAction Execute;
		FCanExecuteAction CanExecute;
		FIsActionChecked IsChecked;
	};

	const FBinding* Find(const FUICommandInfo& Command) const;

	TArray<FBinding> Bindings;
};
