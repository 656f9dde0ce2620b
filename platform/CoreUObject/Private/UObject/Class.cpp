#include "UObject/Class.h"

#include "ObjectTable.h"
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

UStruct::~UStruct()
{
	while (FField* const Field = ChildProperties)
	{
		ChildProperties = Field->Next;
		delete Field;
	}
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	const UStruct* Struct = this;
	while (Struct && Struct != SomeBase)
	{
		Struct = Struct->SuperStruct;
	}
	return Struct != nullptr;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (TFieldIterator<FProperty> Property(this); Property; ++Property)
	{
		if (Property->GetFName() == InName)
		{
			return *Property;
		}
	}
	return nullptr;
}

void UStruct::AddProperty(FProperty* Property)
{
	FField** End = &ChildProperties;
	while (*End)
	{
		End = &(*End)->Next;
	}
	*End = Property;
}

void UStruct::AddFunction(UFunction* Function)
{
	UField** End = &Children;
	while (*End)
	{
		End = &(*End)->Next;
	}
	*End = Function;
}

void UScriptStruct::InitializeStruct(void* Dest) const
{
	Ops->Construct(Dest);
}

void UScriptStruct::DestroyStruct(void* Dest) const
{
	Ops->Destroy(Dest);
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src) const
{
	Ops->Copy(Dest, Src);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	for (TFieldIterator<FProperty> Property(this); Property; ++Property)
	{
		if (!Property->Identical_InContainer(A, B, PortFlags))
		{
			return false;
		}
	}
	return true;
}

FProperty* UFunction::GetReturnProperty() const
{
	for (TFieldIterator<FProperty> Property(this, EFieldIterationFlags::None); Property; ++Property)
	{
		if (Property->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return *Property;
		}
	}
	return nullptr;
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
	if (GetSuperClass())
	{
		GetSuperClass()->GetDefaultObject();
	}
	constexpr EObjectFlags Flags = RF_Public | RF_ClassDefaultObject;
	ClassDefaultObject = AllocateObject(const_cast<UClass*>(this), GetOuter(), GetDefaultObjectName(), Flags);
	if (HasAnyClassFlags(CLASS_Config))
	{
		ClassDefaultObject->LoadConfig();
	}
	ClassDefaultObject->PostInitProperties();
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
