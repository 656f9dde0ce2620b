#include "Agent/FileHistory.h"

#include "Agent/FileUtils.h"
#include "Misc/Paths.h"

namespace
{
const FFileHistoryEntry* FindEntry(const FFileHistoryMap& Histories, const FString& ConversationId, const FString& FilePath)
{
	const TMap<FString, FFileHistoryEntry>* const Files = Histories.Find(ConversationId);
	return Files ? Files->Find(FilePath) : nullptr;
}

EFileActionType InverseOf(EFileActionType Action)
{
	switch (Action)
	{
	case EFileActionType::Creation: return EFileActionType::Deletion;
	case EFileActionType::Modification: return EFileActionType::Modification;
	case EFileActionType::Deletion: return EFileActionType::Creation;
	default: return EFileActionType::None;
	}
}

/** Calls Apply for each file of the conversation, also after one has failed. @return whether none did */
template <typename FunctionType>
bool ApplyToAll(const FFileHistoryMap& Histories, const FString& ConversationId, FunctionType Apply)
{
	const TMap<FString, FFileHistoryEntry>* const Files = Histories.Find(ConversationId);
	TArray<FString> Paths;
	if (Files)
	{
		Files->GetKeys(Paths);
	}
	bool bResult = true;
	for (const FString& Path : Paths)
	{
		bResult &= Apply(Path);
	}
	return bResult;
}
}

FFileHistory& FFileHistory::Get()
{
	static FFileHistory Instance;
	return Instance;
}

void FFileHistory::StoreFileVersion(const FString& ConversationId, const FString& FilePath, const FString& Content)
{
	if (!Content.IsEmpty())
	{
		StoreEntry(ConversationId, FilePath, EFileActionType::Modification, Content);
	}
}

void FFileHistory::StoreFileCreation(const FString& ConversationId, const FString& FilePath, const FString& Content)
{
	StoreEntry(ConversationId, FilePath, EFileActionType::Creation, Content);
}

void FFileHistory::StoreFileDeletion(const FString& ConversationId, const FString& FilePath, const FString& Content)
{
	StoreEntry(ConversationId, FilePath, EFileActionType::Deletion, Content);
}

void FFileHistory::StoreEntry(const FString& ConversationId, const FString& FilePath, EFileActionType ActionType, const FString& Content)
{
	if (FilePath.IsEmpty())
	{
		return;
	}
	TMap<FString, FFileHistoryEntry>& Files = FileHistories.FindOrAdd(ConversationId);
	if (!Files.Contains(FilePath))
	{
		Files.Add(FilePath, { ActionType, FDateTime::Now(), Content });
		RedoHistories.Empty();
	}
}

void FFileHistory::StoreFileRedoVersion(
	const FString& ConversationId, const FString& FilePath, const FString& Content, const FFileHistoryEntry& Entry)
{
	const bool bModified = Entry.ActionType == EFileActionType::Modification;
	if (FilePath.IsEmpty() || Entry.ActionType == EFileActionType::None || (bModified && Content.IsEmpty()))
	{
		return;
	}
	RedoHistories.FindOrAdd(ConversationId).Add(FilePath, { Entry.ActionType, FDateTime::Now(), bModified ? Content : Entry.Content });
}

bool FFileHistory::ApplyFileSystemChange(const FString& FilePath, const FString& Content, EFileActionType Action)
{
	const FString FullPath = FFileUtils::GetFullPath(FilePath);
	switch (Action)
	{
	case EFileActionType::Creation: return !FFileUtils::IsFailure(FFileUtils::CreateNewFileWithContent(FilePath, Content));
	case EFileActionType::Modification:
		// What somebody has deleted meanwhile is made again.
		return !FFileUtils::IsFailure(FPaths::FileExists(FullPath) ? FFileUtils::ReplaceFile(FilePath, Content)
																   : FFileUtils::CreateNewFileWithContent(FilePath, Content));
	case EFileActionType::Deletion: FFileUtils::DeleteFile(FilePath); return !FPaths::FileExists(FullPath);
	default: return false;
	}
}

bool FFileHistory::UndoChanges(const FString& ConversationId, const FString& FilePath)
{
	const FFileHistoryEntry* const Found = FindEntry(FileHistories, ConversationId, FilePath);
	if (FilePath.IsEmpty() || !Found)
	{
		return false;
	}
	const FFileHistoryEntry Entry = *Found;
	FString Current = FFileUtils::ReadFile(FilePath);
	if (FFileUtils::IsFailure(Current))
	{
		// An error text is no file content: a redo must never write it.
		Current.Empty();
	}
	StoreFileRedoVersion(ConversationId, FilePath, Current, Entry);
	return ApplyFileSystemChange(FilePath, Entry.Content, InverseOf(Entry.ActionType));
}

bool FFileHistory::RedoChanges(const FString& ConversationId, const FString& FilePath)
{
	const FFileHistoryEntry* const Found = FindEntry(RedoHistories, ConversationId, FilePath);
	if (FilePath.IsEmpty() || !Found)
	{
		return false;
	}
	const FFileHistoryEntry Entry = *Found;
	return ApplyFileSystemChange(FilePath, Entry.Content, Entry.ActionType);
}

bool FFileHistory::UndoAllChanges(const FString& ConversationId)
{
	return ApplyToAll(
		FileHistories, ConversationId, [this, &ConversationId](const FString& Path) { return UndoChanges(ConversationId, Path); });
}

bool FFileHistory::RedoAllChanges(const FString& ConversationId)
{
	return ApplyToAll(
		RedoHistories, ConversationId, [this, &ConversationId](const FString& Path) { return RedoChanges(ConversationId, Path); });
}

bool FFileHistory::CanUndo(const FString& ConversationId, const FString& FilePath) const
{
	return FindEntry(FileHistories, ConversationId, FilePath) != nullptr;
}

bool FFileHistory::CanRedo(const FString& ConversationId, const FString& FilePath) const
{
	return FindEntry(RedoHistories, ConversationId, FilePath) != nullptr;
}

void FFileHistory::ClearAllHistory()
{
	FileHistories.Empty();
	RedoHistories.Empty();
}
