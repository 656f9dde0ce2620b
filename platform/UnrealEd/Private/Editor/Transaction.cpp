#include "Editor/Transactor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "UObject/UObjectGlobals.h"

/** Names and objects go into lists, so that the objects can be kept, and replaced. */
class FTransaction::FStateWriter final : public FMemoryWriter
{
public:
	explicit FStateWriter(FObjectState& InState)
		: FMemoryWriter(InState.Bytes)
		, State(InState)
	{
		bTransacting = true;
	}

	using FMemoryWriter::operator<<;
	FArchive& operator<<(FName& Name) override
	{
		int32 Index = State.Names.Add(Name);
		return ::operator<<(*this, Index);
	}
	FArchive& operator<<(UObject*& Object) override
	{
		int32 Index = State.Referred.Add(TStrongObjectPtr<UObject>(Object));
		return ::operator<<(*this, Index);
	}

private:
	FObjectState& State;
};

class FTransaction::FStateReader final : public FMemoryReader
{
public:
	explicit FStateReader(const FObjectState& InState)
		: FMemoryReader(InState.Bytes)
		, State(InState)
	{
		bTransacting = true;
	}

	using FMemoryReader::operator<<;
	FArchive& operator<<(FName& Name) override
	{
		int32 Index = 0;
		::operator<<(*this, Index);
		Name = State.Names[Index];
		return *this;
	}
	FArchive& operator<<(UObject*& Object) override
	{
		int32 Index = 0;
		::operator<<(*this, Index);
		Object = State.Referred[Index].Get();
		return *this;
	}

private:
	const FObjectState& State;
};

namespace
{
/** That an object is, is a part of, or is a part of the class of; null for none. */
UBlueprint* FindBlueprint(UObject* Object)
{
	for (; Object; Object = Object->GetOuter())
	{
		if (UBlueprint* const Blueprint = Cast<UBlueprint>(Object))
		{
			return Blueprint;
		}
		if (const UClass* const Class = Cast<UClass>(Object))
		{
			return UBlueprint::GetBlueprintFromClass(Class);
		}
	}
	return nullptr;
}

/** What undo sets and clears; the other flags are the object's own matter. */
constexpr EObjectFlags RestoredFlags = RF_MirroredGarbage | RF_Public | RF_Standalone | RF_Transient;
}

FTransaction::FObjectState::FObjectState(UObject* Object)
	: Outer(Object->GetOuter())
	, Name(Object->GetFName())
	, Flags(Object->GetFlags() & RestoredFlags)
{
	FStateWriter Writer(*this);
	Object->Serialize(Writer);
}

void FTransaction::FObjectState::RestorePlace(UObject* Object) const
{
	if (Object->GetFName() != Name || Object->GetOuter() != Outer.Get())
	{
		Object->Rename(*Name.ToString(), Outer.Get(), REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty);
	}
}

void FTransaction::FObjectState::RestoreValues(UObject* Object) const
{
	FStateReader Reader(*this);
	Object->Serialize(Reader);
}

void FTransaction::SaveObject(UObject* Object)
{
	if (!ContainsObject(Object))
	{
		Recorded.Add(Object);
		Records.Add({ TStrongObjectPtr<UObject>(Object), FObjectState(Object) });
	}
}

void FTransaction::KeepRecords(int32 Count)
{
	for (int32 Index = Count; Index < Records.Num(); ++Index)
	{
		Recorded.Remove(Records[Index].Object.Get());
	}
	Records.RemoveAt(Count, Records.Num() - Count);
}

void FTransaction::ForgetObjectsIn(const UPackage* Package, TArray<int32>& Counts)
{
	for (int32 Index = Records.Num() - 1; Index >= 0; --Index)
	{
		UObject* const Object = Records[Index].Object.Get();
		if (Object->IsIn(Package))
		{
			Recorded.Remove(Object);
			Records.RemoveAt(Index, 1);
			for (int32& Count : Counts)
			{
				Count -= Index < Count ? 1 : 0;
			}
		}
	}
}

void FTransaction::NoteNewPlace(const UObject* Object)
{
	for (FRecord& Record : Records)
	{
		if (Record.Object.Get() == Object)
		{
			Record.State.Name = Object->GetFName();
			Record.State.Outer = TStrongObjectPtr<UObject>(Object->GetOuter());
		}
	}
}

void FTransaction::Apply()
{
	// Nothing that happens here is a change of its own.
	ITransaction* const Outside = GUndo;
	GUndo = nullptr;
	for (const FRecord& Record : Records)
	{
		Present.Add(FObjectState(Record.Object.Get()));
		Record.Object->PreEditUndo();
	}
	// An object that goes away frees its name for one that comes back.
	for (const FRecord& Record : Records)
	{
		Record.Object->ClearFlags(RestoredFlags);
		Record.Object->SetFlags(Record.State.Flags);
	}
	for (const FRecord& Record : Records)
	{
		Record.State.RestorePlace(Record.Object.Get());
	}
	for (const FRecord& Record : Records)
	{
		Record.State.RestoreValues(Record.Object.Get());
		Record.Object->MarkPackageDirty();
	}
	CompileBlueprints();
	for (int32 Index = 0; Index < Records.Num(); ++Index)
	{
		Records[Index].State = MoveTemp(Present[Index]);
	}
	Present.Empty();
	for (const FRecord& Record : Records)
	{
		Record.Object->PostEditUndo();
	}
	GUndo = Outside;
}

void FTransaction::SerializeReferences(FArchive& Ar)
{
	const auto Pass = [&Ar](TStrongObjectPtr<UObject>& Pointer)
	{
		UObject* Object = Pointer.Get();
		Ar << Object;
		// What nothing could replace stays, as garbage.
		if (Object && Object != Pointer.Get())
		{
			Pointer.Reset(Object);
		}
	};
	const auto PassState = [&Pass](FObjectState& State)
	{
		Pass(State.Outer);
		for (TStrongObjectPtr<UObject>& Each : State.Referred)
		{
			Pass(Each);
		}
	};
	Recorded.Empty();
	for (FRecord& Record : Records)
	{
		Pass(Record.Object);
		Recorded.Add(Record.Object.Get());
		PassState(Record.State);
	}
	for (FObjectState& State : Present)
	{
		PassState(State);
	}
}

void FTransaction::CompileBlueprints()
{
	TArray<UBlueprint*> Blueprints;
	for (const FRecord& Record : Records)
	{
		UBlueprint* const Blueprint = FindBlueprint(Record.Object.Get());
		if (IsValid(Blueprint))
		{
			Blueprints.AddUnique(Blueprint);
		}
	}
	for (UBlueprint* const Blueprint : Blueprints)
	{
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
	}
	for (const FRecord& Record : Records)
	{
		// Their classes lacked the variables that have come back.
		if (Record.Object->HasAnyFlags(RF_ClassDefaultObject))
		{
			Record.State.RestoreValues(Record.Object.Get());
		}
	}
}
