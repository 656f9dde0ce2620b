#include "Serialization/Archive.h"
#include "Templates/AlignmentTemplates.h"
#include "UObject/GeneratedCode.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <utility>

UStruct::~UStruct()
{
	DestroyChildPropertiesAndResetPropertyLinks();
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
	ForgetPropertyLinks();
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

FTopLevelAssetPath UStruct::GetStructPathName() const
{
	return FTopLevelAssetPath(GetPackage()->GetFName(), GetFName());
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	FProperty* const* const Found =
		GetAllProperties().FindByPredicate([InName](const FProperty* Property) { return Property->GetFName() == InName; });
	return Found ? *Found : nullptr;
}

const TArray<FProperty*>& UStruct::GetAllProperties() const
{
	if (!bPropertiesLinked)
	{
		bPropertiesLinked = true;
		for (TFieldIterator<FProperty> Property(this); Property; ++Property)
		{
			PropertyLink.Add(*Property);
		}
		RefLink = PropertyLink.FilterByPredicate([](const FProperty* Property) { return Property->ContainsObjectReference(); });
	}
	return PropertyLink;
}

void UStruct::ForgetPropertyLinks() const
{
	PropertyLink.Empty();
	RefLink.Empty();
	bPropertiesLinked = false;
}

void UStruct::AddCppProperty(FProperty* Property)
{
	FField** End = &ChildProperties;
	while (*End)
	{
		End = &(*End)->Next;
	}
	*End = Property;
	ForgetPropertyLinks();
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

void UStruct::StaticLink(bool bRelinkExistingProperties)
{
	ForgetPropertyLinks();
	if (!bRelinkExistingProperties)
	{
		return;
	}
	int32 Size = SuperStruct ? SuperStruct->PropertiesSize : 0;
	MinAlignment = SuperStruct ? SuperStruct->MinAlignment : 1;
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* const Property = static_cast<FProperty*>(Field);
		Property->Link();
		Property->Offset_Internal = Align(Size, Property->GetMinAlignment());
		Size = Property->Offset_Internal + Property->GetSize();
		MinAlignment = FMath::Max(MinAlignment, Property->GetMinAlignment());
	}
	PropertiesSize = Align(FMath::Max(Size, 1), MinAlignment);
}

void UStruct::DestroyChildPropertiesAndResetPropertyLinks()
{
	while (FField* const Field = std::exchange(ChildProperties, nullptr))
	{
		ChildProperties = Field->Next;
		delete Field;
	}
	ForgetPropertyLinks();
}

void UStruct::InitializeStruct(void* Dest) const
{
	for (const FProperty* const Property : GetAllProperties())
	{
		Property->InitializeValue_InContainer(Dest);
	}
}

void UStruct::DestroyStruct(void* Dest) const
{
	for (const FProperty* const Property : GetAllProperties())
	{
		Property->DestroyValue_InContainer(Dest);
	}
}

void UStruct::SerializeReferences(FArchive& Ar, void* Data) const
{
	GetAllProperties();
	for (const FProperty* const Property : RefLink)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			Property->SerializeItem(Ar, Property->ContainerPtrToValuePtr<void>(Data, Index));
		}
	}
}

void UField::Serialize(FArchive& Ar)
{
	UObject::Serialize(Ar);
	if (!Ar.IsObjectReferenceCollector())
	{
		Ar << MetaData;
	}
}

void UStruct::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (!Ar.IsPersistent())
	{
		// A package has it in its table of objects, and it is set already: what derives from a type is read after it.
		Ar << SuperStruct;
	}
	SerializeFunctions(Ar);
	SerializeProperties(Ar);
	if (Ar.IsLoading())
	{
		StaticLink();
	}
}

void UStruct::SerializeFunctions(FArchive& Ar)
{
	TArray<UObject*> Functions;
	for (UField* Function = Children; Function; Function = Function->Next)
	{
		Functions.Add(Function);
	}
	Ar << Functions;
	if (!Ar.IsLoading())
	{
		return;
	}
	Children = nullptr;
	for (int32 Index = 0; Index < Functions.Num(); ++Index)
	{
		// A damaged file may name one twice, or another type's.
		UFunction* const Function = Cast<UFunction>(Functions[Index]);
		if (Function && Function->GetOuter() == this && Functions.Find(Functions[Index]) == Index)
		{
			Function->Next = nullptr;
			AddFunction(Function);
		}
	}
}

void UStruct::SerializeProperties(FArchive& Ar)
{
	if (!Ar.IsLoading())
	{
		TArray<FProperty*> Own;
		for (FField* Field = ChildProperties; Field; Field = Field->Next)
		{
			Own.Add(static_cast<FProperty*>(Field));
		}
		int32 Count = Own.Num();
		SerializeCount(Ar, Count);
		for (FProperty* Property : Own)
		{
			SerializeField(Ar, Property, this);
		}
		return;
	}
	DestroyChildPropertiesAndResetPropertyLinks();
	int32 Count = 0;
	SerializeCount(Ar, Count);
	for (; Count > 0 && !Ar.IsError(); --Count)
	{
		FProperty* Property = nullptr;
		SerializeField(Ar, Property, this);
		if (Property)
		{
			AddCppProperty(Property);
		}
	}
}

void UScriptStruct::InitializeStruct(void* Dest) const
{
	Ops ? Ops->Construct(Dest) : Super::InitializeStruct(Dest);
}

void UScriptStruct::DestroyStruct(void* Dest) const
{
	Ops ? Ops->Destroy(Dest) : Super::DestroyStruct(Dest);
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src) const
{
	if (Ops)
	{
		Ops->Copy(Dest, Src);
		return;
	}
	for (const FProperty* const Property : GetAllProperties())
	{
		Property->CopyCompleteValue_InContainer(Dest, Src);
	}
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (Ops && Ops->Identical)
	{
		return Ops->Identical(A, B, PortFlags);
	}
	return !GetAllProperties().ContainsByPredicate(
		[=](const FProperty* Property)
		{
		int32 Index = 0;
		while (Index < Property->ArrayDim && Property->Identical_InContainer(A, B, Index, PortFlags))
		{
			++Index;
		}
		return Index < Property->ArrayDim;
	});
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

void UFunction::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << FunctionFlags;
}
