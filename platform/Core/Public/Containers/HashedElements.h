#pragma once

#include "Containers/Array.h"

/** What an element of a hashed container has before it. */
struct FHashedSlotHead
{
	uint32 Hash = 0;
	/** False for a hole. */
	bool bLive = true;
};

/**
 * Where the elements of a hashed container are, without their type. A removal leaves a hole that the next new element takes, as in the
 * engine. Up to eight elements are searched in a row; beyond that a table of positions (open addressing, at most half full) is kept.
 *
 * HeadsType gives the heads of the container's slots: Num() and [Position].
 */
class FHashPositions
{
public:
	int32 NumHoles() const { return Holes.Num(); }
	/** @return a hole, which counts as none from now on, or INDEX_NONE */
	int32 TakeHole() { return Holes.IsEmpty() ? INDEX_NONE : Holes.Pop(); }

	/** @param Matches whether the element at a position, whose hash fits, is the one looked for */
	template <typename HeadsType, typename MatchType>
	int32 Find(const HeadsType& Heads, uint32 Hash, const MatchType& Matches) const
	{
		if (Table.IsEmpty())
		{
			for (int32 Position = 0; Position < Heads.Num(); ++Position)
			{
				const FHashedSlotHead& Head = Heads[Position];
				if (Head.bLive && Head.Hash == Hash && Matches(Position))
				{
					return Position;
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
			if (Position != Removed && Heads[Position].Hash == Hash && Matches(Position))
			{
				return Position;
			}
		}
	}

	/** To be called once a new element is in its slot. */
	template <typename HeadsType>
	void Add(const HeadsType& Heads, int32 Position)
	{
		if (Heads.Num() > LinearLimit)
		{
			Enter(Heads, Position);
		}
	}

	/** To be called while the element that goes is still in its slot. */
	template <typename HeadsType>
	void Remove(const HeadsType& Heads, int32 Position)
	{
		if (!Table.IsEmpty())
		{
			const uint32 Mask = static_cast<uint32>(Table.Num() - 1);
			uint32 Index = Heads[Position].Hash & Mask;
			while (Table.GetData()[Index] != Position)
			{
				Index = (Index + 1) & Mask;
			}
			Table.GetData()[Index] = Removed;
		}
		Holes.Add(Position);
	}

	/** Makes the table anew, for elements whose hashes have changed. */
	template <typename HeadsType>
	void Rebuild(const HeadsType& Heads)
	{
		int32 Size = 32;
		while (Size < Heads.Num() * 4)
		{
			Size *= 2;
		}
		Table.Reset();
		Table.SetNumUninitialized(Size);
		std::fill(Table.begin(), Table.end(), Free);
		TableUsed = 0;
		for (int32 Position = 0; Position < Heads.Num(); ++Position)
		{
			if (Heads[Position].bLive)
			{
				Enter(Heads, Position);
			}
		}
	}

	void Empty()
	{
		Holes.Empty();
		Table.Empty();
		TableUsed = 0;
	}

private:
	static constexpr int32 LinearLimit = 8;
	static constexpr int32 Free = -1;
	static constexpr int32 Removed = -2;

	template <typename HeadsType>
	void Enter(const HeadsType& Heads, int32 Position)
	{
		if (++TableUsed * 2 > Table.Num())
		{
			Rebuild(Heads);
			return;
		}
		const uint32 Mask = static_cast<uint32>(Table.Num() - 1);
		uint32 Index = Heads[Position].Hash & Mask;
		while (Table.GetData()[Index] != Free)
		{
			Index = (Index + 1) & Mask;
		}
		Table.GetData()[Index] = Position;
	}

	TArray<int32> Holes;
	/** Positions by hash; empty while the elements are searched in a row. */
	TArray<int32> Table;
	/** Entries of the table that are not Free. */
	int32 TableUsed = 0;
};

/**
 * What TSet and TMap share: elements in the order they were added, found by key through a hash. Same layout as FScriptSet, through
 * which reflection reaches it.
 *
 * KeyFuncs gives KeyOf(Element); keys need GetTypeHash and ==.
 */
template <typename ElementType, typename KeyFuncs>
class THashedElements
{
	struct FSlot
	{
		FSlot(uint32 InHash, ElementType&& InElement)
			: Head{ InHash }
			, Element(MoveTemp(InElement))
		{
		}
		FSlot(const FSlot& Other)
			: Head(Other.Head)
		{
			if (Head.bLive)
			{
				new (&Element) ElementType(Other.Element);
			}
		}
		FSlot(FSlot&& Other) noexcept
			: Head(Other.Head)
		{
			if (Head.bLive)
			{
				new (&Element) ElementType(MoveTemp(Other.Element));
			}
		}
		FSlot& operator=(const FSlot&) = delete;
		~FSlot() { Clear(); }

		void Fill(uint32 InHash, ElementType&& InElement)
		{
			new (&Element) ElementType(MoveTemp(InElement));
			Head = { InHash };
		}
		void Clear()
		{
			if (Head.bLive)
			{
				Element.~ElementType();
				Head.bLive = false;
			}
		}

		FHashedSlotHead Head;
		union
		{
			ElementType Element;
		};
	};

	struct FHeads
	{
		const TArray<FSlot>& Slots;
		int32 Num() const { return Slots.Num(); }
		const FHashedSlotHead& operator[](int32 Position) const { return Slots.GetData()[Position].Head; }
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
			while (Slot != End && !Slot->Head.bLive)
			{
				++Slot;
			}
		}
	};

public:
	using FIterator = TIteratorBase<FSlot, ElementType>;
	using FConstIterator = TIteratorBase<const FSlot, const ElementType>;

	int32 Num() const { return Slots.Num() - Positions.NumHoles(); }
	bool IsEmpty() const { return Num() == 0; }

	void Empty(int32 Slack = 0)
	{
		Slots.Empty(Slack);
		Positions.Empty();
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
			Slot.Head.Hash = Hash;
			return Slot.Element;
		}
		return AddNew(Hash, MoveTemp(Element));
	}

	/** The key must not be there. */
	ElementType& AddNew(uint32 Hash, ElementType&& Element)
	{
		int32 Position = Positions.TakeHole();
		if (Position == INDEX_NONE)
		{
			Position = Slots.Emplace(Hash, MoveTemp(Element));
		}
		else
		{
			Slots[Position].Fill(Hash, MoveTemp(Element));
		}
		Positions.Add(FHeads{ Slots }, Position);
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
		Positions.Remove(FHeads{ Slots }, Position);
		Slots[Position].Clear();
		return 1;
	}

private:
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
		return Positions.Find(
			FHeads{ Slots }, Hash, [&](int32 Position) { return KeyFuncs::KeyOf(Slots.GetData()[Position].Element) == Key; });
	}

	TArray<FSlot> Slots;
	FHashPositions Positions;
};
