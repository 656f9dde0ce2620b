#pragma once

#include "UObject/Object.h"

/** What TArchiveReplaceObjectRef shares for all types. */
class COREUOBJECT_API FArchiveReplaceObjectRefBase : public FArchive
{
public:
	/** How many references were replaced. */
	int64 GetCount() const { return Count; }

	using FArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override;
	FArchive& operator<<(FName&) override { return *this; }

protected:
	FArchiveReplaceObjectRefBase();
	void Run(UObject* InSearchObject);

	TMap<UObject*, UObject*> Replacements;

private:
	UObject* SearchObject = nullptr;
	TSet<UObject*> Seen;
	TArray<UObject*> Pending;
	int64 Count = 0;
};

/** Replaces references in an object and in the objects inside it that it refers to, weak ones too; a replacement may be null. */
template <typename T>
class FArchiveReplaceObjectRef : public FArchiveReplaceObjectRefBase
{
public:
	FArchiveReplaceObjectRef(UObject* InSearchObject, const TMap<T*, T*>& InReplacementMap)
	{
		for (const TPair<T*, T*>& Pair : InReplacementMap)
		{
			Replacements.Add(Pair.Key, Pair.Value);
		}
		Run(InSearchObject);
	}
};
