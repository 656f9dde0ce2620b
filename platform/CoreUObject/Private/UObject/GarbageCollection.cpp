#include "ObjectTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <algorithm>

namespace
{
/** Finds the objects that can be reached. */
class FMarker
{
public:
	FMarker() { bReached.SetNum(FObjectTable::Get().GetItems().Num()); }

	void Reach(UObject* Object)
	{
		if (Object && !bReached[Object->GetUniqueID()])
		{
			bReached[Object->GetUniqueID()] = true;
			Pending.Add(Object);
		}
	}

	void Follow()
	{
		while (!Pending.IsEmpty())
		{
			UObject* const Object = Pending.Pop();
			Reach(Object->GetClass());
			Reach(Object->GetOuter());
			for (TFieldIterator<FProperty> Property(Object->GetClass()); Property; ++Property)
			{
				if (Property->ContainsObjectReference())
				{
					Property->VisitReferences(
						Property->ContainerPtrToValuePtr<void>(Object), [this](UObject* Referred) { Reach(Referred); });
				}
			}
		}
	}

	bool IsReached(const UObject* Object) const { return bReached[Object->GetUniqueID()]; }

private:
	TArray<bool> bReached;
	TArray<UObject*> Pending;
};
}

void CollectGarbage(EObjectFlags KeepFlags, bool)
{
	check(IsInGameThread());
	FMarker Marker;
	for (const FObjectTable::FItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && (Item.bRooted || Item.Object->HasAnyFlags(KeepFlags | RF_MarkAsNative | RF_ClassDefaultObject)))
		{
			Marker.Reach(Item.Object);
		}
	}
	Marker.Follow();

	TArray<UObject*> Garbage;
	for (const FObjectTable::FItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && !Marker.IsReached(Item.Object))
		{
			Garbage.Add(Item.Object);
		}
	}
	for (UObject* const Object : Garbage)
	{
		Object->BeginDestroy();
	}
	for (UObject* const Object : Garbage)
	{
		DestroyObject(Object);
	}
}
