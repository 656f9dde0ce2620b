#pragma once

#include "UObject/Class.h"

/** The object as a To, or null when it is none. */
template <typename To, typename From>
To* Cast(From* Object)
{
	return Object && Object->IsA(To::StaticClass()) ? static_cast<To*>(Object) : nullptr;
}

template <typename To, typename From>
const To* Cast(const From* Object)
{
	return Cast<To>(const_cast<From*>(Object));
}

template <typename To, typename From>
To* Cast(const TObjectPtr<From>& Object)
{
	return Cast<To>(Object.Get());
}

/** The same for an object that must be a To. */
template <typename To, typename From>
To* CastChecked(From* Object)
{
	To* const Result = Cast<To>(Object);
	check(Result);
	return Result;
}

template <typename To, typename From>
To* CastChecked(const TObjectPtr<From>& Object)
{
	return CastChecked<To>(Object.Get());
}
