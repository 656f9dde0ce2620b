#pragma once

#include "Containers/HashedElements.h"

template <typename T>
struct TSetKeyFuncs
{
	static const T& KeyOf(const T& Element) { return Element; }
};

/** A set that keeps the order of insertion. */
template <typename T>
class TSet : public THashedElements<T, TSetKeyFuncs<T>>
{
public:
	TSet() = default;
	TSet(std::initializer_list<T> List)
	{
		for (const T& Item : List)
		{
			Add(Item);
		}
	}

	void Add(T Item) { this->PutElement(MoveTemp(Item)); }
	bool Contains(const T& Key) const { return Find(Key) != nullptr; }
	const T* Find(const T& Key) const { return const_cast<TSet*>(this)->FindElement(Key); }
	/** @return how many were removed: 0 or 1 */
	int32 Remove(const T& Key) { return this->RemoveElement(Key); }
	TArray<T> Array() const
	{
		TArray<T> Result;
		Result.Reserve(this->Num());
		for (const T& Item : *this)
		{
			Result.Add(Item);
		}
		return Result;
	}
};
