#include "ObjectTable.h"

#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

FObjectTable& FObjectTable::Get()
{
	static FObjectTable& Table = *new FObjectTable;
	return Table;
}

void FObjectTable::Add(UObject* Object)
{
	check(IsInGameThread());
	checkf(!Find(Object->OuterPrivate, Object->NamePrivate), TEXT("there is an object named %s already"), *Object->GetPathName());
	Object->InternalIndex = FreeIndices.IsEmpty() ? Items.AddDefaulted() : FreeIndices.Pop();
	FItem& Item = Items[Object->InternalIndex];
	Item.Object = Object;
	Item.SerialNumber++;
	ByName.Add({ Object->OuterPrivate, Object->NamePrivate }, Object);
	Link(Object->OuterPrivate, Object, &FItem::Inner);
	Link(Object->ClassPrivate, Object, &FItem::Instances);
}

void FObjectTable::Remove(UObject* Object)
{
	Unlink(Object->OuterPrivate, Object, &FItem::Inner);
	Unlink(Object->ClassPrivate, Object, &FItem::Instances);
	Dissolve(Object, &FItem::Inner);
	Dissolve(Object, &FItem::Instances);
	ByName.Remove(FObjectKey{ Object->OuterPrivate, Object->NamePrivate });
	FItem& Item = GetItem(Object);
	const uint32 SerialNumber = Item.SerialNumber;
	Item = FItem();
	Item.SerialNumber = SerialNumber;
	FreeIndices.Add(Object->InternalIndex);
}

void FObjectTable::Move(UObject* Object, UObject* NewOuter, FName NewName)
{
	ByName.Remove(FObjectKey{ Object->OuterPrivate, Object->NamePrivate });
	if (Object->OuterPrivate != NewOuter)
	{
		Unlink(Object->OuterPrivate, Object, &FItem::Inner);
		Link(NewOuter, Object, &FItem::Inner);
	}
	Object->OuterPrivate = NewOuter;
	Object->NamePrivate = NewName;
	checkf(!Find(NewOuter, NewName), TEXT("there is an object named %s already"), *Object->GetPathName());
	ByName.Add({ NewOuter, NewName }, Object);
}

void FObjectTable::GiveWay(UObject* Outer, FName Name)
{
	UObject* const Found = Find(Outer, Name);
	if (Found && !IsValid(Found))
	{
		Move(Found, Outer, MakeUniqueObjectName(Outer, Found->GetClass(), Name));
	}
}

void FObjectTable::SetClass(UObject* Object, UClass* Class)
{
	Object->ClassPrivate = Class;
	Link(Class, Object, &FItem::Instances);
}

void FObjectTable::ChangeClass(UObject* Object, UClass* Class)
{
	Unlink(Object->ClassPrivate, Object, &FItem::Instances);
	SetClass(Object, Class);
}

UObject* FObjectTable::Find(const UObject* Outer, FName Name) const
{
	// Most objects, and nearly all defaults, that are asked for a name have nothing in them.
	return Outer && !HasInner(Outer) ? nullptr : ByName.FindRef(FObjectKey{ Outer, Name });
}

void FObjectTable::GetInstances(const UClass* Class, TArray<UObject*>& Out) const
{
	Collect(Class, &FItem::Instances, Out);
}

void FObjectTable::Link(const UObject* Holder, UObject* Member, FRing FItem::*Ring)
{
	if (!Holder)
	{
		return;
	}
	const int32 Index = Member->InternalIndex;
	FRing& Own = Items[Index].*Ring;
	int32& First = (GetItem(Holder).*Ring).First;
	if (First == INDEX_NONE)
	{
		First = Own.Next = Own.Previous = Index;
		return;
	}
	int32& Last = (Items[First].*Ring).Previous;
	Own.Next = First;
	Own.Previous = Last;
	(Items[Last].*Ring).Next = Index;
	Last = Index;
}

void FObjectTable::Unlink(const UObject* Holder, UObject* Member, FRing FItem::*Ring)
{
	FRing& Own = GetItem(Member).*Ring;
	if (Own.Next == INDEX_NONE)
	{
		return; // never linked, or the holder has gone first
	}
	(Items[Own.Next].*Ring).Previous = Own.Previous;
	(Items[Own.Previous].*Ring).Next = Own.Next;
	int32& First = (GetItem(Holder).*Ring).First;
	if (First == Member->InternalIndex)
	{
		First = Own.Next == First ? INDEX_NONE : Own.Next;
	}
	Own.Next = Own.Previous = INDEX_NONE;
}

void FObjectTable::Dissolve(const UObject* Holder, FRing FItem::*Ring)
{
	int32 Index = (GetItem(Holder).*Ring).First;
	while (Index != INDEX_NONE)
	{
		FRing& Member = Items[Index].*Ring;
		Index = Member.Next;
		Member.Next = Member.Previous = INDEX_NONE;
		if (Index != INDEX_NONE && (Items[Index].*Ring).Next == INDEX_NONE)
		{
			break;
		}
	}
}

void FObjectTable::Collect(const UObject* Holder, FRing FItem::*Ring, TArray<UObject*>& Out) const
{
	const int32 First = (Items[Holder->InternalIndex].*Ring).First;
	int32 Index = First;
	while (Index != INDEX_NONE)
	{
		const FItem& Item = Items[Index];
		Out.Add(Item.Object);
		Index = (Item.*Ring).Next == First ? INDEX_NONE : (Item.*Ring).Next;
	}
}

FWeakObjectPtr::FWeakObjectPtr(const UObject* Object)
{
	if (Object)
	{
		ObjectIndex = Object->GetUniqueID();
		SerialNumber = FObjectTable::Get().GetItem(Object).SerialNumber;
	}
}

UObject* FWeakObjectPtr::Get() const
{
	if (ObjectIndex == INDEX_NONE)
	{
		return nullptr;
	}
	const FObjectTable::FItem& Item = FObjectTable::Get().GetItems()[ObjectIndex];
	return Item.SerialNumber == SerialNumber && ::IsValid(Item.Object) ? Item.Object : nullptr;
}
