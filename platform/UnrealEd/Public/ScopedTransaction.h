#pragma once

#include "Internationalization/Text.h"

class UObject;

/** A transaction that is open for as long as this lives. One inside another becomes a part of it. */
class UNREALED_API FScopedTransaction
{
public:
	/** @param bShouldActuallyTransact false for one that does nothing */
	explicit FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	FScopedTransaction(
		const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact = true);
	~FScopedTransaction();
	UE_NONCOPYABLE(FScopedTransaction)

	/** Records nothing more, and drops what was recorded; the changes stay. May be repeated. */
	void Cancel();
	bool IsOutstanding() const { return Index >= 0; }

private:
	/** How many transactions were open before; -1 when this one is not. */
	int32 Index = -1;
};
