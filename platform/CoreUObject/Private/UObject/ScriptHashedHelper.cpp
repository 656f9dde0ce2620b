#include "HashedValues.h"

FScriptHashedHelper::FScriptHashedHelper(const FProperty* InKeyProp, const FProperty* InValueProp, const void* InSet)
	: KeyProp(InKeyProp)
	, ValueProp(InValueProp)
	, Layout(InKeyProp->GetElementSize(), InKeyProp->GetMinAlignment(), InValueProp ? InValueProp->GetElementSize() : 0,
		  InValueProp ? InValueProp->GetMinAlignment() : 1)
	, Set(static_cast<FScriptSet*>(const_cast<void*>(InSet)))
{
}

int32 FScriptHashedHelper::Find(const void* Key, uint32 Hash) const
{
	return Set->Positions.Find(FHeads{ *this }, Hash, [&](int32 Index) { return KeyProp->IsSameKey(GetKeyPtr(Index), Key); });
}

int32 FScriptHashedHelper::FindIndex(const void* Key) const
{
	return Find(Key, KeyProp->GetValueTypeHash(Key));
}

int32 FScriptHashedHelper::FindOrAdd(const void* Key)
{
	const uint32 Hash = KeyProp->GetValueTypeHash(Key);
	const int32 Found = Find(Key, Hash);
	if (Found != INDEX_NONE)
	{
		return Found;
	}
	const int32 Index = AddSlot(Hash);
	KeyProp->CopyCompleteValue(GetKeyPtr(Index), Key);
	Set->Positions.Add(FHeads{ *this }, Index);
	return Index;
}

int32 FScriptHashedHelper::AddSlot(uint32 Hash)
{
	int32 Index = Set->Positions.TakeHole();
	if (Index == INDEX_NONE)
	{
		Index = Set->Slots.Num();
		if (Index == Set->Slots.Max())
		{
			Reallocate(Index + Index / 2 + 4);
		}
		Set->Slots.SetNumUnsafe(Index + 1);
	}
	HeadAt(Index) = { Hash };
	InitializeSlot(SlotAt(Index));
	return Index;
}

void FScriptHashedHelper::RemoveAt(int32 Index)
{
	check(IsValidIndex(Index));
	Set->Positions.Remove(FHeads{ *this }, Index);
	DestroySlot(SlotAt(Index));
	HeadAt(Index).bLive = false;
}

void FScriptHashedHelper::EmptyElements()
{
	for (int32 Index = 0; Index < GetMaxIndex(); ++Index)
	{
		if (IsValidIndex(Index))
		{
			DestroySlot(SlotAt(Index));
		}
	}
	Set->Slots.SetNumUnsafe(0);
	Reallocate(0);
	Set->Positions.Empty();
}

void FScriptHashedHelper::Rehash()
{
	FScriptSet Kept;
	Swap(Kept, *Set);
	const FScriptHashedHelper Old(KeyProp, ValueProp, &Kept);
	for (int32 Index = 0; Index < Old.GetMaxIndex(); ++Index)
	{
		if (!Old.IsValidIndex(Index) || FindIndex(Old.GetKeyPtr(Index)) != INDEX_NONE)
		{
			continue;
		}
		const int32 New = FindOrAdd(Old.GetKeyPtr(Index));
		if (ValueProp)
		{
			ValueProp->CopyCompleteValue(GetValuePtr(New), Old.GetValuePtr(Index));
		}
	}
	FScriptHashedHelper(Old).EmptyElements();
}

void FScriptHashedHelper::RehashIfNeeded()
{
	for (int32 Index = 0; Index < GetMaxIndex(); ++Index)
	{
		if (IsValidIndex(Index) && KeyProp->GetValueTypeHash(GetKeyPtr(Index)) != HeadAt(Index).Hash)
		{
			Rehash();
			return;
		}
	}
}

void FScriptHashedHelper::InitializeSlot(uint8* Slot) const
{
	KeyProp->InitializeValue(Slot + Layout.KeyOffset);
	if (ValueProp)
	{
		ValueProp->InitializeValue(Slot + Layout.ValueOffset);
	}
}

void FScriptHashedHelper::DestroySlot(uint8* Slot) const
{
	KeyProp->DestroyValue(Slot + Layout.KeyOffset);
	if (ValueProp)
	{
		ValueProp->DestroyValue(Slot + Layout.ValueOffset);
	}
}

void FScriptHashedHelper::Reallocate(int32 Count)
{
	FScriptArray Larger;
	Larger.Reallocate(Count, Layout.SlotSize, Layout.SlotAlignment);
	for (int32 Index = 0; Index < GetMaxIndex(); ++Index)
	{
		uint8* const To = static_cast<uint8*>(Larger.GetData()) + static_cast<SIZE_T>(Index) * Layout.SlotSize;
		*reinterpret_cast<FHashedSlotHead*>(To) = HeadAt(Index);
		if (!HeadAt(Index).bLive)
		{
			continue;
		}
		InitializeSlot(To);
		KeyProp->CopyCompleteValue(To + Layout.KeyOffset, GetKeyPtr(Index));
		if (ValueProp)
		{
			ValueProp->CopyCompleteValue(To + Layout.ValueOffset, GetValuePtr(Index));
		}
		DestroySlot(SlotAt(Index));
	}
	Larger.SetNumUnsafe(GetMaxIndex());
	Swap(Set->Slots, Larger);
	Larger.SetNumUnsafe(0);
	Larger.Reallocate(0, Layout.SlotSize, Layout.SlotAlignment);
}

void CopyElements(const FScriptHashedHelper& From, FScriptHashedHelper& To, const FProperty* ValueProp)
{
	To.EmptyElements();
	for (int32 Index = 0; Index < From.GetMaxIndex(); ++Index)
	{
		const int32 Copy = From.IsValidIndex(Index) ? To.FindOrAdd(From.GetKeyPtr(Index)) : INDEX_NONE;
		if (ValueProp && Copy != INDEX_NONE)
		{
			ValueProp->CopyCompleteValue(To.GetValuePtr(Copy), From.GetValuePtr(Index));
		}
	}
}

bool HaveIdenticalElements(const FScriptHashedHelper& One, const FScriptHashedHelper& Other, const FProperty& KeyProp,
	const FProperty* ValueProp, uint32 PortFlags)
{
	if (One.Num() != Other.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < One.GetMaxIndex(); ++Index)
	{
		if (!One.IsValidIndex(Index))
		{
			continue;
		}
		const int32 Found = Other.FindIndex(One.GetKeyPtr(Index));
		if (Found == INDEX_NONE || !KeyProp.Identical(One.GetKeyPtr(Index), Other.GetKeyPtr(Found), PortFlags) ||
			(ValueProp && !ValueProp->Identical(One.GetValuePtr(Index), Other.GetValuePtr(Found), PortFlags)))
		{
			return false;
		}
	}
	return true;
}
