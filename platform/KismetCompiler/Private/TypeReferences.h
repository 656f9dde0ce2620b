#pragma once

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

/** Tells whether objects refer to some others. */
class FReferenceFinder final : public FArchive
{
public:
	explicit FReferenceFinder(TFunctionRef<bool(const UObject*)> InIsWanted)
		: IsWanted(InIsWanted)
	{
		bObjectReferenceCollector = true;
		bWeakReferences = true;
	}

	/** What of the wanted the object itself refers to, or null. */
	UObject* Find(UObject* Object)
	{
		Found = nullptr;
		Object->Serialize(*this);
		return Found;
	}

	using FArchive::operator<<;
	FArchive& operator<<(FName&) override { return *this; }
	FArchive& operator<<(UObject*& Object) override
	{
		Found = Object && IsWanted(Object) ? Object : Found;
		return *this;
	}

private:
	TFunctionRef<bool(const UObject*)> IsWanted;
	UObject* Found = nullptr;
};

/** Puts classes in the place of others in the definitions of properties, of which nothing else changes. */
class FClassReplacer final : public FArchive
{
public:
	explicit FClassReplacer(const TMap<UObject*, UObject*>& InReplacements)
		: Replacements(InReplacements)
	{
		bObjectReferenceCollector = true;
		bWeakReferences = true;
	}

	void Visit(const UClass* Class)
	{
		for (TFieldIterator<FProperty> Property(Class, EFieldIterationFlags::None); Property; ++Property)
		{
			Property->Serialize(*this);
		}
	}

	using FArchive::operator<<;
	FArchive& operator<<(FName&) override { return *this; }
	FArchive& operator<<(UObject*& Object) override
	{
		UObject* const* const Found = Object && Object->IsA<UClass>() ? Replacements.Find(Object) : nullptr;
		Object = Found ? *Found : Object;
		return *this;
	}

private:
	const TMap<UObject*, UObject*>& Replacements;
};
