#pragma once

#include <cstddef>
#include <cstdint>

using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = std::int64_t;
using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = std::uint64_t;
using SIZE_T = std::size_t;
using SSIZE_T = std::ptrdiff_t;
using ANSICHAR = char;
using WIDECHAR = char16_t;
using UTF8CHAR = char8_t;
/** A UTF-16 code unit. */
using TCHAR = char16_t;

#define TEXT_PASTE(x) u##x
#define TEXT(x) TEXT_PASTE(x)
#define LINE_TERMINATOR TEXT("\n")

/** What a module exports; every <MODULE>_API stands for it, seen from inside and from outside. */
#define DLLEXPORT __attribute__((visibility("default")))
#define DLLIMPORT __attribute__((visibility("default")))
#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))

#define WITH_EDITOR 1
#define WITH_EDITORONLY_DATA 1
#define PLATFORM_LINUX 1

enum : int32
{
	INDEX_NONE = -1
};

#define UE_NONCOPYABLE(TypeName)                                                                                                           \
	TypeName(TypeName&&) = delete;                                                                                                         \
	TypeName(const TypeName&) = delete;                                                                                                    \
	TypeName& operator=(const TypeName&) = delete;                                                                                         \
	TypeName& operator=(TypeName&&) = delete;

#define UE_ARRAY_COUNT(Array) (sizeof(Array) / sizeof((Array)[0]))
#define PREPROCESSOR_JOIN_INNER(x, y) x##y
#define PREPROCESSOR_JOIN(x, y) PREPROCESSOR_JOIN_INNER(x, y)
