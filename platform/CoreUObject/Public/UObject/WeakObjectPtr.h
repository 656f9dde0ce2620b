#pragma once

#include "UObject/Object.h"

/** Refers to an object without keeping it; null once the collector has taken it. Game thread. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(const UObject* Object);

	UObject* Get() const;
	bool IsValid() const { return Get() != nullptr; }
	/** True for one that once referred to an object which is gone. */
	bool IsStale() const { return SerialNumber != 0 && !IsValid(); }
	void Reset() { *this = FWeakObjectPtr(); }
	bool operator==(const FWeakObjectPtr& Other) const = default;
	friend uint32 GetTypeHash(const FWeakObjectPtr& Pointer) { return GetTypeHash(Pointer.ObjectIndex) ^ Pointer.SerialNumber; }

private:
	int32 ObjectIndex = INDEX_NONE;
	/** Tells the objects apart that one index had in turn; 0 for none. */
	uint32 SerialNumber = 0;
};

template <typename T = UObject>
struct TWeakObjectPtr : FWeakObjectPtr
{
	TWeakObjectPtr() = default;
	TWeakObjectPtr(std::nullptr_t) {}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TWeakObjectPtr(U* Object)
		: FWeakObjectPtr(Object)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TWeakObjectPtr(const TWeakObjectPtr<U>& Other)
		: FWeakObjectPtr(Other)
	{
	}

	T* Get() const { return static_cast<T*>(FWeakObjectPtr::Get()); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	explicit operator bool() const { return IsValid(); }
};
