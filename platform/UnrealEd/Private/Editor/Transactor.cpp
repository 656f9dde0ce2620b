#include "Editor/Transactor.h"

int32 UTransactor::Begin(const TCHAR* SessionContext, const FText& Description)
{
	if (!IsActive())
	{
		DropUndone();
		Active = MakeShared<FTransaction>(Description);
		GUndo = Active.Get();
	}
	RecordCounts.Add(Active->GetRecordCount());
	return RecordCounts.Num() - 1;
}

int32 UTransactor::End()
{
	const int32 Count = RecordCounts.Num();
	if (Count == 0)
	{
		return INDEX_NONE;
	}
	RecordCounts.Pop();
	if (!IsActive())
	{
		if (Active->GetRecordCount() > 0)
		{
			Transactions.Add(Active.ToSharedRef());
		}
		Active.Reset();
		GUndo = nullptr;
	}
	return Count;
}

void UTransactor::Cancel(int32 StartIndex)
{
	if (!RecordCounts.IsValidIndex(StartIndex))
	{
		return;
	}
	Active->KeepRecords(RecordCounts[StartIndex]);
	RecordCounts.RemoveAt(StartIndex, RecordCounts.Num() - StartIndex);
	if (!IsActive())
	{
		Active.Reset();
		GUndo = nullptr;
	}
}

void UTransactor::Reset(const FText& Reason)
{
	Cancel();
	Transactions.Empty();
	UndoCount = 0;
}

void UTransactor::DropUndone()
{
	Transactions.RemoveAt(Transactions.Num() - UndoCount, UndoCount);
	UndoCount = 0;
}

void UTransactor::ForgetObjectsIn(const UPackage* Package)
{
	TArray<int32> NoCounts;
	for (const TSharedRef<FTransaction>& Transaction : Transactions)
	{
		Transaction->ForgetObjectsIn(Package, NoCounts);
	}
	if (Active)
	{
		Active->ForgetObjectsIn(Package, RecordCounts);
	}
}

void UTransactor::NoteNewPlace(const UObject* Object)
{
	for (const TSharedRef<FTransaction>& Transaction : Transactions)
	{
		Transaction->NoteNewPlace(Object);
	}
	if (Active)
	{
		Active->NoteNewPlace(Object);
	}
}

bool UTransactor::Undo(bool bCanRedo)
{
	if (!CanUndo())
	{
		return false;
	}
	++UndoCount;
	Transactions[Transactions.Num() - UndoCount]->Apply();
	if (!bCanRedo)
	{
		DropUndone();
	}
	return true;
}

bool UTransactor::Redo()
{
	if (!CanRedo())
	{
		return false;
	}
	Transactions[Transactions.Num() - UndoCount]->Apply();
	--UndoCount;
	return true;
}

const FTransaction* UTransactor::GetTransaction(int32 QueueIndex) const
{
	return Transactions.IsValidIndex(QueueIndex) ? &*Transactions[QueueIndex] : nullptr;
}

FTransactionContext UTransactor::GetUndoContext(bool bCheckWhetherUndoPossible) const
{
	const bool bPossible = !bCheckWhetherUndoPossible || CanUndo();
	const FTransaction* const Next = bPossible ? GetTransaction(Transactions.Num() - UndoCount - 1) : nullptr;
	return Next ? Next->GetContext() : FTransactionContext();
}

FTransactionContext UTransactor::GetRedoContext() const
{
	const FTransaction* const Next = CanRedo() ? GetTransaction(Transactions.Num() - UndoCount) : nullptr;
	return Next ? Next->GetContext() : FTransactionContext();
}

void UTransactor::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		for (const TSharedRef<FTransaction>& Transaction : Transactions)
		{
			Transaction->SerializeReferences(Ar);
		}
		if (Active)
		{
			Active->SerializeReferences(Ar);
		}
	}
}
