#include "EditorCommands.h"

#include "Editor.h"
#include "Editor/Transactor.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "EditorWindow"

namespace
{
class FMainWindowCommands final : public TCommands<FMainWindowCommands>
{
public:
	FMainWindowCommands()
		: TCommands<FMainWindowCommands>("EditorWindow", LOCTEXT("EditorWindow", "Editor"), NAME_None, NAME_None)
	{
	}

	void RegisterCommands() override
	{
		UI_COMMAND(Exit, "Exit", "Closes the editor", EUserInterfaceActionType::Button, FInputChord());
		UI_COMMAND(Undo, "Undo", "Takes the last change of an asset back", EUserInterfaceActionType::Button,
			FInputChord(EModifierKey::Control, FKey("Z")));
		UI_COMMAND(Redo, "Redo", "Makes the change again that was taken back last", EUserInterfaceActionType::Button,
			FInputChord(EModifierKey::Control, FKey("Y")), FInputChord(EModifierKey::Control | EModifierKey::Shift, FKey("Z")));
		UI_COMMAND(ProjectSettings, "Project Settings...", "Shows the project's settings", EUserInterfaceActionType::Button, FInputChord());
		UI_COMMAND(OutputLog, "Output Log", "Shows or hides the log", EUserInterfaceActionType::ToggleButton, FInputChord());
	}

	TSharedPtr<FUICommandInfo> Exit;
	TSharedPtr<FUICommandInfo> Undo;
	TSharedPtr<FUICommandInfo> Redo;
	TSharedPtr<FUICommandInfo> ProjectSettings;
	TSharedPtr<FUICommandInfo> OutputLog;
};

/** "Undo Add Variable", or "Undo" alone when there is nothing to undo. */
TAttribute<FText> MakeLabel(const FUICommandInfo& Command, FTransactionContext (*Next)())
{
	return TAttribute<FText>::CreateLambda(
		[Label = Command.GetLabel(), Next]
		{
		const FTransactionContext Context = Next();
		return Context.IsValid() ? FText::FromString(FString::Printf(TEXT("%s %s"), *Label.ToString(), *Context.Title.ToString())) : Label;
	});
}
}

FEditorCommands::FEditorCommands(const FMainWindowActions& Actions)
{
	FMainWindowCommands::Register();
	const FMainWindowCommands& Commands = FMainWindowCommands::Get();
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	List->MapAction(Commands.Exit, Actions.Exit);
	List->MapAction(Commands.Undo, FExecuteAction::CreateLambda([] { GEditor->UndoTransaction(); }),
		FCanExecuteAction::CreateLambda([] { return GEditor->Trans->CanUndo(); }));
	List->MapAction(Commands.Redo, FExecuteAction::CreateLambda([] { GEditor->RedoTransaction(); }),
		FCanExecuteAction::CreateLambda([] { return GEditor->Trans->CanRedo(); }));
	List->MapAction(Commands.ProjectSettings, Actions.ShowSettings);
	List->MapAction(Commands.OutputLog, Actions.ToggleOutputLog, FCanExecuteAction(), Actions.IsOutputLogShown);
	AddEntries(List);
}

FEditorCommands::~FEditorCommands()
{
	UToolMenus::UnregisterOwner(this);
	FMainWindowCommands::Unregister();
}

void FEditorCommands::AddEntries(const TSharedRef<FUICommandList>& List) const
{
	const FToolMenuOwnerScoped OwnerScoped(this);
	const FMainWindowCommands& Commands = FMainWindowCommands::Get();
	const auto Section = [](const TCHAR* Menu, const TCHAR* Name) -> FToolMenuSection&
	{ return UToolMenus::Get()->ExtendMenu(Menu)->FindOrAddSection(Name); };

	Section(TEXT("LevelEditor.MainMenu.File"), TEXT("Exit")).AddMenuEntryWithCommandList(Commands.Exit, List);
	FToolMenuSection& History = Section(TEXT("LevelEditor.MainMenu.Edit"), TEXT("EditHistory"));
	History.AddMenuEntryWithCommandList(Commands.Undo, List, MakeLabel(*Commands.Undo, [] { return GEditor->Trans->GetUndoContext(); }));
	History.AddMenuEntryWithCommandList(Commands.Redo, List, MakeLabel(*Commands.Redo, [] { return GEditor->Trans->GetRedoContext(); }));
	Section(TEXT("LevelEditor.MainMenu.Edit"), TEXT("Configuration")).AddMenuEntryWithCommandList(Commands.ProjectSettings, List);
	// Those that others add to the layout come first.
	Section(TEXT("LevelEditor.MainMenu.Window"), TEXT("WindowLayout"));
	Section(TEXT("LevelEditor.MainMenu.Window"), TEXT("Log")).AddMenuEntryWithCommandList(Commands.OutputLog, List);
}

#undef LOCTEXT_NAMESPACE
