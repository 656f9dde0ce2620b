#pragma once

#include "CoreTypes.h"

#include <bit>
#include <type_traits>

/** Murmur3's finaliser: spreads an integer's bits, so that tables may take the low ones. */
constexpr uint32 MurmurFinalize32(uint32 Hash)
{
	Hash ^= Hash >> 16;
	Hash *= 0x85ebca6b;
	Hash ^= Hash >> 13;
	Hash *= 0xc2b2ae35;
	Hash ^= Hash >> 16;
	return Hash;
}

constexpr uint32 HashCombine(uint32 A, uint32 B)
{
	return MurmurFinalize32(A ^ (B + 0x9e3779b9 + (A << 6) + (A >> 2)));
}

template <typename T>
requires(std::is_integral_v<T> || std::is_enum_v<T>) constexpr uint32 GetTypeHash(T Value)
{
	const auto Wide = static_cast<uint64>(Value);
	return MurmurFinalize32(static_cast<uint32>(Wide) ^ static_cast<uint32>(Wide >> 32));
}

/** Both zeros are equal, so they have one hash. */
inline uint32 GetTypeHash(double Value)
{
	return GetTypeHash(std::bit_cast<uint64>(Value == 0.0 ? 0.0 : Value));
}

inline uint32 GetTypeHash(float Value)
{
	return GetTypeHash(static_cast<double>(Value));
}

template <typename T>
uint32 GetTypeHash(T* Pointer)
{
	return GetTypeHash(reinterpret_cast<uint64>(Pointer) >> 4);
}
