#pragma once

#include "UObject/Object.h"
#include "UObject/UObjectGlobals.h"
#include "PyReferences.generated.h"

/** Something of Python's that refers to objects. Any thread may destroy it, while it holds the interpreter's lock. */
class FPyReferencer
{
public:
	FPyReferencer();
	virtual ~FPyReferencer();
	UE_NONCOPYABLE(FPyReferencer)

	/** Passes what is referred to through an archive that keeps, clears or replaces it. */
	virtual void AddReferences(FArchive& Ar) = 0;
};

/** One reference. The object is kept; should it go nevertheless, because it was deleted, the reference is null. */
class FPyReference final : public FPyReferencer
{
public:
	explicit FPyReference(UObject* InObject = nullptr)
		: Object(InObject)
	{
	}

	void Set(UObject* InObject) { Object = InObject; }
	/** Null for one that is gone. */
	UObject* Get() const { return IsValid(Object) ? Object : nullptr; }
	void AddReferences(FArchive& Ar) override { Ar << Object; }

private:
	UObject* Object;
};

/** Stands for all of Python among the objects. */
UCLASS(Transient)
class UPyReferenceCollector : public UObject
{
	GENERATED_BODY()

public:
	/** Makes it and roots it, unless it is there. */
	static void Start();
	void Serialize(FArchive& Ar) override;
};
