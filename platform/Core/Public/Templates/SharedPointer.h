#pragma once

// Shared ownership over std::shared_ptr. TSharedRef is never null, TSharedPtr may be, TWeakPtr does not own.

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <memory>

enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <typename T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <typename T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <typename T, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;

/** What MakeShareable gives: an object about to be owned by a shared pointer. */
template <typename T>
struct TRawShareable
{
	std::shared_ptr<T> Owner;
};

template <typename T, ESPMode Mode>
class TSharedPtr
{
public:
	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}
	explicit TSharedPtr(std::shared_ptr<T> InOwner)
		: Owner(std::move(InOwner))
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedPtr(const TSharedPtr<U, Mode>& Other)
		: Owner(Other.Owner)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedPtr(TSharedPtr<U, Mode>&& Other)
		: Owner(std::move(Other.Owner))
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedPtr(const TSharedRef<U, Mode>& Other)
		: Owner(Other.Owner)
	{
	}
	/** Takes the reference over, which must not be used any more. */
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedPtr(TSharedRef<U, Mode>&& Other)
		: Owner(std::move(Other.Owner))
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedPtr(TRawShareable<U>&& Raw)
		: Owner(std::move(Raw.Owner))
	{
	}

	T* Get() const { return Owner.get(); }
	T* operator->() const
	{
		check(Owner);
		return Owner.get();
	}
	std::add_lvalue_reference_t<T> operator*() const
	{
		check(Owner);
		return *Owner;
	}
	bool IsValid() const { return Owner != nullptr; }
	explicit operator bool() const { return IsValid(); }
	void Reset() { Owner.reset(); }
	/** The pointer must not be null. */
	TSharedRef<T, Mode> ToSharedRef() const { return TSharedRef<T, Mode>(Owner); }
	TWeakPtr<T, Mode> ToWeakPtr() const { return *this; }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Owner.use_count()); }
	bool IsUnique() const { return Owner.use_count() == 1; }

	template <typename U>
	bool operator==(const TSharedPtr<U, Mode>& Other) const
	{
		return Owner == Other.Owner;
	}
	bool operator==(std::nullptr_t) const { return Owner == nullptr; }

private:
	template <typename U, ESPMode OtherMode>
	friend class TSharedPtr;
	template <typename U, ESPMode OtherMode>
	friend class TWeakPtr;
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedPtr<To, OtherMode> StaticCastSharedPtr(const TSharedPtr<From, OtherMode>& Pointer);

	std::shared_ptr<T> Owner;
};

template <typename T, ESPMode Mode>
class TSharedRef
{
public:
	explicit TSharedRef(std::shared_ptr<T> InOwner)
		: Owner(std::move(InOwner))
	{
		check(Owner);
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedRef(const TSharedRef<U, Mode>& Other)
		: Owner(Other.Owner)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TSharedRef(TRawShareable<U>&& Raw)
		: Owner(std::move(Raw.Owner))
	{
		check(Owner);
	}
	TSharedRef(const TSharedRef&) = default;
	TSharedRef& operator=(const TSharedRef&) = default;

	T& Get() const { return *Owner; }
	T* operator->() const { return Owner.get(); }
	T& operator*() const { return *Owner; }
	TSharedPtr<T, Mode> ToSharedPtr() const { return *this; }

	template <typename U>
	bool operator==(const TSharedRef<U, Mode>& Other) const
	{
		return Owner == Other.Owner;
	}

private:
	template <typename U, ESPMode OtherMode>
	friend class TSharedPtr;
	template <typename U, ESPMode OtherMode>
	friend class TSharedRef;
	template <typename U, ESPMode OtherMode>
	friend class TWeakPtr;
	template <typename To, typename From, ESPMode OtherMode>
	friend TSharedRef<To, OtherMode> StaticCastSharedRef(const TSharedRef<From, OtherMode>& Reference);

	std::shared_ptr<T> Owner;
};

template <typename T, ESPMode Mode>
class TWeakPtr
{
public:
	TWeakPtr() = default;
	TWeakPtr(std::nullptr_t) {}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TWeakPtr(const TSharedPtr<U, Mode>& Other)
		: Watcher(Other.Owner)
	{
	}
	template <typename U>
	requires std::is_convertible_v<U*, T*> TWeakPtr(const TSharedRef<U, Mode>& Other)
		: Watcher(Other.Owner)
	{
	}

	/** Null when the object is gone. */
	TSharedPtr<T, Mode> Pin() const { return TSharedPtr<T, Mode>(Watcher.lock()); }
	bool IsValid() const { return !Watcher.expired(); }
	void Reset() { Watcher.reset(); }
	bool operator==(const TWeakPtr& Other) const { return !Watcher.owner_before(Other.Watcher) && !Other.Watcher.owner_before(Watcher); }

private:
	std::weak_ptr<T> Watcher;
};

/** A class whose objects can give shared pointers to themselves, once a shared pointer owns them. */
template <typename T, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis : public std::enable_shared_from_this<T>
{
public:
	TSharedRef<T, Mode> AsShared() { return TSharedRef<T, Mode>(this->shared_from_this()); }
	TSharedRef<const T, Mode> AsShared() const { return TSharedRef<const T, Mode>(this->shared_from_this()); }
	TWeakPtr<T, Mode> AsWeak() { return AsShared(); }
};

template <typename T, ESPMode Mode = ESPMode::ThreadSafe, typename... ArgTypes>
TSharedRef<T, Mode> MakeShared(ArgTypes&&... Args)
{
	return TSharedRef<T, Mode>(std::make_shared<T>(Forward<ArgTypes>(Args)...));
}

/** For objects whose constructor MakeShared can't reach. */
template <typename T>
TRawShareable<T> MakeShareable(T* Object)
{
	return { std::shared_ptr<T>(Object) };
}

template <typename T, typename DeleterType>
TRawShareable<T> MakeShareable(T* Object, DeleterType&& Deleter)
{
	return { std::shared_ptr<T>(Object, Forward<DeleterType>(Deleter)) };
}

template <typename To, typename From, ESPMode Mode>
TSharedPtr<To, Mode> StaticCastSharedPtr(const TSharedPtr<From, Mode>& Pointer)
{
	return TSharedPtr<To, Mode>(std::static_pointer_cast<To>(Pointer.Owner));
}

template <typename To, typename From, ESPMode Mode>
TSharedRef<To, Mode> StaticCastSharedRef(const TSharedRef<From, Mode>& Reference)
{
	return TSharedRef<To, Mode>(std::static_pointer_cast<To>(Reference.Owner));
}

template <typename T, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<T, Mode>& Pointer)
{
	return GetTypeHash(Pointer.Get());
}
