#pragma once

#include "CoreMinimal.h"

DECLARE_MULTICAST_DELEGATE(FOnKestrinInitialized);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnKestrinPluginEnabledChanged, bool);
DECLARE_DELEGATE_FourParams(FOnKestrinAddStatusMessage, FString, FLinearColor, FName, float);
DECLARE_DELEGATE_ThreeParams(FOnKestrinAddDiffMessage, FString, FString, FString);

/**
 * The face of the agent: requests go in here, chat lines and file diffs come out here. It also undoes and redoes a whole
 * conversation and keeps the prompt log. A request that the agent's state does not allow is passed over in silence.
 * Game thread only; delegates are called from inside the operation.
 */
class KESTRIN_API FKestrinInterface
{
public:
	/** Built on first use; lives as long as the process. */
	static FKestrinInterface& Get();
	UE_NONCOPYABLE(FKestrinInterface)

	/** Fired at the end of Initialize. */
	FOnKestrinInitialized OnInitialized;
	/** Fired by Shutdown with false. */
	FOnKestrinPluginEnabledChanged OnPluginEnabledChanged;
	/** Text, colour, font name, font size. A line that nobody takes is lost. */
	FOnKestrinAddStatusMessage OnAddStatusMessageDelegate;
	/** Path, old text, new text. A new file has no old text, a deleted one no new text. */
	FOnKestrinAddDiffMessage OnAddDiffMessageDelegate;

	// The three looks of a chat line: the user's, the assistant's, and progress.
	static const FLinearColor UserColor;
	static const FLinearColor KestrinColor;
	static const FLinearColor MessageColor;
	static const float UserFontSize;
	static const float KestrinFontSize;
	static const float MessageFontSize;
	static const FName RegularFontName;
	static const FName BoldFontName;
	static const FName ItalicFontName;

	/** Prepares the log directory and applies the retention policy. Does nothing the second time. */
	void Initialize();
	/** Cancels a running conversation. Initialize works again afterwards. */
	void Shutdown();
	bool IsInitialized() const { return bInitialized; }
	bool IsPluginEnabled() const { return bPluginEnabled; }
	void SetPluginEnabled(bool bEnabled) { bPluginEnabled = bEnabled; }
	FString GetVersion() const;

	/** Starts a conversation; only from Idle. */
	void InitialRequest(const FString& Prompt);
	/** A further prompt; only from AwaitingUpdate. */
	void RegularRequest(const FString& Prompt);
	/** Only from AwaitingApproval. */
	void Approve();
	/** Without text it runs the tool calls that wait; with text it aborts them and sends the text. In any state. */
	void Continue(FString Input);
	void PauseRequest();
	void CancelRequest(const FString& Reason);
	void EndRequest(const FString& Reason);

	/** Whether the last conversation's changes can be undone; those of files once it has ended. */
	bool CanUndo() const;
	bool CanRedo() const;
	void UndoLastOperation();
	void RedoLastOperation();
	/**
	 * Undoes the editor's transactions from the newest down to the newest of that title, which is undone, too; titles are compared
	 * ignoring case. @return false, with nothing undone, when there is none of that title left to undo
	 */
	bool UndoUntilLastTransactionByName(const FString& Name);

	void OnAddStatusMessage(const FString& Message, const FLinearColor& Color, const FName& FontName, float FontSize);
	void OnAddDiffMessage(const FString& FilePath, const FString& OldContent, const FString& NewContent);

	/** Today's prompt log, by the local date at the time of the call. */
	FString GetPromptLogFilePath();
	/** Appends a record; a log that can't be written is lost. */
	void KestrinInterfaceLogString(const FString& Text, const FString& FilePath, bool bAddTimestamp) const;

private:
	FKestrinInterface() = default;

	void PrepareLogs();
	void EnsureLogDirectoryExists() const;
	TArray<FString> GetAllLogFiles();
	void DeleteAllLogs();
	void DeleteOldLogs(int32 Days);
	bool IsLogFileOlderThanDays(const FString& FilePath, int32 Days) const;

	FString LogDirectory;
	bool bInitialized = false;
	bool bPluginEnabled = false;
};
