#include "UObject/ClassReplacement.h"

#include "ObjectTable.h"
#include "ReferenceArchive.h"
#include "Serialization/ObjectReader.h"
#include "Serialization/ObjectWriter.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <utility>

namespace
{
constexpr const TCHAR* RetiredPrefix = TEXT("REINST_");
constexpr ERenameFlags Quietly = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty;

class FReplacer final : public FReferenceArchive
{
public:
	explicit FReplacer(const TMap<UObject*, UObject*>& InReplacements)
		: Replacements(InReplacements)
	{
		bWeakReferences = true;
	}

	using FReferenceArchive::operator<<;
	FArchive& operator<<(UObject*& Object) override
	{
		UObject* const* const Found = Object ? Replacements.Find(Object) : nullptr;
		Object = Found ? *Found : Object;
		return *this;
	}

private:
	const TMap<UObject*, UObject*>& Replacements;
};

void MoveFunctions(UClass* From, UClass* To)
{
	To->Children = std::exchange(From->Children, nullptr);
	for (UField* Function = To->Children; Function; Function = Function->Next)
	{
		Function->Rename(*Function->GetName(), To, Quietly);
	}
}

void MoveObjects(UClass* From, UClass* To)
{
	To->ClassDefaultObject = std::exchange(From->ClassDefaultObject, nullptr);
	if (To->ClassDefaultObject)
	{
		To->ClassDefaultObject->Rename(*To->GetDefaultObjectName().ToString(), GetTransientPackage(), Quietly);
	}
	TArray<UObject*> Objects;
	GetAllInstances(From, Objects);
	for (UObject* const Object : Objects)
	{
		FObjectTable::Get().ChangeClass(Object, To);
	}
}
}

void GetAllInstances(const UClass* Class, TArray<UObject*>& Results)
{
	FObjectTable::Get().GetInstances(Class, Results);
}

bool IsRetiredClass(const UClass* Class)
{
	return Class->GetOuter() == GetTransientPackage() && Class->GetName().StartsWith(RetiredPrefix, ESearchCase::CaseSensitive);
}

void CopyOwnProperties(const UStruct* Source, UStruct* Target)
{
	for (TFieldIterator<FProperty> Own(Source, EFieldIterationFlags::None); Own; ++Own)
	{
		TArray<uint8> Definition;
		FObjectWriter Writer(Definition);
		FProperty* Property = *Own;
		SerializeField(Writer, Property, Target);
		FObjectReader Reader(Definition);
		FProperty* Copy = nullptr;
		SerializeField(Reader, Copy, Target);
		Target->AddCppProperty(Copy);
	}
}

UClass* RetireClassLayout(UClass* Class, UClass* RetiredSuper)
{
	const FName Name = MakeUniqueObjectName(GetTransientPackage(), Class->GetClass(), FName(RetiredPrefix + Class->GetName()));
	UClass* const Retired = NewObject<UClass>(GetTransientPackage(), Class->GetClass(), Name, RF_Public | RF_Transient);
	Retired->SetSuperStruct(RetiredSuper);
	Retired->ClassConstructor = Class->ClassConstructor;
	Retired->ClassFlags = Class->ClassFlags;
	Retired->ClassConfigName = Class->ClassConfigName;
	Retired->Interfaces = Class->Interfaces;
	CopyOwnProperties(Class, Retired);
	Retired->StaticLink();
	check(Retired->GetPropertiesSize() == Class->GetPropertiesSize());
	MoveFunctions(Class, Retired);
	MoveObjects(Class, Retired);
	Class->DestroyChildPropertiesAndResetPropertyLinks();
	return Retired;
}

void ReplaceAllReferences(const TMap<UObject*, UObject*>& Replacements, const TArray<UPackage*>& Within)
{
	FReplacer Replacer(Replacements);
	const auto Visit = [&Replacer](UObject* Object)
	{
		const UClass* const Class = Cast<UClass>(Object);
		if (Object && !(Class && IsRetiredClass(Class)))
		{
			Object->Serialize(Replacer);
		}
	};
	for (const UPackage* const Package : Within)
	{
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Package, Objects);
		for (UObject* const Object : Objects)
		{
			Visit(Object);
		}
	}
	for (int32 Index = 0; Within.IsEmpty() && Index < FObjectTable::Get().GetItems().Num(); ++Index)
	{
		Visit(FObjectTable::Get().GetItems()[Index].Object);
	}
}

void ReplaceAllReferencesBut(const TSet<const UObject*>& Untouched, const TMap<UObject*, UObject*>& Replacements)
{
	FReplacer Replacer(Replacements);
	const auto VisitAll = [&](bool bTypes)
	{
		for (int32 Index = 0; Index < FObjectTable::Get().GetItems().Num(); ++Index)
		{
			UObject* const Object = FObjectTable::Get().GetItems()[Index].Object;
			const UClass* const Class = Cast<UClass>(Object);
			const bool bVisited = Object && !Untouched.Contains(Object) && !(Class && IsRetiredClass(Class));
			if (bVisited && Object->IsA<UField>() == bTypes)
			{
				Object->Serialize(Replacer);
			}
		}
	};
	// A property takes only objects of its class.
	VisitAll(true);
	VisitAll(false);
}
