#pragma once

#include "CoreTypes.h"
#include "CoreFwd.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <new>

/** Whether operators like Pop give memory back; they never do here. */
enum class EAllowShrinking : uint8
{
	No,
	Yes
};

/** A growing array. Its layout (data, number, capacity) is that of FScriptArray, through which reflection reaches it. */
template <typename T>
class TArray
{
public:
	using ElementType = T;

	TArray() = default;
	TArray(std::initializer_list<T> List) { Append(List.begin(), static_cast<int32>(List.size())); }
	TArray(const T* Source, int32 Count) { Append(Source, Count); }
	TArray(const TArray& Other) { Append(Other.Data, Other.ArrayNum); }
	TArray(TArray&& Other) noexcept { TakeFrom(Other); }
	~TArray() { Free(); }

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			// Other may lie in one of the elements that go.
			TArray Kept(Other);
			Exchange(Kept);
		}
		return *this;
	}
	TArray& operator=(TArray&& Other) noexcept
	{
		TArray Kept(MoveTemp(Other));
		Exchange(Kept);
		return *this;
	}
	TArray& operator=(std::initializer_list<T> List)
	{
		Reset();
		Append(List.begin(), static_cast<int32>(List.size()));
		return *this;
	}

	int32 Num() const { return ArrayNum; }
	int32 Max() const { return ArrayMax; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }
	T* GetData() { return Data; }
	const T* GetData() const { return Data; }
	SIZE_T GetAllocatedSize() const { return static_cast<SIZE_T>(ArrayMax) * sizeof(T); }

	T& operator[](int32 Index)
	{
		check(IsValidIndex(Index));
		return Data[Index];
	}
	const T& operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return Data[Index];
	}
	T& Last(int32 FromEnd = 0) { return (*this)[ArrayNum - 1 - FromEnd]; }
	const T& Last(int32 FromEnd = 0) const { return (*this)[ArrayNum - 1 - FromEnd]; }
	T& Top() { return Last(); }

	T* begin() { return Data; }
	T* end() { return Data + ArrayNum; }
	const T* begin() const { return Data; }
	const T* end() const { return Data + ArrayNum; }

	template <typename... ArgTypes>
	T& Emplace_GetRef(ArgTypes&&... Args)
	{
		if (ArrayNum == ArrayMax)
		{
			// The arguments may refer into this array: the new element is made before the old ones move.
			T Made(Forward<ArgTypes>(Args)...);
			Grow(ArrayNum + 1);
			return *new (Data + ArrayNum++) T(MoveTemp(Made));
		}
		return *new (Data + ArrayNum++) T(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		Emplace_GetRef(Forward<ArgTypes>(Args)...);
		return ArrayNum - 1;
	}
	int32 Add(const T& Item) { return Emplace(Item); }
	int32 Add(T&& Item) { return Emplace(MoveTemp(Item)); }
	T& Add_GetRef(const T& Item) { return Emplace_GetRef(Item); }
	T& Add_GetRef(T&& Item) { return Emplace_GetRef(MoveTemp(Item)); }
	void Push(const T& Item) { Add(Item); }
	void Push(T&& Item) { Add(MoveTemp(Item)); }
	int32 AddDefaulted() { return Emplace(); }
	T& AddDefaulted_GetRef() { return Emplace_GetRef(); }
	int32 AddUnique(const T& Item)
	{
		const int32 Found = Find(Item);
		return Found == INDEX_NONE ? Add(Item) : Found;
	}
	/** The new elements are not constructed. @return the index of the first */
	int32 AddUninitialized(int32 Count = 1)
	{
		const int32 First = ArrayNum;
		Grow(ArrayNum + Count);
		ArrayNum += Count;
		return First;
	}

	void Append(const T* Source, int32 Count)
	{
		Grow(ArrayNum + Count);
		std::uninitialized_copy_n(Source, Count, Data + ArrayNum);
		ArrayNum += Count;
	}
	void Append(const TArray& Other)
	{
		check(this != &Other);
		Append(Other.Data, Other.ArrayNum);
	}
	void Append(TArray&& Other)
	{
		Grow(ArrayNum + Other.ArrayNum);
		std::uninitialized_move_n(Other.Data, Other.ArrayNum, Data + ArrayNum);
		ArrayNum += Other.ArrayNum;
		Other.Reset();
	}
	void Append(std::initializer_list<T> List) { Append(List.begin(), static_cast<int32>(List.size())); }
	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}

	int32 Insert(T Item, int32 Index)
	{
		check(Index >= 0 && Index <= ArrayNum);
		Emplace(MoveTemp(Item));
		std::rotate(Data + Index, Data + ArrayNum - 1, Data + ArrayNum);
		return Index;
	}

	void RemoveAt(int32 Index, int32 Count = 1)
	{
		check(Index >= 0 && Count >= 0 && Count <= ArrayNum - Index);
		if (Count == 0)
		{
			return; // elements may not be moved onto themselves
		}
		std::move(Data + Index + Count, Data + ArrayNum, Data + Index);
		Shrink(ArrayNum - Count);
	}
	/** Removes every element equal to Item. @return how many */
	int32 Remove(const T& Item)
	{
		return RemoveAll([Kept = T(Item)](const T& Each) { return Each == Kept; });
	}
	/** Removes the first element equal to Item. @return 1 when there was one */
	int32 RemoveSingle(const T& Item)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index);
		return 1;
	}
	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate)
	{
		T* const NewEnd = std::remove_if(Data, Data + ArrayNum, Predicate);
		const int32 Removed = static_cast<int32>(Data + ArrayNum - NewEnd);
		Shrink(ArrayNum - Removed);
		return Removed;
	}
	T Pop(EAllowShrinking = EAllowShrinking::Yes)
	{
		T Item = MoveTemp(Last());
		Shrink(ArrayNum - 1);
		return Item;
	}

	void Reserve(int32 Count)
	{
		if (Count > ArrayMax)
		{
			Reallocate(Count);
		}
	}
	/** Removes all and keeps room for Slack elements. */
	void Empty(int32 Slack = 0)
	{
		Free();
		Reserve(Slack);
	}
	/** Removes all and keeps the memory. */
	void Reset() { Shrink(0); }
	void SetNum(int32 Count)
	{
		if (Count <= ArrayNum)
		{
			Shrink(Count);
			return;
		}
		Grow(Count);
		std::uninitialized_value_construct_n(Data + ArrayNum, Count - ArrayNum);
		ArrayNum = Count;
	}
	void SetNumUninitialized(int32 Count)
	{
		static_assert(std::is_trivially_copyable_v<T>);
		Grow(Count);
		ArrayNum = Count;
	}

	/** @return the index of the first equal element, or INDEX_NONE */
	template <typename KeyType>
	int32 Find(const KeyType& Item) const
	{
		return IndexOfByPredicate([&Item](const T& Each) { return Each == Item; });
	}
	template <typename KeyType>
	bool Find(const KeyType& Item, int32& OutIndex) const
	{
		OutIndex = Find(Item);
		return OutIndex != INDEX_NONE;
	}
	template <typename KeyType>
	bool Contains(const KeyType& Item) const
	{
		return Find(Item) != INDEX_NONE;
	}
	template <typename PredicateType>
	bool ContainsByPredicate(const PredicateType& Predicate) const
	{
		return IndexOfByPredicate(Predicate) != INDEX_NONE;
	}
	template <typename PredicateType>
	int32 IndexOfByPredicate(const PredicateType& Predicate) const
	{
		const T* const Found = std::find_if(begin(), end(), Predicate);
		return Found == end() ? INDEX_NONE : static_cast<int32>(Found - Data);
	}
	template <typename PredicateType>
	T* FindByPredicate(const PredicateType& Predicate)
	{
		T* const Found = std::find_if(begin(), end(), Predicate);
		return Found == end() ? nullptr : Found;
	}
	template <typename PredicateType>
	const T* FindByPredicate(const PredicateType& Predicate) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(Predicate);
	}
	template <typename PredicateType>
	TArray FilterByPredicate(const PredicateType& Predicate) const
	{
		TArray Result;
		std::copy_if(begin(), end(), FAppender{ Result }, Predicate);
		return Result;
	}

	void Sort() { std::sort(begin(), end()); }
	template <typename PredicateType>
	void Sort(const PredicateType& Before)
	{
		std::sort(begin(), end(), Before);
	}
	template <typename PredicateType>
	void StableSort(const PredicateType& Before)
	{
		std::stable_sort(begin(), end(), Before);
	}
	void Swap(int32 A, int32 B) { std::swap((*this)[A], (*this)[B]); }

	bool operator==(const TArray& Other) const { return std::equal(begin(), end(), Other.begin(), Other.end()); }

private:
	struct FAppender
	{
		using iterator_category = std::output_iterator_tag;
		using value_type = void;
		using difference_type = std::ptrdiff_t;
		using pointer = void;
		using reference = void;
		TArray& Target;
		FAppender& operator*() { return *this; }
		FAppender& operator++() { return *this; }
		FAppender operator++(int) { return *this; }
		FAppender& operator=(const T& Item)
		{
			Target.Add(Item);
			return *this;
		}
	};

	void Grow(int32 Needed)
	{
		if (Needed > ArrayMax)
		{
			Reallocate(std::max(Needed, ArrayMax + ArrayMax / 2 + 4));
		}
	}

	void Reallocate(int32 NewMax)
	{
		T* const NewData = static_cast<T*>(::operator new(static_cast<SIZE_T>(NewMax) * sizeof(T), std::align_val_t(alignof(T))));
		std::uninitialized_move_n(Data, ArrayNum, NewData);
		std::destroy_n(Data, ArrayNum);
		::operator delete(Data, std::align_val_t(alignof(T)));
		Data = NewData;
		ArrayMax = NewMax;
	}

	void Shrink(int32 Count)
	{
		std::destroy_n(Data + Count, ArrayNum - Count);
		ArrayNum = Count;
	}

	void Free()
	{
		Shrink(0);
		::operator delete(Data, std::align_val_t(alignof(T)));
		Data = nullptr;
		ArrayMax = 0;
	}

	void Exchange(TArray& Other)
	{
		std::swap(Data, Other.Data);
		std::swap(ArrayNum, Other.ArrayNum);
		std::swap(ArrayMax, Other.ArrayMax);
	}

	void TakeFrom(TArray& Other)
	{
		Data = std::exchange(Other.Data, nullptr);
		ArrayNum = std::exchange(Other.ArrayNum, 0);
		ArrayMax = std::exchange(Other.ArrayMax, 0);
	}

	T* Data = nullptr;
	int32 ArrayNum = 0;
	int32 ArrayMax = 0;
};
