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
}

void FObjectTable::Remove(UObject* Object)
{
	FItem& Item = GetItem(Object);
	Item.Object = nullptr;
	Item.bRooted = false;
	FreeIndices.Add(Object->InternalIndex);
	ByName.Remove(FObjectKey{ Object->OuterPrivate, Object->NamePrivate });
}

UObject* FObjectTable::Find(const UObject* Outer, FName Name) const
{
	return ByName.FindRef(FObjectKey{ Outer, Name });
}

UObject* AllocateObject(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags)
{
	const SIZE_T Size = static_cast<SIZE_T>(Class->GetPropertiesSize());
	void* const Memory = ::operator new(Size, std::align_val_t(Class->GetMinAlignment()));
	std::memset(Memory, 0, Size);
	const FObjectInitializer Initializer(Class, Outer, Name, Flags);
	Class->ClassConstructor(Memory, Initializer);
	return Initializer.GetObj();
}

void DestroyObject(UObject* Object)
{
	const auto Alignment = static_cast<std::align_val_t>(Object->GetClass()->GetMinAlignment());
	Object->~UObject();
	::operator delete(static_cast<void*>(Object), Alignment);
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
	return Item.SerialNumber == SerialNumber ? Item.Object : nullptr;
}
