#pragma once

#include "CoreMinimal.h"

/** Of the editor transactions in which a conversation's changes are made, and by which they are found to be undone. */
inline FString GetTransactionTitle(const FString& ConversationId)
{
	return FString::Printf(TEXT("Kestrin Transaction %s"), *ConversationId);
}
