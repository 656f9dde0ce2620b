#include "UObject/UObjectHash.h"

#include "ObjectTable.h"
#include "UObject/Class.h"

namespace
{
/** Appends the objects of exactly that class. */
void GetInstances(const UClass* Class, TArray<UObject*>& Results, EObjectFlags ExcludeFlags)
{
	const int32 First = Results.Num();
	FObjectTable::Get().GetInstances(Class, Results);
	if (ExcludeFlags != RF_NoFlags)
	{
		UObject** const Excluded = std::stable_partition(
			Results.begin() + First, Results.end(), [ExcludeFlags](const UObject* Object) { return !Object->HasAnyFlags(ExcludeFlags); });
		Results.SetNum(static_cast<int32>(Excluded - Results.begin()));
	}
}

/** Classes are objects of UClass and of the classes below it, which are few and made by C++ alone. */
TArray<UObject*> GetAllClasses()
{
	TArray<UObject*> Classes;
	GetInstances(UClass::StaticClass(), Classes, RF_MirroredGarbage | RF_ClassDefaultObject);
	for (const UObject* const Class : TArray<UObject*>(Classes))
	{
		const UClass* const Kind = static_cast<const UClass*>(Class);
		if (Kind != UClass::StaticClass() && Kind->IsChildOf(UClass::StaticClass()))
		{
			GetInstances(Kind, Classes, RF_MirroredGarbage | RF_ClassDefaultObject);
		}
	}
	return Classes;
}
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags)
{
	TArray<UObject*> Inner;
	FObjectTable::Get().GetInner(Outer, Inner);
	for (int32 Index = 0; Index < Inner.Num(); ++Index)
	{
		UObject* const Object = Inner[Index];
		if (!Object->HasAnyFlags(ExclusionFlags | RF_MirroredGarbage))
		{
			Results.Add(Object);
		}
		if (bIncludeNestedObjects)
		{
			FObjectTable::Get().GetInner(Object, Inner);
		}
	}
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags)
{
	GetInstances(ClassToLookFor, Results, ExcludeFlags | RF_MirroredGarbage);
	TArray<UClass*> Derived;
	if (bIncludeDerivedClasses)
	{
		GetDerivedClasses(ClassToLookFor, Derived);
	}
	for (const UClass* const Class : Derived)
	{
		GetInstances(Class, Results, ExcludeFlags | RF_MirroredGarbage);
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	for (UObject* const Object : GetAllClasses())
	{
		UClass* const Class = static_cast<UClass*>(Object);
		const bool bBelow =
			bRecursive ? Class != ClassToLookFor && Class->IsChildOf(ClassToLookFor) : Class->GetSuperClass() == ClassToLookFor;
		if (bBelow)
		{
			Results.Add(Class);
		}
	}
}
