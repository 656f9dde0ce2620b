#pragma once

#include "UObject/Object.h"

/** What an object is found by. */
struct FObjectKey
{
	const UObject* Outer;
	FName Name;

	bool operator==(const FObjectKey&) const = default;
	friend uint32 GetTypeHash(const FObjectKey& Key) { return HashCombine(GetTypeHash(Key.Outer), GetTypeHash(Key.Name)); }
};

/** All objects there are: by number, by place and name, by outer, by class. Game thread. */
class FObjectTable
{
public:
	/** A ring of objects that belong to one, in the order in which they came: its own first, and an object's neighbours in a ring. */
	struct FRing
	{
		int32 First = INDEX_NONE;
		int32 Next = INDEX_NONE;
		int32 Previous = INDEX_NONE;
	};

	struct FItem
	{
		UObject* Object = nullptr;
		/** Counts the objects that had this place. */
		uint32 SerialNumber = 0;
		bool bRooted = false;
		/** How many strong pointers hold the object. */
		int32 StrongCount = 0;
		/** The objects directly inside an object. */
		FRing Inner;
		/** The objects of exactly a class. */
		FRing Instances;

		bool IsKept() const { return bRooted || StrongCount > 0; }
	};

	/** Lives as long as the process, so that objects may be destroyed at any time. */
	static FObjectTable& Get();

	/** Takes an object in whose class, name and outer are set; the name must be free. */
	void Add(UObject* Object);
	void Remove(UObject* Object);
	/** Gives an object its place; the name must be free there. */
	void Move(UObject* Object, UObject* NewOuter, FName NewName);
	/** Frees the name of an object that is garbage. */
	void GiveWay(UObject* Outer, FName Name);
	/** For the first classes, which are made before there is a class of theirs. */
	void SetClass(UObject* Object, UClass* Class);
	/** For an object whose class gives its layout to another. */
	void ChangeClass(UObject* Object, UClass* Class);
	UObject* Find(const UObject* Outer, FName Name) const;
	FItem& GetItem(const UObject* Object) { return Items[Object->InternalIndex]; }
	/** Places of destroyed objects hold null. */
	TArray<FItem>& GetItems() { return Items; }
	bool HasInner(const UObject* Object) const { return Items[Object->InternalIndex].Inner.First != INDEX_NONE; }
	/** Appends the objects directly inside Outer, or those of exactly that class. */
	void GetInner(const UObject* Outer, TArray<UObject*>& Out) const { Collect(Outer, &FItem::Inner, Out); }
	void GetInstances(const UClass* Class, TArray<UObject*>& Out) const;

private:
	void Link(const UObject* Holder, UObject* Member, FRing FItem::*Ring);
	void Unlink(const UObject* Holder, UObject* Member, FRing FItem::*Ring);
	/** Unlinks all members of an object that goes. */
	void Dissolve(const UObject* Holder, FRing FItem::*Ring);
	void Collect(const UObject* Holder, FRing FItem::*Ring, TArray<UObject*>& Out) const;

	TArray<FItem> Items;
	TArray<int32> FreeIndices;
	TMap<FObjectKey, UObject*> ByName;
};

/** Destroys the object and frees its memory. */
void DestroyObject(UObject* Object);
