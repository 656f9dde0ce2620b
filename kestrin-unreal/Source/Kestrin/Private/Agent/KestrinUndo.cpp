#include "Agent/KestrinInterface.h"

#include "Agent/Agent.h"
#include "Agent/ChatLines.h"
#include "Agent/FileHistory.h"

// Undo and redo of a whole conversation. One level of each: an undo moves the conversation's id to where redo looks for it.

namespace
{
/** Files of a conversation that still runs are left alone. */
bool HasFilesToRestore(const FString& ConversationId, const FFileHistoryMap& Histories)
{
	return FAgent::Get().GetConversationId().IsEmpty() && !ConversationId.IsEmpty() && Histories.Contains(ConversationId);
}
}

bool FKestrinInterface::CanUndo() const
{
	return HasFilesToRestore(FAgent::Get().GetUndoConversationId(), FFileHistory::Get().GetFileHistories());
}

bool FKestrinInterface::CanRedo() const
{
	return HasFilesToRestore(FAgent::Get().GetRedoConversationId(), FFileHistory::Get().GetRedoHistories());
}

void FKestrinInterface::UndoLastOperation()
{
	ShowProgressLine(TEXT("Undoing Last Changes..."));
	FAgent& Agent = FAgent::Get();
	const FString Id = Agent.GetUndoConversationId();
	if (Id.IsEmpty() || !FFileHistory::Get().UndoAllChanges(Id))
	{
		return;
	}
	Agent.SetRedoConversationId(Id);
	Agent.SetUndoConversationId(FString());
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
	Agent.SetUndoConversationId(Id);
	Agent.SetRedoConversationId(FString());
}
