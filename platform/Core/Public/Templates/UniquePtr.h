#pragma once

#include "Templates/UnrealTemplate.h"

#include <memory>

/** One owner of one object. */
template <typename T>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	TUniquePtr(std::nullptr_t) {}
	explicit TUniquePtr(T* Object)
		: Pointer(Object)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TUniquePtr(TUniquePtr<U>&& Other)
		: Pointer(Other.Release())
	{
	}

	T* Get() const { return Pointer.get(); }
	T* operator->() const { return Pointer.get(); }
	T& operator*() const { return *Pointer; }
	bool IsValid() const { return Pointer != nullptr; }
	explicit operator bool() const { return IsValid(); }
	/** Hands the object to the caller, who deletes it. */
	T* Release() { return Pointer.release(); }
	void Reset(T* Object = nullptr) { Pointer.reset(Object); }

private:
	std::unique_ptr<T> Pointer;
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(Forward<ArgTypes>(Args)...));
}
