#include "Framework/Commands/Commands.h"

#include "Framework/Commands/UICommandList.h"

void MakeUICommand_InternalUseOnly(FBindingContext* This, TSharedPtr<FUICommandInfo>& OutCommand, const TCHAR* OutSubNamespace,
	const TCHAR* OutCommandName, const TCHAR* OutCommandNameUnderscoreTooltip, const ANSICHAR*, const TCHAR* FriendlyName,
	const TCHAR* InDescription, const EUserInterfaceActionType CommandType, const FInputChord& InDefaultChord,
	const FInputChord& InAlternateDefaultChord)
{
	const TSharedRef<FUICommandInfo> Command = MakeShared<FUICommandInfo>();
	Command->CommandName = OutCommandName;
	Command->Label = FText::Localized(OutSubNamespace, OutCommandName, FriendlyName);
	Command->Description = FText::Localized(OutSubNamespace, OutCommandNameUnderscoreTooltip, InDescription);
	Command->BindingContext = This->GetContextName();
	Command->UserInterfaceType = CommandType;
	Command->DefaultChords[0] = InDefaultChord;
	Command->DefaultChords[1] = InAlternateDefaultChord;
	OutCommand = Command;
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate)
{
	Bindings.Add({ InUICommandInfo, MoveTemp(ExecuteAction), MoveTemp(CanExecuteAction), MoveTemp(IsCheckedDelegate) });
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FBinding* const Binding = Find(*InUICommandInfo);
	return Binding && Binding->Execute.IsBound() && (!Binding->CanExecute.IsBound() || Binding->CanExecute.Execute());
}

bool FUICommandList::TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	return CanExecuteAction(InUICommandInfo) && Find(*InUICommandInfo)->Execute.ExecuteIfBound();
}

ECheckBoxState FUICommandList::GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FBinding* const Binding = Find(*InUICommandInfo);
	const bool bChecked = Binding && Binding->IsChecked.IsBound() && Binding->IsChecked.Execute();
	return bChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

const FUICommandList::FBinding* FUICommandList::Find(const FUICommandInfo& Command) const
{
	return Bindings.FindByPredicate([&Command](const FBinding& Each) { return Each.Command.Get() == &Command; });
}
