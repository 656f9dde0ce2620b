#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"

/** Refers to an object by its path, loaded or not; the object found last is kept weakly. Game thread. */
struct COREUOBJECT_API FSoftObjectPtr
{
	FSoftObjectPtr() = default;
	explicit FSoftObjectPtr(const FSoftObjectPath& InPath)
		: Path(InPath)
	{
	}
	explicit FSoftObjectPtr(const UObject* Object)
		: Path(Object)
		, Found(Object)
	{
	}

	/** Null when it is not in memory. */
	UObject* Get() const;
	/** Loads it when it is not in memory. */
	UObject* LoadSynchronous() const;
	bool IsNull() const { return Path.IsNull(); }
	bool IsValid() const { return Get() != nullptr; }
	/** Names an object that is not in memory. */
	bool IsPending() const { return !IsNull() && !IsValid(); }
	void Reset() { *this = FSoftObjectPtr(); }
	const FSoftObjectPath& ToSoftObjectPath() const { return Path; }
	FString ToString() const { return Path.ToString(); }
	FString GetAssetName() const { return Path.GetAssetName(); }
	FString GetLongPackageName() const { return Path.GetLongPackageName(); }

	bool operator==(const FSoftObjectPtr& Other) const { return Path == Other.Path; }
	friend uint32 GetTypeHash(const FSoftObjectPtr& Pointer) { return GetTypeHash(Pointer.Path); }

private:
	FSoftObjectPath Path;
	mutable FWeakObjectPtr Found;
};

template <typename T = UObject>
struct TSoftObjectPtr : FSoftObjectPtr
{
	TSoftObjectPtr() = default;
	TSoftObjectPtr(std::nullptr_t) {}
	TSoftObjectPtr(const T* Object)
		: FSoftObjectPtr(Object)
	{
	}
	explicit TSoftObjectPtr(const FSoftObjectPath& InPath)
		: FSoftObjectPtr(InPath)
	{
	}

	/** An object of another class is as none. */
	T* Get() const { return As(FSoftObjectPtr::Get()); }
	T* LoadSynchronous() const { return As(FSoftObjectPtr::LoadSynchronous()); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }

private:
	static T* As(UObject* Object) { return Object && Object->IsA(T::StaticClass()) ? static_cast<T*>(Object) : nullptr; }
};

/** Refers to a class that is T or derives from it. */
template <typename T = UObject>
struct TSoftClassPtr : FSoftObjectPtr
{
	TSoftClassPtr() = default;
	TSoftClassPtr(std::nullptr_t) {}
	TSoftClassPtr(const UClass* Class)
		: FSoftObjectPtr(Class)
	{
	}
	explicit TSoftClassPtr(const FSoftObjectPath& InPath)
		: FSoftObjectPtr(InPath)
	{
	}

	/** A class that does not derive from T is as none. */
	UClass* Get() const { return As(FSoftObjectPtr::Get()); }
	UClass* LoadSynchronous() const { return As(FSoftObjectPtr::LoadSynchronous()); }

private:
	static UClass* As(UObject* Object)
	{
		return Object && Object->IsA(UClass::StaticClass()) ? TSubclassOf<T>(static_cast<UClass*>(Object)).Get() : nullptr;
	}
};
