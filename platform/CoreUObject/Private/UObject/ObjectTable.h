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

/** All objects there are, by number and by place and name. Game thread. */
class FObjectTable
{
public:
	struct FItem
	{
		UObject* Object = nullptr;
		/** Counts the objects that had this place. */
		uint32 SerialNumber = 0;
		bool bRooted = false;
	};

	/** Lives as long as the process, so that objects may be destroyed at any time. */
	static FObjectTable& Get();

	/** Takes an object in whose name and outer are set; both must be free. */
	void Add(UObject* Object);
	void Remove(UObject* Object);
	UObject* Find(const UObject* Outer, FName Name) const;
	FItem& GetItem(const UObject* Object) { return Items[Object->InternalIndex]; }
	/** Places of destroyed objects hold null. */
	TArray<FItem>& GetItems() { return Items; }

private:
	TArray<FItem> Items;
	TArray<int32> FreeIndices;
	TMap<FObjectKey, UObject*> ByName;
};

/** Runs the class's constructor on new memory, and nothing else. */
UObject* AllocateObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags);
/** Destroys the object and frees its memory. */
void DestroyObject(UObject* Object);
