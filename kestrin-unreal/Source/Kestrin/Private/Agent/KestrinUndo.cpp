#include "Agent/KestrinInterface.h"

#include "Agent/Agent.h"
#include "Agent/BlueprintUtils.h"
#include "Agent/ChatLines.h"
#include "Agent/FileHistory.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "TransactionTitle.h"

// Undo and redo of a whole conversation. One level of each: an undo moves the conversation's id to where redo looks for it.

namespace
{
/** The editor's undo buffer; null when there is none. */
UTransactor* GetUndoBuffer()
{
	return GEditor ? GEditor->Trans : nullptr;
}

/** The first transaction of that title among the oldest Count ones, or -1. */
int32 FindTransactionIndexByName(const FString& Name, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		if (GetUndoBuffer()->GetTransaction(Index)->GetTitle().ToString() == Name)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Those that are undone already count, too. */
int32 FindTransactionIndexByName(const FString& Name)
{
	return GetUndoBuffer() ? FindTransactionIndexByName(Name, GetUndoBuffer()->GetQueueLength()) : INDEX_NONE;
}

bool HasTransactions(const FString& ConversationId)
{
	return FindTransactionIndexByName(GetTransactionTitle(ConversationId)) != INDEX_NONE;
}

/** Files of a conversation that still runs are left alone. */
bool HasFilesToRestore(const FString& ConversationId, const FFileHistoryMap& Histories)
{
	return FAgent::Get().GetConversationId().IsEmpty() && !ConversationId.IsEmpty() && Histories.Contains(ConversationId);
}
}

bool FKestrinInterface::CanUndo() const
{
	const FString& Id = FAgent::Get().GetUndoConversationId();
	return HasFilesToRestore(Id, FFileHistory::Get().GetFileHistories()) || HasTransactions(Id);
}

bool FKestrinInterface::CanRedo() const
{
	const FString& Id = FAgent::Get().GetRedoConversationId();
	return HasFilesToRestore(Id, FFileHistory::Get().GetRedoHistories()) || HasTransactions(Id);
}

bool FKestrinInterface::UndoUntilLastTransactionByName(const FString& Name)
{
	UTransactor* const Buffer = GetUndoBuffer();
	// Without one to be found the walk would take everything back.
	if (!Buffer || FindTransactionIndexByName(Name, Buffer->GetQueueLength() - Buffer->GetUndoCount()) == INDEX_NONE)
	{
		return false;
	}
	while (Buffer->CanUndo())
	{
		const bool bFound = Buffer->GetUndoContext(false).Title.ToString() == Name;
		const bool bUndone = GEditor->UndoTransaction(true);
		if (bFound || !bUndone)
		{
			return bFound && bUndone;
		}
	}
	return false;
}

void FKestrinInterface::UndoLastOperation()
{
	ShowProgressLine(TEXT("Undoing Last Changes..."));
	FAgent& Agent = FAgent::Get();
	const FString Id = Agent.GetUndoConversationId();
	const bool bTransactionsUndone = UndoUntilLastTransactionByName(GetTransactionTitle(Id));
	if (Id.IsEmpty() || !FFileHistory::Get().UndoAllChanges(Id))
	{
		return;
	}
	Agent.StartCompilation(TEXT("Undo"), Agent.GetConversationMessages());
	// What was undone in the editor the user can only redo there.
	Agent.SetRedoConversationId(bTransactionsUndone ? FString() : Id);
	Agent.SetUndoConversationId(FString());
	if (bTransactionsUndone)
	{
		FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
	}
}

void FKestrinInterface::RedoLastOperation()
{
	ShowProgressLine(TEXT("Redoing Last Changes..."));
	FAgent& Agent = FAgent::Get();
	const FString Id = Agent.GetRedoConversationId();
	if (Id.IsEmpty() || !FFileHistory::Get().RedoAllChanges(Id))
	{
		return;
	}
	Agent.StartCompilation(TEXT("Redo"), Agent.GetConversationMessages());
	Agent.SetUndoConversationId(Id);
	Agent.SetRedoConversationId(FString());
}
