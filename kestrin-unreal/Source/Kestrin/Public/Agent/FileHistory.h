#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "UObject/ObjectMacros.h"
#include "FileHistory.generated.h"

/** Defines the types of actions that can be performed on files. */
UENUM()
enum class EFileActionType : uint8
{
	/** No action performed */
	None,
	/** File was created */
	Creation,
	/** File was modified */
	Modification,
	/** File was deleted */
	Deletion,
};

/** One file's state. */
struct FFileHistoryEntry
{
	/** What the recorded change was. */
	EFileActionType ActionType = EFileActionType::None;
	/** When the entry was made. */
	FDateTime Timestamp;
	/** The whole text: of a creation, what was created; of a modification, what was there before; of a deletion, what went. */
	FString Content;
};

/** Conversation id to file path, as the tool was given it, to state. Both keys ignore case. */
using FFileHistoryMap = TMap<FString, TMap<FString, FFileHistoryEntry>>;

/**
 * The state of each file before a conversation first touched it, and, after an undo, the state that the conversation had
 * reached. Undo and redo take all files of a conversation at once. In memory only; game thread only.
 */
class KESTRIN_API FFileHistory
{
public:
	/** Built on first use; lives as long as the process. */
	static FFileHistory& Get();
	UE_NONCOPYABLE(FFileHistory)

	// Called before the change. Of a file that has an entry in the conversation nothing further is recorded; a new entry
	// empties what could be redone. A modification of an empty text is not recorded.
	void StoreFileVersion(const FString& ConversationId, const FString& FilePath, const FString& Content);
	void StoreFileCreation(const FString& ConversationId, const FString& FilePath, const FString& Content);
	void StoreFileDeletion(const FString& ConversationId, const FString& FilePath, const FString& Content);
	/** Records what a redo would bring back. Content: the file's text now, wanted for a modification alone. */
	void StoreFileRedoVersion(
		const FString& ConversationId, const FString& FilePath, const FString& Content, const FFileHistoryEntry& Entry);

	/** @return whether the file is now in the state asked for */
	bool UndoChanges(const FString& ConversationId, const FString& FilePath);
	bool RedoChanges(const FString& ConversationId, const FString& FilePath);
	/** All files, in the order in which the conversation first touched them. True for a conversation without an entry. */
	bool UndoAllChanges(const FString& ConversationId);
	bool RedoAllChanges(const FString& ConversationId);

	bool CanUndo(const FString& ConversationId, const FString& FilePath) const;
	bool CanRedo(const FString& ConversationId, const FString& FilePath) const;
	void ClearAllHistory();

	const FFileHistoryMap& GetFileHistories() const { return FileHistories; }
	const FFileHistoryMap& GetRedoHistories() const { return RedoHistories; }

private:
	FFileHistory() = default;

	void StoreEntry(const FString& ConversationId, const FString& FilePath, EFileActionType ActionType, const FString& Content);
	/** @return whether the file's state afterwards is the one asked for */
	bool ApplyFileSystemChange(const FString& FilePath, const FString& Content, EFileActionType Action);

	FFileHistoryMap FileHistories;
	FFileHistoryMap RedoHistories;
};
