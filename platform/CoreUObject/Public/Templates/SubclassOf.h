#pragma once

#include "Templates/Casts.h"

/** A class that is T or derives from it, or null. Laid out as a raw pointer. */
template <typename T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	/** A class that does not derive from T becomes null. */
	TSubclassOf(UClass* InClass)
		: Class(InClass && InClass->IsChildOf(T::StaticClass()) ? InClass : nullptr)
	{
	}

	UClass* Get() const { return Class; }
	operator UClass*() const { return Class; }
	UClass* operator->() const { return Class; }
	T* GetDefaultObject() const { return Class ? static_cast<T*>(Class->GetDefaultObject()) : nullptr; }

private:
	UClass* Class = nullptr;
};

/** The class itself as a kind of UClass. */
template <typename To, typename From>
To* Cast(const TSubclassOf<From>& Class)
{
	return Cast<To>(Class.Get());
}
