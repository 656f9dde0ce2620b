#pragma once

#include <type_traits>

/** The bitwise operators for an enum of flags. */
#define ENUM_CLASS_FLAGS(Enum)                                                                                                             \
	constexpr Enum operator|(Enum A, Enum B)                                                                                               \
	{                                                                                                                                      \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(A) | static_cast<std::underlying_type_t<Enum>>(B));             \
	}                                                                                                                                      \
	constexpr Enum operator&(Enum A, Enum B)                                                                                               \
	{                                                                                                                                      \
		return static_cast<Enum>(static_cast<std::underlying_type_t<Enum>>(A) & static_cast<std::underlying_type_t<Enum>>(B));             \
	}                                                                                                                                      \
	constexpr Enum operator~(Enum A)                                                                                                       \
	{                                                                                                                                      \
		return static_cast<Enum>(~static_cast<std::underlying_type_t<Enum>>(A));                                                           \
	}                                                                                                                                      \
	constexpr Enum& operator|=(Enum& A, Enum B)                                                                                            \
	{                                                                                                                                      \
		return A = A | B;                                                                                                                  \
	}                                                                                                                                      \
	constexpr Enum& operator&=(Enum& A, Enum B)                                                                                            \
	{                                                                                                                                      \
		return A = A & B;                                                                                                                  \
	}
