#pragma once

#include "Misc/AssertionMacros.h"

#include <optional>

/** A value or none. */
template <typename T>
class TOptional
{
public:
	TOptional() = default;
	TOptional(const T& InValue)
		: Value(InValue)
	{
	}

	bool IsSet() const { return Value.has_value(); }
	/** There must be one. */
	const T& GetValue() const
	{
		check(IsSet());
		return *Value;
	}
	T Get(const T& Default) const { return Value.value_or(Default); }

private:
	std::optional<T> Value;
};
