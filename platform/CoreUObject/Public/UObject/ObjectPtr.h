#pragma once

#include "CoreMinimal.h"

#include <type_traits>

/** A pointer to an object in a property. Laid out as a raw pointer; the collector sees it when it is a UPROPERTY. */
template <typename T>
struct TObjectPtr
{
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(std::nullptr_t) {}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TObjectPtr(U* InObject)
		: Object(InObject)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TObjectPtr(const TObjectPtr<U>& Other)
		: Object(Other.Get())
	{
	}

	T* Get() const { return Object; }
	operator T*() const { return Object; }
	T* operator->() const { return Object; }
	T& operator*() const { return *Object; }
	explicit operator bool() const { return Object != nullptr; }

private:
	T* Object = nullptr;
};

template <typename T>
uint32 GetTypeHash(const TObjectPtr<T>& Pointer)
{
	return GetTypeHash(Pointer.Get());
}

static_assert(sizeof(TObjectPtr<class UObject>) == sizeof(void*));
