#include "UObject/UObjectGlobals.h"

#include "ObjectConstruction.h"
#include "ObjectTable.h"

DEFINE_LOG_CATEGORY_STATIC(LogObj, Log, All);

namespace
{
thread_local FObjectInitializer* Innermost = nullptr;

/** Whether the object is what a search asks for. */
bool Fits(const UObject* Object, const UClass* Class, bool bExactClass)
{
	return IsValid(Object) && (!Class || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class)));
}
}

FObjectInitializer::FObjectInitializer(
	UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags, UObject* InArchetype, FObjectConstruction* InConstruction)
	: Class(InClass)
	, Outer(InOuter)
	, Name(InName)
	, Flags(InFlags)
	, Archetype(InArchetype)
	, Construction(InConstruction)
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

UObject* UObject::CreateDefaultSubobject(
	FName SubobjectName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	const FObjectInitializer& Initializer = FObjectInitializer::Get();
	checkf(Initializer.GetObj() == this && Initializer.Construction, TEXT("CreateDefaultSubobject is for constructors"));
	check(ClassToCreateByDefault->IsChildOf(ReturnType));
	if (ClassToCreateByDefault->HasAnyClassFlags(CLASS_Abstract))
	{
		checkf(!bIsRequired, TEXT("%s is abstract"), *ClassToCreateByDefault->GetName());
		return nullptr;
	}
	const EObjectFlags Flags = (GetFlags() & RF_PropagateToSubObjects) | RF_DefaultSubObject | (bIsTransient ? RF_Transient : RF_NoFlags);
	return Initializer.Construction->ConstructSubobject(ClassToCreateByDefault, this, SubobjectName, Flags, Initializer.Archetype);
}

UObject* StaticConstructObject(const UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Template)
{
	checkf(!Class->HasAnyClassFlags(CLASS_Abstract), TEXT("%s is abstract"), *Class->GetName());
	checkf(!Template || Class->IsChildOf(Template->GetClass()), TEXT("NewObject: the template is of another class"));
	UObject* const Archetype = Template ? Template : Class->GetDefaultObject();
	FObjectTable::Get().GiveWay(Outer, Name);
	const FName ObjectName = Name.IsNone() ? MakeUniqueObjectName(Outer, Class) : Name;
	FObjectConstruction Construction;
	UObject* const Object = Construction.Construct(const_cast<UClass*>(Class), Outer, ObjectName, Flags, Archetype);
	Construction.Finish();
	return Object;
}

FName MakeUniqueObjectName(const UObject* Outer, const UClass* Class, FName BaseName)
{
	const FName Base = BaseName.IsNone() ? Class->GetFName() : BaseName;
	FName Name;
	do
	{
		Name = FName(Base, ++Class->ClassUnique);
	} while (FObjectTable::Get().Find(Outer, Name));
	return Name;
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* const Outer = NewOuter ? NewOuter : OuterPrivate;
	FName Name = NewName && *NewName ? FName(NewName) : NamePrivate;
	const UObject* Holder = FObjectTable::Get().Find(Outer, Name);
	if (!NewName && Holder && Holder != this)
	{
		Name = MakeUniqueObjectName(Outer, GetClass());
		Holder = nullptr;
	}
	const bool bTaken = IsValid(Holder) && Holder != this;
	if (bTaken || (Outer && (Outer == this || Outer->IsIn(this))))
	{
		UE_LOG(LogObj, Warning, TEXT("%s can't be renamed to %s in %s: %s"), *GetPathName(), *Name.ToString(), *GetPathNameSafe(Outer),
			bTaken ? TEXT("the name is taken") : TEXT("it lies inside the object"));
		return false;
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	const bool bDirty = !(Flags & REN_DoNotDirty);
	if (!(Flags & REN_NonTransactional))
	{
		Modify(bDirty);
	}
	if (Holder != this)
	{
		FObjectTable::Get().GiveWay(Outer, Name);
	}
	if (bDirty)
	{
		MarkPackageDirty();
	}
	FObjectTable::Get().Move(this, Outer, Name);
	if (bDirty)
	{
		MarkPackageDirty();
	}
	return true;
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
	return Fits(Object, Class, bExactClass) ? Object : nullptr;
}

UObject* StaticFindObjectFast(UClass* Class, UObject* Outer, FName Name, bool bExactClass)
{
	UObject* const Object = FObjectTable::Get().Find(Outer, Name);
	return Fits(Object, Class, bExactClass) ? Object : nullptr;
}

UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options)
{
	const bool bExactClass = Options == EFindFirstObjectOptions::ExactClass;
	if (std::u16string_view(Name).find_first_of(u"./:") != std::u16string_view::npos)
	{
		return StaticFindObject(Class, nullptr, Name, bExactClass);
	}
	ProcessNewlyLoadedUObjects();
	const FName Wanted(Name);
	TArray<UObject*> Objects;
	GetObjectsOfClass(Class, Objects, !bExactClass, RF_NoFlags);
	UObject* const* const Found = Objects.FindByPredicate([Wanted](const UObject* Object) { return Object->GetFName() == Wanted; });
	return Found ? *Found : nullptr;
}
