#include "ObjectConstruction.h"

#include "Misc/ITransaction.h"
#include "ObjectTable.h"
#include "ReferenceArchive.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <cstring>

UObject* FObjectConstruction::Construct(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Archetype)
{
	UObject* const Object = AllocateObject(Class, Outer, Name, Flags, Archetype, this);
	Parts.Add({ Object, Archetype });
	return Object;
}

UObject* FObjectConstruction::ConstructSubobject(
	UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, const UObject* OuterArchetype)
{
	UObject* const Defaults = Class->GetDefaultObject();
	UObject* const Found = OuterArchetype ? FObjectTable::Get().Find(OuterArchetype, Name) : nullptr;
	return Construct(Class, Outer, Name, Flags, Found && Class->IsChildOf(Found->GetClass()) ? Found : Defaults);
}

/** Turns references to an archetype's own objects into references to the new object's. */
class FSubobjectInstancer final : public FReferenceArchive
{
public:
	explicit FSubobjectInstancer(FObjectConstruction& InConstruction)
		: Construction(InConstruction)
	{
	}

	void Visit(UObject* Object)
	{
		for (TFieldIterator<FProperty> Property(Object->GetClass()); Property; ++Property)
		{
			if (Property->ContainsObjectReference())
			{
				bInstanced = Property->HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference);
				for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
				{
					Property->SerializeItem(*this, Property->ContainerPtrToValuePtr<void>(Object, Index));
				}
			}
		}
	}

	using FReferenceArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		if (Object)
		{
			const bool bMakeMissing = bInstanced || Object->GetClass()->HasAnyClassFlags(CLASS_DefaultToInstanced);
			UObject* const Counterpart = Construction.FindCounterpart(Object, bMakeMissing);
			Object = Counterpart ? Counterpart : Object;
		}
		return *this;
	}

private:
	FObjectConstruction& Construction;
	/** Whether the property at hand says that each object has its own. */
	bool bInstanced = false;
};

void FObjectConstruction::Finish()
{
	FSubobjectInstancer Instancer(*this);
	for (const FPart& Part : Parts)
	{
		CopyValues(Part);
	}
	const bool bHasSubobjects =
		Parts.ContainsByPredicate([](const FPart& Part) { return Part.Archetype && FObjectTable::Get().HasInner(Part.Archetype); });
	// Instancing may add parts.
	for (int32 Index = 0; bHasSubobjects && Index < Parts.Num(); ++Index)
	{
		Instancer.Visit(Parts[Index].Object);
	}
	for (const FPart& Part : Parts)
	{
		if (GUndo && Part.Object->HasAnyFlags(RF_Transactional) && !Part.Object->HasAnyFlags(RF_NeedLoad))
		{
			// Recorded as what it was before the transaction: not there.
			Part.Object->MarkAsGarbage();
			GUndo->SaveObject(Part.Object);
			Part.Object->ClearGarbage();
		}
	}
	for (const FPart& Part : Parts)
	{
		Part.Object->PostInitProperties();
	}
}

void FObjectConstruction::CopyValues(const FPart& Part)
{
	if (!Part.Archetype)
	{
		return;
	}
	// C++ has given the object of a native class the defaults already, all but those that come from config files.
	const UClass* const Class = Part.Object->GetClass();
	const bool bMadeByConstructor = Class->HasAnyClassFlags(CLASS_Native) && Part.Archetype == Class->GetDefaultObject(false);
	for (TFieldIterator<FProperty> Property(Part.Archetype->GetClass()); Property; ++Property)
	{
		if (!bMadeByConstructor || Property->HasAnyPropertyFlags(CPF_Config))
		{
			Property->CopyCompleteValue_InContainer(Part.Object, Part.Archetype);
		}
	}
}

UObject* FObjectConstruction::FindCounterpart(UObject* Source, bool bMakeMissing)
{
	for (int32 Index = Parts.Num() - 1; Index >= 0; --Index)
	{
		const FPart Part = Parts[Index];
		if (!Part.Archetype || !Source->IsIn(Part.Archetype))
		{
			continue;
		}
		UObject* const Outer = Source->GetOuter() == Part.Archetype ? Part.Object : FindCounterpart(Source->GetOuter(), bMakeMissing);
		UObject* const Found = Outer ? FObjectTable::Get().Find(Outer, Source->GetFName()) : nullptr;
		if (Found || !Outer || !bMakeMissing)
		{
			return Found;
		}
		const EObjectFlags Flags =
			(Source->GetFlags() & ~(RF_PropagateToSubObjects | RF_WasLoaded)) | (Outer->GetFlags() & RF_PropagateToSubObjects);
		const int32 FirstNew = Parts.Num();
		UObject* const Made = Construct(Source->GetClass(), Outer, Source->GetFName(), Flags, Source);
		for (int32 New = FirstNew; New < Parts.Num(); ++New)
		{
			CopyValues(Parts[New]);
		}
		return Made;
	}
	return nullptr;
}

UObject* AllocateObject(
	UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Archetype, FObjectConstruction* Construction)
{
	const SIZE_T Size = static_cast<SIZE_T>(Class->GetPropertiesSize());
	void* const Memory = ::operator new(Size, std::align_val_t(Class->GetMinAlignment()));
	std::memset(Memory, 0, Size);
	const FObjectInitializer Initializer(Class, Outer, Name, Flags, Archetype, Construction);
	Class->ClassConstructor(Memory, Initializer);
	Class->ConstructAddedProperties(Initializer.GetObj());
	return Initializer.GetObj();
}

void DestroyObject(UObject* Object)
{
	const auto Alignment = static_cast<std::align_val_t>(Object->GetClass()->GetMinAlignment());
	Object->GetClass()->DestroyAddedProperties(Object);
	Object->~UObject();
	::operator delete(static_cast<void*>(Object), Alignment);
}

void ConstructDefaultObject(UClass* Class, UObject*& Made)
{
	UClass* const Super = Class->GetSuperClass();
	UObject* const SuperDefaults = Super ? Super->GetDefaultObject() : nullptr;
	if (Made)
	{
		return; // the super class's constructors have asked for it
	}
	FObjectConstruction Construction;
	constexpr EObjectFlags Flags = RF_Public | RF_ClassDefaultObject;
	UObject* const Archetype = Class->HasAnyClassFlags(CLASS_Native) ? nullptr : SuperDefaults;
	Made = Construction.Construct(Class, Class->GetOuter(), Class->GetDefaultObjectName(), Flags, Archetype);
	if (Class->HasAnyClassFlags(CLASS_Config))
	{
		Made->LoadConfig();
	}
	Construction.Finish();
}
