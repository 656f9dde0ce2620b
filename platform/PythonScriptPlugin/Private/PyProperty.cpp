#include "PyProperty.h"

#include "PyBlock.h"
#include "PyConversion.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace
{
[[noreturn]] void Refuse(const UObject& Object, const FProperty* Property, const FString& Name, const TCHAR* Reason)
{
	RaisePython(PyExc_Exception,
		FString::Printf(TEXT("%s: Property '%s' for attribute '%s' on '%s' %s"), *Object.GetClass()->GetName(), *Property->GetName(), *Name,
			*Object.GetClass()->GetName(), Reason));
}

/** What a value must not be set for: the first that fits. */
struct FRefusal
{
	EPropertyFlags Flags;
	/** Of an object that is a template, of one that is none, or of both. */
	bool bTemplates;
	bool bInstances;
	const TCHAR* Reason;
};

constexpr FRefusal Refusals[] = {
	{ CPF_EditConst, true, true, TEXT("is read-only and cannot be set") },
	{ CPF_DisableEditOnTemplate, true, false, TEXT("cannot be edited on templates") },
	{ CPF_DisableEditOnInstance, false, true, TEXT("cannot be edited on instances") },
};

/** The objects in memory that are made after an object and have what it had. */
TArray<UObject*> FindFollowers(UObject& Object, const FProperty* Property)
{
	TArray<UObject*> Objects;
	if (Object.IsTemplate())
	{
		GetObjectsOfClass(Object.GetClass(), Objects, true, RF_NoFlags);
		Objects.RemoveAll([&](const UObject* Each)
			{ return Each == &Object || Each->GetArchetype() != &Object || !Property->Identical_InContainer(Each, &Object); });
	}
	return Objects;
}

void Change(UObject& Object, FProperty* Property, const void* Value)
{
	const TArray<UObject*> Followers = FindFollowers(Object, Property);
	// As by hand: what is not there for a moment only can be undone, default objects, too.
	if (Object.GetPackage() != GetTransientPackage())
	{
		Object.SetFlags(RF_Transactional);
	}
	Object.Modify();
	Property->CopyCompleteValue(Property->ContainerPtrToValuePtr<void>(&Object), Value);
	FPropertyChangedEvent Event(Property, EPropertyChangeType::ValueSet);
	Object.PostEditChangeProperty(Event);
	for (UObject* const Each : Followers)
	{
		Change(*Each, Property, Value);
	}
}

/** Of all values of an array of fixed size. */
bool IsSame(const UObject& Object, const FProperty* Property, const void* Value)
{
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		const void* const Each = static_cast<const uint8*>(Value) + Index * Property->GetElementSize();
		if (!Property->Identical(Property->ContainerPtrToValuePtr<void>(&Object, Index), Each))
		{
			return false;
		}
	}
	return true;
}
}

py::object GetEditorProperty(const UObject& Object, const FString& Name)
{
	const FProperty* const Property = FindPropertyChecked(Object.GetClass(), Name);
	if (!Property->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintAssignable))
	{
		Refuse(Object, Property, Name, TEXT("is protected and cannot be read"));
	}
	return PropertyToPython(Property, Property->ContainerPtrToValuePtr<void>(&Object));
}

void SetEditorProperty(UObject& Object, const FString& Name, py::handle Value)
{
	FProperty* const Property = FindPropertyChecked(Object.GetClass(), Name);
	if (!Property->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible))
	{
		Refuse(Object, Property, Name, TEXT("is protected and cannot be set"));
	}
	const bool bTemplate = Object.IsTemplate();
	for (const FRefusal& Each : Refusals)
	{
		if (Property->HasAnyPropertyFlags(Each.Flags) && (bTemplate ? Each.bTemplates : Each.bInstances))
		{
			Refuse(Object, Property, Name, Each.Reason);
		}
	}
	const FPyScratch Scratch(Property);
	PropertyFromPython(Property, Scratch.Get(), Value);
	if (!IsSame(Object, Property, Scratch.Get()))
	{
		Change(Object, Property, Scratch.Get());
	}
}
