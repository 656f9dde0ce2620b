#include "ObjectTable.h"
#include "ReferenceArchive.h"
#include "UObject/UObjectGlobals.h"

#include <algorithm>

namespace
{
bool bCollecting = false;

bool IsGarbage(const UObject* Object)
{
	return !IsValid(Object) && !FObjectTable::Get().GetItem(Object).IsKept();
}

/** Finds the objects that can be reached. */
class FMarker final : public FReferenceArchive
{
public:
	FMarker() { bReached.SetNum(FObjectTable::Get().GetItems().Num()); }

	void Reach(UObject* Object)
	{
		bool& bMark = bReached.GetData()[Object->GetUniqueID()];
		if (!bMark)
		{
			bMark = true;
			Pending.Add(Object);
		}
	}

	void Follow()
	{
		while (!Pending.IsEmpty())
		{
			UObject* const Object = Pending.Pop();
			Reach(Object->GetClass());
			if (Object->GetOuter())
			{
				Reach(Object->GetOuter());
			}
			bSawGarbage = false;
			bIsType = Object->IsA(UField::StaticClass());
			Object->Serialize(*this);
			if (bSawGarbage)
			{
				ReferToGarbage.Add(Object);
			}
		}
	}

	using FReferenceArchive::operator<<;
	/** Nobody keeps garbage by referring to it, but for types: they can't do without the types that they consist of. */
	FArchive& operator<<(UObject*& Object) override
	{
		if (Object && !bIsType && IsGarbage(Object))
		{
			bSawGarbage = true;
		}
		else if (Object)
		{
			Reach(Object);
		}
		return *this;
	}

	bool IsReached(const UObject* Object) const { return bReached.GetData()[Object->GetUniqueID()]; }

	TArray<UObject*> ReferToGarbage;

private:
	TArray<bool> bReached;
	TArray<UObject*> Pending;
	bool bSawGarbage = false;
	bool bIsType = false;
};

/** Clears the references to garbage that goes. */
class FGarbageClearer final : public FReferenceArchive
{
public:
	explicit FGarbageClearer(const FMarker& InMarker)
		: Marker(InMarker)
	{
	}

	using FReferenceArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		if (Object && !Marker.IsReached(Object))
		{
			Object = nullptr;
		}
		return *this;
	}

private:
	const FMarker& Marker;
};

/** Types made by C++ with their defaults, what is held, and what the caller asks for. */
bool IsRoot(const FObjectTable::FItem& Item, EObjectFlags KeepFlags)
{
	const UObject* const Object = Item.Object;
	const bool bNativeDefaults = Object->HasAnyFlags(RF_ClassDefaultObject) && Object->GetClass()->HasAnyFlags(RF_MarkAsNative);
	return Item.IsKept() || (IsValid(Object) && (bNativeDefaults || Object->HasAnyFlags(KeepFlags | RF_MarkAsNative)));
}

/** Objects before the types that say what they consist of. */
void Destroy(TArray<UObject*>& Garbage)
{
	for (UObject* const Object : Garbage)
	{
		Object->BeginDestroy();
	}
	UObject** const Types =
		std::partition(Garbage.begin(), Garbage.end(), [](const UObject* Object) { return !Object->IsA(UField::StaticClass()); });
	UObject** const Classes =
		std::partition(Types, Garbage.end(), [](const UObject* Object) { return !Object->IsA(UClass::StaticClass()); });
	std::for_each(Garbage.begin(), Types, DestroyObject);
	std::for_each(Types, Classes, DestroyObject);
	std::for_each(Classes, Garbage.end(), DestroyObject);
}
}

void CollectGarbage(EObjectFlags KeepFlags, bool)
{
	check(IsInGameThread());
	const TGuardValue Guard(bCollecting, true);
	FMarker Marker;
	for (const FObjectTable::FItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && IsRoot(Item, KeepFlags))
		{
			Marker.Reach(Item.Object);
		}
	}
	Marker.Follow();

	FGarbageClearer Clearer(Marker);
	for (UObject* const Object : Marker.ReferToGarbage)
	{
		Object->Serialize(Clearer);
	}
	TArray<UObject*> Garbage;
	for (const FObjectTable::FItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && !Marker.IsReached(Item.Object))
		{
			Garbage.Add(Item.Object);
		}
	}
	Destroy(Garbage);
}

bool IsGarbageCollecting()
{
	return bCollecting;
}
