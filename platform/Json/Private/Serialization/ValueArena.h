#pragma once

#include "CoreMinimal.h"

#include <atomic>
#include <vector>

/**
 * The memory of one document's values: handed out in a row from blocks, and given back as a whole once the reader and every value
 * are gone. One thread allocates; values may be released on any.
 */
class FValueArena
{
public:
	/** @param ExpectedBytes of all values; a document that takes more gets further blocks */
	explicit FValueArena(SIZE_T ExpectedBytes)
		: BlockSize(FMath::Clamp<SIZE_T>(ExpectedBytes, 1024, 256 * 1024))
	{
	}
	UE_NONCOPYABLE(FValueArena)

	void* Allocate(SIZE_T Bytes)
	{
		constexpr SIZE_T Alignment = alignof(std::max_align_t);
		Bytes = (Bytes + Alignment - 1) / Alignment * Alignment;
		if (Bytes > Free)
		{
			Free = FMath::Max(BlockSize, Bytes);
			Blocks.emplace_back(new std::byte[Free]);
			Next = Blocks.back().get();
		}
		void* const Memory = Next;
		Next += Bytes;
		Free -= Bytes;
		Users.fetch_add(1, std::memory_order_relaxed);
		return Memory;
	}

	/** The reader, or one value, is gone. */
	void Release()
	{
		if (Users.fetch_sub(1, std::memory_order_acq_rel) == 1)
		{
			delete this;
		}
	}

private:
	~FValueArena() = default;

	const SIZE_T BlockSize;
	std::vector<std::unique_ptr<std::byte[]>> Blocks;
	std::byte* Next = nullptr;
	SIZE_T Free = 0;
	/** The reader and all values. */
	std::atomic<int64> Users = 1;
};

/** Lets shared pointers take their memory from an arena. */
template <typename T>
struct TArenaAllocator
{
	using value_type = T;

	explicit TArenaAllocator(FValueArena& InArena)
		: Arena(&InArena)
	{
	}
	template <typename U>
	TArenaAllocator(const TArenaAllocator<U>& Other)
		: Arena(Other.Arena)
	{
	}

	T* allocate(SIZE_T Count) { return static_cast<T*>(Arena->Allocate(Count * sizeof(T))); }
	void deallocate(T*, SIZE_T) { Arena->Release(); }
	template <typename U>
	bool operator==(const TArenaAllocator<U>& Other) const
	{
		return Arena == Other.Arena;
	}

	FValueArena* Arena;
};
