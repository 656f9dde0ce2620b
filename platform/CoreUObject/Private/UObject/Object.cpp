#include "UObject/Object.h"

#include "Misc/ITransaction.h"
#include "ObjectTable.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

ITransaction* GUndo = nullptr;

UObject::UObject()
{
	FObjectInitializer::Get().Identify(this);
}

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
	ObjectInitializer.Identify(this);
}

UObject::~UObject()
{
	FObjectTable::Get().Remove(this);
}

UObject* UObject::GetOutermostObject() const
{
	const UObject* Object = this;
	while (Object->OuterPrivate)
	{
		Object = Object->OuterPrivate;
	}
	return const_cast<UObject*>(Object);
}

UPackage* UObject::GetPackage() const
{
	return Cast<UPackage>(GetOutermostObject());
}

UObject* UObject::GetTypedOuter(const UClass* Target) const
{
	UObject* Outer = OuterPrivate;
	while (Outer && !Outer->IsA(Target))
	{
		Outer = Outer->OuterPrivate;
	}
	return Outer;
}

FString UObject::GetPathName(const UObject* StopOuter) const
{
	if (!OuterPrivate || OuterPrivate == StopOuter)
	{
		return GetName();
	}
	const UObject* const Above = OuterPrivate->OuterPrivate;
	const bool bBelowTopObject = Above && !Above->OuterPrivate && Above->IsA(UPackage::StaticClass());
	return OuterPrivate->GetPathName(StopOuter) + (bBelowTopObject ? TEXT(":") : TEXT(".")) + GetName();
}

FString UObject::GetFullName() const
{
	return ClassPrivate->GetName() + TEXT(" ") + GetPathName();
}

bool UObject::IsA(const UStruct* SomeBase) const
{
	return ClassPrivate->IsChildOf(SomeBase);
}

bool UObject::IsIn(const UObject* SomeOuter) const
{
	const UObject* Outer = OuterPrivate;
	while (Outer && Outer != SomeOuter)
	{
		Outer = Outer->OuterPrivate;
	}
	return Outer != nullptr;
}

bool UObject::IsTemplate(EObjectFlags TemplateTypes) const
{
	const UObject* Object = this;
	while (Object && !Object->HasAnyFlags(TemplateTypes))
	{
		Object = Object->OuterPrivate;
	}
	return Object != nullptr;
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		const UClass* const Super = ClassPrivate->GetSuperClass();
		return Super ? Super->GetDefaultObject() : nullptr;
	}
	if (OuterPrivate && OuterPrivate->OuterPrivate)
	{
		const UObject* const OuterArchetype = OuterPrivate->GetArchetype();
		UObject* const Found = OuterArchetype ? FObjectTable::Get().Find(OuterArchetype, NamePrivate) : nullptr;
		if (IsValid(Found) && IsA(Found->GetClass()))
		{
			return Found;
		}
	}
	return ClassPrivate->GetDefaultObject();
}

bool UObject::IsAsset() const
{
	constexpr EObjectFlags Never = RF_Transient | RF_ClassDefaultObject | RF_MirroredGarbage;
	const UPackage* const Package = Cast<UPackage>(OuterPrivate);
	return Package && Package->CanBeSaved() && HasAnyFlags(RF_Public) && !HasAnyFlags(Never) && !IsA(UClass::StaticClass());
}

void UObject::MarkAsGarbage()
{
	checkf(!HasAnyFlags(RF_MarkAsNative), TEXT("%s belongs to C++"), *GetPathName());
	SetFlags(RF_MirroredGarbage);
}

void UObject::AddToRoot()
{
	FObjectTable::Get().GetItem(this).bRooted = true;
}

void UObject::RemoveFromRoot()
{
	FObjectTable::Get().GetItem(this).bRooted = false;
}

bool UObject::IsRooted() const
{
	return FObjectTable::Get().GetItem(this).bRooted;
}

FStrongObjectPtr::FStrongObjectPtr(UObject* InObject)
	: Object(InObject)
{
	if (Object)
	{
		++FObjectTable::Get().GetItem(Object).StrongCount;
	}
}

FStrongObjectPtr::~FStrongObjectPtr()
{
	if (Object)
	{
		--FObjectTable::Get().GetItem(Object).StrongCount;
	}
}

void UObject::Serialize(FArchive& Ar)
{
	if (!Ar.IsObjectReferenceCollector())
	{
		// Files hold what differs from the archetype; undo and duplication want everything.
		UObject* const Archetype = Ar.IsPersistent() ? GetArchetype() : nullptr;
		ClassPrivate->SerializeTaggedProperties(Ar, this, Archetype ? Archetype->GetClass() : nullptr, Archetype);
		return;
	}
	ClassPrivate->SerializeReferences(Ar, this);
}

void UObject::ConditionalPostLoad()
{
	if (HasAnyFlags(RF_NeedPostLoad))
	{
		ClearFlags(RF_NeedPostLoad);
		PostLoad();
	}
}

void UObject::GetAssetRegistryTags(FAssetRegistryTagsContext Context) const
{
	for (TFieldIterator<FProperty> Property(ClassPrivate); Property; ++Property)
	{
		if (Property->HasAnyPropertyFlags(CPF_AssetRegistrySearchable))
		{
			FString Value;
			Property->ExportTextItem_InContainer(Value, this, nullptr, const_cast<UObject*>(this), PPF_None);
			Context.AddTag({ Property->GetFName(), Value, FAssetRegistryTag::TT_Alphabetical });
		}
	}
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	const bool bRecorded = GUndo && HasAnyFlags(RF_Transactional) && !HasAnyFlags(RF_NeedLoad);
	if (bRecorded)
	{
		GUndo->SaveObject(this);
	}
	if (bRecorded || bAlwaysMarkDirty)
	{
		MarkPackageDirty();
	}
	return bRecorded;
}

bool UObject::MarkPackageDirty() const
{
	UPackage* const Package = GetPackage();
	if (!Package || !Package->CanBeSaved() || HasAnyFlags(RF_Transient | RF_NeedLoad | RF_NeedPostLoad))
	{
		return false;
	}
	Package->SetDirtyFlag(true);
	return true;
}

UObject* UObject::GetDefaultSubobjectByName(FName SubobjectName) const
{
	UObject* const Found = FObjectTable::Get().Find(this, SubobjectName);
	return IsValid(Found) && Found->IsDefaultSubobject() ? Found : nullptr;
}

void UObject::GetDefaultSubobjects(TArray<UObject*>& OutDefaultSubobjects) const
{
	OutDefaultSubobjects.Empty();
	GetObjectsWithOuter(this, OutDefaultSubobjects, false);
	OutDefaultSubobjects.RemoveAll([](const UObject* Object) { return !Object->IsDefaultSubobject(); });
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent&) {}

UFunction* UObject::FindFunction(FName FunctionName) const
{
	return ClassPrivate->FindFunctionByName(FunctionName);
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	// Without C++ code, and no Blueprint's either: an event that nobody handles.
	if (Function->Native)
	{
		Function->Native(this, Parms);
	}
}

FString GetNameSafe(const UObject* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetPathNameSafe(const UObject* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}
