#include "UObject/UObjectGlobals.h"

#include "ObjectTable.h"
#include "UObject/UnrealType.h"

namespace
{
thread_local FObjectInitializer* Innermost = nullptr;

/** "Lantern_0", "Lantern_1" and so on; the first that is free in Outer. */
FName MakeUniqueName(const UClass* Class, const UObject* Outer)
{
	FName Name;
	do
	{
		Name = FName(Class->GetFName(), ++Class->ClassUnique);
	} while (FObjectTable::Get().Find(Outer, Name));
	return Name;
}

/** Template's values, for an object whose constructor has run. */
void CopyProperties(UObject* Object, const UObject* Template, uint64 Flags)
{
	for (TFieldIterator<FProperty> Property(Template->GetClass()); Property; ++Property)
	{
		if (Flags == CPF_None || Property->HasAnyPropertyFlags(Flags))
		{
			Property->CopyCompleteValue_InContainer(Object, Template);
		}
	}
}
}

FObjectInitializer::FObjectInitializer(UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags)
	: Class(InClass)
	, Outer(InOuter)
	, Name(InName)
	, Flags(InFlags)
	, Previous(Innermost)
{
	Innermost = this;
}

FObjectInitializer::~FObjectInitializer()
{
	Innermost = Previous;
}

const FObjectInitializer& FObjectInitializer::Get()
{
	checkf(Innermost, TEXT("an object can be made by NewObject alone"));
	return *Innermost;
}

void FObjectInitializer::Identify(UObject* InObject) const
{
	checkf(!Object, TEXT("an object can be made by NewObject alone"));
	Object = InObject;
	Object->ClassPrivate = Class;
	Object->OuterPrivate = Outer;
	Object->NamePrivate = Name;
	Object->ObjectFlags = Flags;
	FObjectTable::Get().Add(Object);
}

UObject* StaticConstructObject(const UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Template)
{
	checkf(!Class->HasAnyClassFlags(CLASS_Abstract), TEXT("%s is abstract"), *Class->GetName());
	checkf(!Template || Class->IsChildOf(Template->GetClass()), TEXT("NewObject: the template is of another class"));
	const UObject* const Defaults = Class->GetDefaultObject();
	const FName ObjectName = Name.IsNone() ? MakeUniqueName(Class, Outer) : Name;
	UObject* const Object = AllocateObject(const_cast<UClass*>(Class), Outer, ObjectName, Flags);
	if (Template)
	{
		CopyProperties(Object, Template, CPF_None);
	}
	else
	{
		CopyProperties(Object, Defaults, CPF_Config);
	}
	Object->PostInitProperties();
	return Object;
}

UObject* StaticFindObject(UClass* Class, UObject* Outer, const TCHAR* Name, bool bExactClass)
{
	ProcessNewlyLoadedUObjects();
	const FObjectTable& Table = FObjectTable::Get();
	UObject* Object = Outer;
	std::u16string_view Rest(Name);
	for (bool bMore = true; bMore;)
	{
		const SIZE_T End = Rest.find_first_of(u".:");
		Object = Table.Find(Object, FName(FString(Rest.substr(0, End))));
		bMore = Object && End != std::u16string_view::npos;
		Rest.remove_prefix(bMore ? End + 1 : 0);
	}
	const bool bFits = Object && (!Class || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class)));
	return bFits ? Object : nullptr;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	UObject* const Found = FObjectTable::Get().Find(nullptr, PackageName);
	return static_cast<UPackage*>(Found ? Found : AllocateObject(UPackage::StaticClass(), nullptr, PackageName, RF_Public));
}

UPackage* GetTransientPackage()
{
	static UPackage* const Package = []
	{
		UPackage* const New = CreatePackage(TEXT("/Engine/Transient"));
		New->AddToRoot();
		return New;
	}();
	return Package;
}
