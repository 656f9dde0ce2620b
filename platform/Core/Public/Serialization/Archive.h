#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/Transform.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "UObject/NameTypes.h"

#include <bit>
#include <type_traits>

class UObject;

/**
 * What values are written to or read from: one "<<" for both directions, so that a type says once what it is made of. Numbers are
 * little-endian. After a read beyond the end, or of bytes that make no sense, IsError() is true and what is read is empty or zero;
 * whoever reads bytes from outside must look at it.
 */
class CORE_API FArchive
{
public:
	FArchive() = default;
	virtual ~FArchive() = default;
	UE_NONCOPYABLE(FArchive)

	/** Moves Length bytes between Data and the archive. An archive that only looks at references moves none. */
	virtual void Serialize(void* Data, int64 Length) {}
	/** As text, unless the archive has a shorter form. */
	virtual FArchive& operator<<(FName& Value);
	/** An archive without a form for objects treats them as null. */
	virtual FArchive& operator<<(UObject*& Value);

	/** In bytes from the start; 0 for an archive without places. */
	virtual int64 Tell() const { return 0; }
	virtual int64 TotalSize() const { return 0; }
	virtual void Seek(int64 Position) {}

	bool IsLoading() const { return bLoading; }
	bool IsSaving() const { return bSaving; }
	/** To or from a file. */
	bool IsPersistent() const { return bPersistent; }
	/** For the undo buffer. */
	bool IsTransacting() const { return bTransacting; }
	/** Only the references to objects matter; it may replace them. */
	bool IsObjectReferenceCollector() const { return bObjectReferenceCollector; }
	/** A collector of references that looks at weak ones, too. */
	bool IsModifyingWeakAndStrongReferences() const { return bWeakReferences; }
	bool IsError() const { return bError; }
	void SetError() { bError = true; }

protected:
	bool bLoading = false;
	bool bSaving = false;
	bool bPersistent = false;
	bool bTransacting = false;
	bool bObjectReferenceCollector = false;
	bool bWeakReferences = false;

private:
	bool bError = false;
};

template <typename T>
requires(std::is_arithmetic_v<T> || std::is_enum_v<T>) FArchive& operator<<(FArchive& Ar, T& Value)
{
	static_assert(std::endian::native == std::endian::little);
	if (Ar.IsLoading())
	{
		Value = T();
	}
	Ar.Serialize(&Value, sizeof(T));
	return Ar;
}

/** Characters of ASCII alone take a byte each, others two. */
CORE_API FArchive& operator<<(FArchive& Ar, FString& Value);
/** The namespace and key go with the text. */
CORE_API FArchive& operator<<(FArchive& Ar, FText& Value);

inline FArchive& operator<<(FArchive& Ar, FGuid& Value)
{
	return Ar << Value.A << Value.B << Value.C << Value.D;
}

inline FArchive& operator<<(FArchive& Ar, FLinearColor& Value)
{
	return Ar << Value.R << Value.G << Value.B << Value.A;
}

inline FArchive& operator<<(FArchive& Ar, FColor& Value)
{
	return Ar << Value.B << Value.G << Value.R << Value.A;
}

inline FArchive& operator<<(FArchive& Ar, FIntPoint& Value)
{
	return Ar << Value.X << Value.Y;
}

inline FArchive& operator<<(FArchive& Ar, FVector& Value)
{
	return Ar << Value.X << Value.Y << Value.Z;
}

inline FArchive& operator<<(FArchive& Ar, FVector2D& Value)
{
	return Ar << Value.X << Value.Y;
}

inline FArchive& operator<<(FArchive& Ar, FVector4& Value)
{
	return Ar << Value.X << Value.Y << Value.Z << Value.W;
}

inline FArchive& operator<<(FArchive& Ar, FRotator& Value)
{
	return Ar << Value.Pitch << Value.Yaw << Value.Roll;
}

inline FArchive& operator<<(FArchive& Ar, FQuat& Value)
{
	return Ar << Value.X << Value.Y << Value.Z << Value.W;
}

inline FArchive& operator<<(FArchive& Ar, FTransform& Value)
{
	return Ar << Value.Rotation << Value.Translation << Value.Scale3D;
}

CORE_API FArchive& operator<<(FArchive& Ar, FDateTime& Value);
CORE_API FArchive& operator<<(FArchive& Ar, FTimespan& Value);

/** A number of elements. More than the bytes that are left is an error and reads as 0, so that no damaged number fills the memory. */
CORE_API FArchive& SerializeCount(FArchive& Ar, int32& Count);

template <typename T>
FArchive& operator<<(FArchive& Ar, TArray<T>& Value)
{
	int32 Count = Value.Num();
	SerializeCount(Ar, Count);
	if (Ar.IsLoading())
	{
		Value.Empty();
		Value.SetNum(Count);
	}
	for (T& Element : Value)
	{
		Ar << Element;
	}
	return Ar;
}

template <typename KeyType, typename ValueType>
FArchive& operator<<(FArchive& Ar, TMap<KeyType, ValueType>& Value)
{
	int32 Count = Value.Num();
	SerializeCount(Ar, Count);
	if (!Ar.IsLoading())
	{
		for (auto& Pair : Value)
		{
			KeyType Key = Pair.Key;
			Ar << Key << Pair.Value;
		}
		return Ar;
	}
	Value.Empty();
	for (; Count > 0 && !Ar.IsError(); --Count)
	{
		KeyType Key{};
		ValueType Element{};
		Ar << Key << Element;
		Value.Add(std::move(Key), std::move(Element));
	}
	return Ar;
}
