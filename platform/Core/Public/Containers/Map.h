#pragma once

#include "Containers/HashedElements.h"

template <typename K, typename V>
struct TPair
{
	using KeyType = K;
	using ValueType = V;

	K Key;
	V Value;

	bool operator==(const TPair&) const = default;
};

template <typename K, typename V>
struct TMapKeyFuncs
{
	static const K& KeyOf(const TPair<K, V>& Pair) { return Pair.Key; }
};

/** A map that keeps the order of insertion. Keys that are strings or names are compared ignoring case. */
template <typename K, typename V>
class TMap : public THashedElements<TPair<K, V>, TMapKeyFuncs<K, V>>
{
public:
	using ElementType = TPair<K, V>;

	TMap() = default;
	TMap(std::initializer_list<ElementType> List)
	{
		for (const ElementType& Pair : List)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	/** Replaces the whole pair when the key is there: the key takes its new spelling and keeps its place. */
	V& Add(K Key, V Value) { return this->PutElement({ MoveTemp(Key), MoveTemp(Value) }).Value; }
	V& Add(K Key) { return Add(MoveTemp(Key), V()); }
	template <typename... ArgTypes>
	V& Emplace(K Key, ArgTypes&&... Args)
	{
		return Add(MoveTemp(Key), V(Forward<ArgTypes>(Args)...));
	}
	V& FindOrAdd(const K& Key)
	{
		V* const Found = Find(Key);
		return Found ? *Found : this->AddNew(GetTypeHash(Key), { Key, V() }).Value;
	}

	V* Find(const K& Key)
	{
		ElementType* const Found = this->FindElement(Key);
		return Found ? &Found->Value : nullptr;
	}
	const V* Find(const K& Key) const { return const_cast<TMap*>(this)->Find(Key); }
	/** @return a copy of the value, or a default one */
	V FindRef(const K& Key) const
	{
		const V* const Found = Find(Key);
		return Found ? *Found : V();
	}
	bool Contains(const K& Key) const { return Find(Key) != nullptr; }
	/** The key must be there. */
	V& operator[](const K& Key)
	{
		V* const Found = Find(Key);
		check(Found);
		return *Found;
	}
	const V& operator[](const K& Key) const { return const_cast<TMap&>(*this)[Key]; }
	/** @return how many were removed: 0 or 1 */
	int32 Remove(const K& Key) { return this->RemoveElement(Key); }

	/** Empties Out first. @return how many keys */
	int32 GetKeys(TArray<K>& Out) const
	{
		Out.Empty(this->Num());
		for (const ElementType& Pair : *this)
		{
			Out.Add(Pair.Key);
		}
		return Out.Num();
	}
	void GenerateValueArray(TArray<V>& Out) const
	{
		Out.Empty(this->Num());
		for (const ElementType& Pair : *this)
		{
			Out.Add(Pair.Value);
		}
	}
	void Append(const TMap& Other)
	{
		for (const ElementType& Pair : Other)
		{
			Add(Pair.Key, Pair.Value);
		}
	}
};
