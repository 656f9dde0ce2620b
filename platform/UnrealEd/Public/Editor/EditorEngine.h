#pragma once

#include "Engine/Engine.h"
#include "EditorEngine.generated.h"

class UTransactor;

/** The editor: its undo buffer and its commands, see EditorCommands.cpp. Game thread. */
UCLASS(Transient)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	UEditorEngine();

	bool Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar) override;

	/** Undoes the newest transaction that is not undone. @return false when there is none, or one is open */
	bool UndoTransaction(bool bCanRedo = true);
	bool RedoTransaction();
	/** @return how many were open */
	int32 BeginTransaction(const TCHAR* SessionContext, const FText& Description, UObject* PrimaryObject);
	int32 EndTransaction();
	void CancelTransaction(int32 Index);
	bool IsTransactionActive() const;
	void ResetTransaction(const FText& Reason);

	UPROPERTY(Transient)
	TObjectPtr<UTransactor> Trans;
};

/** The editor, made when the module starts; null before and after. */
extern UNREALED_API UEditorEngine* GEditor;
