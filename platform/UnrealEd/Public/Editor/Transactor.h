#pragma once

#include "Misc/ITransaction.h"
#include "UObject/Object.h"
#include "UObject/StrongObjectPtr.h"
#include "Transactor.generated.h"

class UPackage;

/** What is shown of a transaction. */
struct FTransactionContext
{
	FText Title;

	/** False for one that stands for no transaction. */
	bool IsValid() const { return !Title.IsEmpty(); }
};

/** Changes that are undone and redone as one: of each object that took part, what it was like before the first change. */
class UNREALED_API FTransaction final : public ITransaction
{
public:
	explicit FTransaction(const FText& InTitle)
		: Title(InTitle)
	{
	}

	const FText& GetTitle() const { return Title; }
	FTransactionContext GetContext() const { return { Title }; }
	bool ContainsObject(const UObject* Object) const { return Recorded.Contains(Object); }
	int32 GetRecordCount() const { return Records.Num(); }
	/** Forgets the newest records. */
	void KeepRecords(int32 Count);

	void SaveObject(UObject* Object) override;
	/** Gives each object the state that is recorded and records the one that it had: undo at first, then redo, and so on. */
	void Apply();
	/**
	 * Drops what is recorded of objects in a package that is deleted: nothing brings them back.
	 * @param Counts numbers of records, from the oldest, which become smaller by those among them that go
	 */
	void ForgetObjectsIn(const UPackage* Package, TArray<int32>& Counts);
	/** An object has got another place for good: undo leaves it there. */
	void NoteNewPlace(const UObject* Object);
	/** Lets an archive of references see, and replace, what the records refer to. */
	void SerializeReferences(FArchive& Ar);

private:
	/** An object at one moment: its values, where it stands, and whether it was there at all. */
	struct FObjectState
	{
		TArray<uint8> Bytes;
		TArray<TStrongObjectPtr<UObject>> Referred;
		TArray<FName> Names;
		TStrongObjectPtr<UObject> Outer;
		FName Name;
		EObjectFlags Flags = RF_NoFlags;

		explicit FObjectState(UObject* Object);
		/** Name and place; the others' must have been freed before. */
		void RestorePlace(UObject* Object) const;
		void RestoreValues(UObject* Object) const;
	};
	class FStateWriter;
	class FStateReader;

	/** Even an object that is garbage is kept: undo may bring it back. */
	struct FRecord
	{
		TStrongObjectPtr<UObject> Object;
		FObjectState State;
	};

	/** For Blueprints among the objects, or with parts among them: their classes follow, with the values of the class default objects. */
	void CompileBlueprints();

	FText Title;
	TArray<FRecord> Records;
	/** While the transaction is applied: for each record, the state that the object had. */
	TArray<FObjectState> Present;
	TSet<const UObject*> Recorded;
};

/** The editor's undo buffer. The newest transactions at its end may be undone ones; the next new transaction drops them. */
UCLASS(Transient)
class UNREALED_API UTransactor : public UObject
{
	GENERATED_BODY()

public:
	/** Inside an open transaction it only counts. @return how many were open */
	int32 Begin(const TCHAR* SessionContext, const FText& Description);
	/** Closes the open transaction when it was the outermost. One without records is not kept. @return how many were open, -1 for none */
	int32 End();
	/** Drops what was recorded since the transaction of that index, counted from the outermost, was begun. The changes stay. */
	void Cancel(int32 StartIndex = 0);
	/** Empties the buffer. */
	void Reset(const FText& Reason);

	bool CanUndo() const { return !IsActive() && UndoCount < Transactions.Num(); }
	bool CanRedo() const { return !IsActive() && UndoCount > 0; }
	/** @return false when there is nothing to undo, or a transaction is open */
	bool Undo(bool bCanRedo = true);
	bool Redo();

	/** See the functions of these names in FTransaction; the engine empties its buffer instead. */
	void ForgetObjectsIn(const UPackage* Package);
	void NoteNewPlace(const UObject* Object);

	/** All transactions, the undone ones included. */
	int32 GetQueueLength() const { return Transactions.Num(); }
	/** How many of them are undone. */
	int32 GetUndoCount() const { return UndoCount; }
	/** From the oldest; null beyond the end. */
	const FTransaction* GetTransaction(int32 QueueIndex) const;
	/** Of the transaction that is undone or redone next; an invalid one when there is none. */
	FTransactionContext GetUndoContext(bool bCheckWhetherUndoPossible = true) const;
	FTransactionContext GetRedoContext() const;
	bool IsActive() const { return !RecordCounts.IsEmpty(); }

	void Serialize(FArchive& Ar) override;

private:
	void DropUndone();

	TArray<TSharedRef<FTransaction>> Transactions;
	int32 UndoCount = 0;
	/** Into which all transactions that are open inside each other record. */
	TSharedPtr<FTransaction> Active;
	/** For each open transaction, how many records there were when it was begun. */
	TArray<int32> RecordCounts;
};
