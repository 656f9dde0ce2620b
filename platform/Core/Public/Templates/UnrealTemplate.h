#pragma once

#include "CoreTypes.h"

#include <type_traits>
#include <utility>

template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Object) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp takes an lvalue");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp of a const object copies");
	return static_cast<std::remove_reference_t<T>&&>(Object);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Object) noexcept
{
	return static_cast<T&&>(Object);
}

template <typename T>
void Swap(T& A, T& B)
{
	T Kept = MoveTemp(A);
	A = MoveTemp(B);
	B = MoveTemp(Kept);
}

/** Sets a variable for the length of a scope. */
template <typename T>
class TGuardValue
{
public:
	TGuardValue(T& InVariable, T NewValue)
		: Variable(InVariable)
		, Kept(InVariable)
	{
		Variable = NewValue;
	}
	~TGuardValue() { Variable = Kept; }
	UE_NONCOPYABLE(TGuardValue)

private:
	T& Variable;
	T Kept;
};

/** A container with nothing in it, for initialisers that ask for "no elements" by name. */
enum ENoInit
{
	NoInit
};
