#pragma once

#include "UObject/Object.h"

/** Refers to an object and keeps it, even one that is garbage. Game thread. */
struct COREUOBJECT_API FStrongObjectPtr
{
	FStrongObjectPtr() = default;
	explicit FStrongObjectPtr(UObject* InObject);
	FStrongObjectPtr(const FStrongObjectPtr& Other)
		: FStrongObjectPtr(Other.Object)
	{
	}
	FStrongObjectPtr(FStrongObjectPtr&& Other) noexcept { Swap(Object, Other.Object); }
	FStrongObjectPtr& operator=(FStrongObjectPtr Other) noexcept
	{
		Swap(Object, Other.Object);
		return *this;
	}
	~FStrongObjectPtr();

	bool IsValid() const { return ::IsValid(Object); }
	void Reset() { *this = FStrongObjectPtr(); }
	bool operator==(const FStrongObjectPtr& Other) const = default;

protected:
	UObject* Object = nullptr;
};

template <typename T>
struct TStrongObjectPtr : FStrongObjectPtr
{
	TStrongObjectPtr() = default;
	TStrongObjectPtr(std::nullptr_t) {}
	explicit TStrongObjectPtr(T* InObject)
		: FStrongObjectPtr(InObject)
	{
	}

	void Reset(T* NewObject = nullptr) { *this = TStrongObjectPtr(NewObject); }
	T* Get() const { return static_cast<T*>(Object); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	explicit operator bool() const { return Object != nullptr; }
};
