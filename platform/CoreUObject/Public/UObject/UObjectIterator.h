#pragma once

#include "UObject/UObjectHash.h"

/** Visits the objects in memory that are a T, those that were there at the start; class default objects are passed over. */
template <typename T>
class TObjectIterator
{
public:
	explicit TObjectIterator(EObjectFlags ExclusionFlags = RF_ClassDefaultObject, bool bIncludeDerivedClasses = true)
	{
		GetObjectsOfClass(T::StaticClass(), Objects, bIncludeDerivedClasses, ExclusionFlags);
	}

	explicit operator bool() const { return Objects.IsValidIndex(Index); }
	T* operator*() const { return static_cast<T*>(Objects[Index]); }
	T* operator->() const { return **this; }
	TObjectIterator& operator++()
	{
		++Index;
		return *this;
	}

private:
	TArray<UObject*> Objects;
	int32 Index = 0;
};
