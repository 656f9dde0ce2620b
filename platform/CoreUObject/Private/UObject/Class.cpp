#include "UObject/Class.h"

#include "ObjectConstruction.h"
#include "UObject/GeneratedCode.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

UClass* UField::GetOwnerClass() const
{
	const UObject* Object = this;
	while (Object && !Object->IsA(UClass::StaticClass()))
	{
		Object = Object->GetOuter();
	}
	return static_cast<UClass*>(const_cast<UObject*>(Object));
}

FText UField::GetToolTipText(bool) const
{
	return MetaData.GetToolTip(GetName());
}

void UClass::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	UObject* GeneratedBy = ClassGeneratedBy;
	Ar << ClassFlags << ClassConfigName << GeneratedBy;
	ClassGeneratedBy = GeneratedBy;
	int32 Count = Interfaces.Num();
	SerializeCount(Ar, Count);
	Interfaces.SetNum(Count);
	for (FImplementedInterface& Each : Interfaces)
	{
		Ar << Each.Class << Each.bImplementedByK2;
	}
	if (Ar.IsObjectReferenceCollector())
	{
		Ar << ClassDefaultObject;
	}
	if (Ar.IsLoading())
	{
		Interfaces.RemoveAll([](const FImplementedInterface& Each) { return !Each.Class; });
		Bind();
	}
}

UObject* UClass::TryFindTypeSlow(UClass* TypeClass, const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions)
{
	if (InPathNameOrShortName.IsEmpty())
	{
		return nullptr;
	}
	return InPathNameOrShortName.StartsWith(TEXT("/")) ? StaticFindObject(TypeClass, nullptr, *InPathNameOrShortName)
													   : StaticFindFirstObject(TypeClass, *InPathNameOrShortName, InOptions);
}

UObject* UClass::TryFindTypeSlowSafe(UClass* TypeClass, const FString& InPathNameOrShortName, EFindFirstObjectOptions InOptions)
{
	return IsGarbageCollecting() ? nullptr : TryFindTypeSlow(TypeClass, InPathNameOrShortName, InOptions);
}

bool UClass::ImplementsInterface(const UClass* SomeInterface) const
{
	for (const UClass* Class = this; Class && SomeInterface; Class = Class->GetSuperClass())
	{
		if (Class->Interfaces.ContainsByPredicate([=](const FImplementedInterface& Each) { return Each.Class->IsChildOf(SomeInterface); }))
		{
			return true;
		}
	}
	return false;
}

void UClass::Bind()
{
	const UClass* const SuperClass = GetSuperClass();
	ClassConstructor = SuperClass->ClassConstructor;
	ClassFlags |= SuperClass->ClassFlags & CLASS_Inherit;
	ClassConfigName = ClassConfigName.IsNone() ? SuperClass->ClassConfigName : ClassConfigName;
}

void UClass::ConstructAddedProperties(UObject* Object) const
{
	for (const UClass* Class = this; !Class->HasAnyClassFlags(CLASS_Native); Class = Class->GetSuperClass())
	{
		for (TFieldIterator<FProperty> Property(Class, EFieldIterationFlags::None); Property; ++Property)
		{
			Property->InitializeValue_InContainer(Object);
		}
	}
}

void UClass::DestroyAddedProperties(UObject* Object) const
{
	for (const UClass* Class = this; !Class->HasAnyClassFlags(CLASS_Native); Class = Class->GetSuperClass())
	{
		for (TFieldIterator<FProperty> Property(Class, EFieldIterationFlags::None); Property; ++Property)
		{
			Property->DestroyValue_InContainer(Object);
		}
	}
}

FName UClass::GetDefaultObjectName() const
{
	return FName(TEXT("Default__") + GetName());
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (ClassDefaultObject || !bCreateIfNeeded)
	{
		return ClassDefaultObject;
	}
	ConstructDefaultObject(const_cast<UClass*>(this), ClassDefaultObject);
	return ClassDefaultObject;
}

UFunction* UClass::FindFunctionByName(FName InName, bool bIncludeSuper) const
{
	const auto Flags = bIncludeSuper ? EFieldIterationFlags::IncludeSuper : EFieldIterationFlags::None;
	for (TFieldIterator<UFunction> Function(this, Flags); Function; ++Function)
	{
		if (Function->GetFName() == InName)
		{
			return *Function;
		}
	}
	return nullptr;
}
