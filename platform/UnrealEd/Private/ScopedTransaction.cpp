#include "ScopedTransaction.h"

#include "Editor.h"

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
	: FScopedTransaction(TEXT(""), SessionName, nullptr, bShouldActuallyTransact)
{
}

FScopedTransaction::FScopedTransaction(
	const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	if (GEditor && bShouldActuallyTransact)
	{
		Index = GEditor->BeginTransaction(TransactionContext, SessionName, PrimaryObject);
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (IsOutstanding() && GEditor)
	{
		GEditor->EndTransaction();
	}
}

void FScopedTransaction::Cancel()
{
	if (IsOutstanding() && GEditor)
	{
		GEditor->CancelTransaction(Index);
		Index = -1;
	}
}
