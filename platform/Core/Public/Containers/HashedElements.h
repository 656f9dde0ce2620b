#pragma once

#include "Containers/Array.h"

/**
 * What TSet and TMap share: elements in the order they were added, found by key through a hash.
 * A removal leaves a hole that the next new element takes, as in the engine. Up to eight elements are searched in a row;
 * beyond that a table of positions (open addressing, at most half full) is kept.
 *
 * KeyFuncs gives KeyOf(Element); keys need GetTypeHash and ==.
 */
template <typename ElementType, typename KeyFuncs>
class THashedElements
{
	struct FSlot
	{
		FSlot(uint32 InHash, ElementType&& InElement)
			: Hash(InHash)
			, Element(MoveTemp(InElement))
		{
		}
		FSlot(const FSlot& Other)
			: Hash(Other.Hash)
			, bLive(Other.bLive)
		{
			if (bLive)
			{
				new (&Element) ElementType(Other.Element);
			}
		}
		FSlot(FSlot&& Other) noexcept
			: Hash(Other.Hash)
			, bLive(Other.bLive)
		{
			if (bLive)
			{
				new (&Element) ElementType(MoveTemp(Other.Element));
			}
		}
		FSlot& operator=(const FSlot&) = delete;
		~FSlot() { Clear(); }

		void Fill(uint32 InHash, ElementType&& InElement)
		{
			new (&Element) ElementType(MoveTemp(InElement));
			Hash = InHash;
			bLive = true;
		}
		void Clear()
		{
			if (bLive)
			{
				Element.~ElementType();
				bLive = false;
			}
		}

		uint32 Hash;
		bool bLive = true;
		union
		{
			ElementType Element;
		};
	};

	template <typename SlotType, typename ValueType>
	struct TIteratorBase
	{
		SlotType* Slot;
		SlotType* End;
		ValueType& operator*() const { return Slot->Element; }
		ValueType* operator->() const { return &Slot->Element; }
		TIteratorBase& operator++()
		{
			++Slot;
			SkipHoles();
			return *this;
		}
		bool operator==(const TIteratorBase& Other) const { return Slot == Other.Slot; }
		void SkipHoles()
		{
			while (Slot != End && !Slot->bLive)
			{
				++Slot;
			}
		}
	};

public:
	using FIterator = TIteratorBase<FSlot, ElementType>;
	using FConstIterator = TIteratorBase<const FSlot, const ElementType>;

	int32 Num() const { return Slots.Num() - Holes.Num(); }
	bool IsEmpty() const { return Num() == 0; }

	void Empty(int32 Slack = 0)
	{
		Slots.Empty(Slack);
		Holes.Empty();
		Table.Empty();
	}
	void Reset() { Empty(); }
	void Reserve(int32 Count) { Slots.Reserve(Count); }

	FIterator begin() { return First<FIterator>(Slots.begin(), Slots.end()); }
	FIterator end() { return { Slots.end(), Slots.end() }; }
	FConstIterator begin() const { return First<FConstIterator>(Slots.begin(), Slots.end()); }
	FConstIterator end() const { return { Slots.end(), Slots.end() }; }

protected:
	template <typename KeyType>
	ElementType* FindElement(const KeyType& Key)
	{
		const int32 Position = FindPosition(Key, GetTypeHash(Key));
		return Position == INDEX_NONE ? nullptr : &Slots[Position].Element;
	}

	/** Adds an element whose key is not there, or replaces the one whose key equals its key. */
	ElementType& PutElement(ElementType&& Element)
	{
		const uint32 Hash = GetTypeHash(KeyFuncs::KeyOf(Element));
		const int32 Position = FindPosition(KeyFuncs::KeyOf(Element), Hash);
		if (Position != INDEX_NONE)
		{
			FSlot& Slot = Slots[Position];
			Slot.Element = MoveTemp(Element);
			Slot.Hash = Hash;
			return Slot.Element;
		}
		return AddNew(Hash, MoveTemp(Element));
	}

	/** The key must not be there. */
	ElementType& AddNew(uint32 Hash, ElementType&& Element)
	{
		int32 Position;
		if (Holes.IsEmpty())
		{
			Position = Slots.Emplace(Hash, MoveTemp(Element));
		}
		else
		{
			Position = Holes.Pop();
			Slots[Position].Fill(Hash, MoveTemp(Element));
		}
		if (Slots.Num() > LinearLimit)
		{
			Enter(Position);
		}
		return Slots[Position].Element;
	}

	template <typename KeyType>
	int32 RemoveElement(const KeyType& Key)
	{
		const int32 Position = FindPosition(Key, GetTypeHash(Key));
		if (Position == INDEX_NONE)
		{
			return 0;
		}
		if (!Table.IsEmpty())
		{
			Table[TableIndexOf(Position)] = Removed;
		}
		Slots[Position].Clear();
		Holes.Add(Position);
		return 1;
	}

private:
	static constexpr int32 LinearLimit = 8;
	static constexpr int32 Free = -1;
	static constexpr int32 Removed = -2;

	template <typename IteratorType, typename SlotType>
	static IteratorType First(SlotType* Begin, SlotType* End)
	{
		IteratorType Iterator{ Begin, End };
		Iterator.SkipHoles();
		return Iterator;
	}

	template <typename KeyType>
	int32 FindPosition(const KeyType& Key, uint32 Hash) const
	{
		if (Table.IsEmpty())
		{
			for (const FSlot& Slot : Slots)
			{
				if (Slot.bLive && Slot.Hash == Hash && KeyFuncs::KeyOf(Slot.Element) == Key)
				{
					return static_cast<int32>(&Slot - Slots.GetData());
				}
			}
			return INDEX_NONE;
		}
		const uint32 Mask = static_cast<uint32>(Table.Num() - 1);
		for (uint32 Index = Hash & Mask;; Index = (Index + 1) & Mask)
		{
			const int32 Position = Table.GetData()[Index];
			if (Position == Free)
			{
				return INDEX_NONE;
			}
			if (Position != Removed)
			{
				const FSlot& Slot = Slots.GetData()[Position];
				if (Slot.Hash == Hash && KeyFuncs::KeyOf(Slot.Element) == Key)
				{
					return Position;
				}
			}
		}
	}

	int32 TableIndexOf(int32 Position) const
	{
		const uint32 Mask = static_cast<uint32>(Table.Num() - 1);
		uint32 Index = Slots[Position].Hash & Mask;
		while (Table[static_cast<int32>(Index)] != Position)
		{
			Index = (Index + 1) & Mask;
		}
		return static_cast<int32>(Index);
	}

	void Enter(int32 Position)
	{
		if (++TableUsed * 2 > Table.Num())
		{
			Rebuild();
			return;
		}
		const uint32 Mask = static_cast<uint32>(Table.Num() - 1);
		uint32 Index = Slots[Position].Hash & Mask;
		while (Table.GetData()[Index] != Free)
		{
			Index = (Index + 1) & Mask;
		}
		Table.GetData()[Index] = Position;
	}

	void Rebuild()
	{
		int32 Size = 32;
		while (Size < Slots.Num() * 4)
		{
			Size *= 2;
		}
		Table.Reset();
		Table.SetNumUninitialized(Size);
		std::fill(Table.begin(), Table.end(), Free);
		TableUsed = 0;
		for (int32 Position = 0; Position < Slots.Num(); ++Position)
		{
			if (Slots[Position].bLive)
			{
				Enter(Position);
			}
		}
	}

	TArray<FSlot> Slots;
	TArray<int32> Holes;
	/** Positions by hash; empty while the elements are searched in a row. */
	TArray<int32> Table;
	/** Entries of the table that are not Free. */
	int32 TableUsed = 0;
};
