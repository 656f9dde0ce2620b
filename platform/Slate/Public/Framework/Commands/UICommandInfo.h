#pragma once

#include "Framework/Commands/InputChord.h"

enum class EUserInterfaceActionType : uint8
{
	None,
	Button,
	/** On or off. */
	ToggleButton
};

/** The name and the texts of a command. What it does is told by a command list. */
class SLATE_API FUICommandInfo
{
public:
	FName GetCommandName() const { return CommandName; }
	const FText& GetLabel() const { return Label; }
	const FText& GetDescription() const { return Description; }
	FName GetBindingContext() const { return BindingContext; }
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }
	const FInputChord& GetDefaultChord(int32 Index) const { return DefaultChords[Index]; }

private:
	friend void MakeUICommand_InternalUseOnly(class FBindingContext*, TSharedPtr<FUICommandInfo>&, const TCHAR*, const TCHAR*, const TCHAR*,
		const ANSICHAR*, const TCHAR*, const TCHAR*, const EUserInterfaceActionType, const FInputChord&, const FInputChord&);

	FName CommandName;
	FText Label;
	FText Description;
	FName BindingContext;
	EUserInterfaceActionType UserInterfaceType = EUserInterfaceActionType::None;
	FInputChord DefaultChords[2];
};
