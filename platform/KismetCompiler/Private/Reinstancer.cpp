#include "Reinstancer.h"

#include "Components/ActorComponent.h"
#include "GameFramework/Actor.h"
#include "Serialization/ObjectReader.h"
#include "Serialization/ObjectWriter.h"
#include "UObject/ClassReplacement.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <tuple>

namespace
{
constexpr ERenameFlags Quietly = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty;

int32 GetDepth(const UObject* Object)
{
	int32 Depth = 0;
	for (; Object; Object = Object->GetOuter())
	{
		++Depth;
	}
	return Depth;
}

/** A class from an earlier compile goes on with the layout of its super class that it was made for. */
void KeepOnLayout(UClass* Earlier, UClass* RetiredSuper)
{
	Earlier->SetSuperStruct(RetiredSuper);
	TArray<UClass*> Below;
	GetDerivedClasses(Earlier, Below);
	for (UClass* const Class : Below)
	{
		// It forgets the inherited properties that it has looked up.
		Class->SetSuperStruct(Class->GetSuperStruct());
	}
}
}

/** References to replaced objects become references to the new ones. */
class FReinstancer::FMappingReader final : public FObjectReader
{
public:
	FMappingReader(const TArray<uint8>& InBytes, const FReinstancer& InOwner)
		: FObjectReader(InBytes)
		, Owner(InOwner)
	{
	}

	using FObjectReader::operator<<;
	FArchive& operator<<(UObject*& Value) override
	{
		FObjectReader::operator<<(Value);
		UObject* const New = Owner.FindNew(Value);
		Value = New ? New : Value;
		return *this;
	}

private:
	const FReinstancer& Owner;
};

FReinstancer::FReinstancer(const TArray<UClass*>& InClasses)
	: Classes(InClasses)
{
	for (UClass* const Class : Classes)
	{
		TArray<UObject*> Objects;
		GetAllInstances(Class, Objects);
		for (UObject* const Object : Objects)
		{
			Capture(Object, Class);
		}
	}
	const TArray<FOld> Instances = Olds;
	for (const FOld& Old : Instances)
	{
		TArray<UObject*> Inner;
		GetObjectsWithOuter(Old.Object, Inner);
		for (UObject* const Object : Inner)
		{
			Capture(Object, nullptr);
		}
	}
	// What others are made after, and what they lie in, comes first.
	Olds.Sort(
		[](const FOld& A, const FOld& B)
		{
		const auto Rank = [](const FOld& Old) { return std::tuple(!Old.bTemplate, Old.Depth, Old.Object->GetUniqueID()); };
		return Rank(A) < Rank(B);
	});
}

void FReinstancer::Capture(UObject* Object, UClass* ReplacedClass)
{
	if (Captured.Contains(Object))
	{
		return;
	}
	Captured.Add(Object);
	UObject* const Archetype = Object->GetArchetype();
	FOld Old{ Object, Archetype, Object->GetOuter(), Object->GetFName(), ReplacedClass, Object->IsTemplate(), GetDepth(Object), {} };
	FObjectWriter Writer(Old.Values);
	Object->GetClass()->SerializeTaggedProperties(Writer, Object, Archetype->GetClass(), Archetype);
	Olds.Add(MoveTemp(Old));
}

void FReinstancer::Retire()
{
	for (UClass* const Class : Classes)
	{
		UClass* const Super = Class->GetSuperClass();
		UClass* const RetiredSuper = Retired.FindRef(Super);
		TArray<UClass*> Below;
		GetDerivedClasses(Class, Below, false);
		UClass* const Made = RetireClassLayout(Class, RetiredSuper ? RetiredSuper : Super);
		Retired.Add(Class, Made);
		for (UClass* const Derived : Below)
		{
			if (IsRetiredClass(Derived))
			{
				KeepOnLayout(Derived, Made);
			}
		}
	}
}

void FReinstancer::MakeDefaultObject(UClass* Class)
{
	UObject* const OldDefaults = GetRetired(Class)->ClassDefaultObject;
	if (!OldDefaults)
	{
		return;
	}
	Replacements.Add(OldDefaults, Class->GetDefaultObject());
	for (const FOld& Old : Olds)
	{
		if (Old.Object == OldDefaults || (!Old.ReplacedClass && Old.Object->IsIn(OldDefaults) && MakeReplacement(Old)))
		{
			ReadValues(Old);
		}
	}
}

void FReinstancer::MakeInstances()
{
	TArray<const FOld*> Made;
	for (const FOld& Old : Olds)
	{
		if (!FindNew(Old.Object) && MakeReplacement(Old))
		{
			Made.Add(&Old);
		}
	}
	// Only now, for they refer to each other.
	for (const FOld* const Old : Made)
	{
		ReadValues(*Old);
	}
}

bool FReinstancer::MakeReplacement(const FOld& Old)
{
	UObject* const NewOuter = FindNew(Old.Outer);
	UObject* const Outer = NewOuter ? NewOuter : Old.Outer;
	if (Old.Object->GetOuter() == NewOuter || (!NewOuter && !Old.ReplacedClass))
	{
		return false; // it has moved already, or stays where it is
	}
	UClass* const Class = Old.ReplacedClass ? Old.ReplacedClass : Old.Object->GetClass();
	UObject* New = NewOuter ? StaticFindObjectFast(nullptr, NewOuter, Old.Name) : nullptr;
	if (New && New->GetClass() != Class)
	{
		return false; // another kind of object has the place now
	}
	if (!New && !Old.ReplacedClass)
	{
		MoveInner(Old, NewOuter);
		return false;
	}
	New = New ? New : MakeInstance(Old, Outer);
	if (New)
	{
		Replacements.Add(Old.Object, New);
	}
	return New != nullptr;
}

UObject* FReinstancer::MakeInstance(const FOld& Old, UObject* Outer)
{
	constexpr EObjectFlags OwnMatter = RF_ClassDefaultObject | RF_NeedLoad | RF_NeedPostLoad | RF_MirroredGarbage;
	if (Old.ReplacedClass->HasAnyClassFlags(CLASS_Abstract) || Old.Object->HasAnyFlags(RF_ClassDefaultObject))
	{
		return nullptr;
	}
	if (Outer == Old.Outer)
	{
		const FName Away = MakeUniqueObjectName(GetTransientPackage(), Old.ReplacedClass, FName(TEXT("TRASH_") + Old.Name.ToString()));
		Old.Object->Rename(*Away.ToString(), GetTransientPackage(), Quietly);
	}
	UObject* const NewArchetype = FindNew(Old.Archetype);
	UObject* const Archetype = NewArchetype ? NewArchetype : Old.Archetype;
	UObject* const Template = Old.ReplacedClass->IsChildOf(Archetype->GetClass()) ? Archetype : nullptr;
	UObject* const New = NewObject<UObject>(Outer, Old.ReplacedClass, Old.Name, Old.Object->GetFlags() & ~OwnMatter, Template);
	if (!IsValid(Old.Object))
	{
		New->MarkAsGarbage();
	}
	if (Old.Object->IsRooted())
	{
		New->AddToRoot();
	}
	return New;
}

void FReinstancer::MoveInner(const FOld& Old, UObject* NewOuter)
{
	UActorComponent* const Component = Cast<UActorComponent>(Old.Object);
	if (AActor* const Owner = Component ? Component->GetOwner() : nullptr)
	{
		Owner->RemoveOwnedComponent(Component);
	}
	Old.Object->Rename(*Old.Name.ToString(), NewOuter, Quietly);
	if (AActor* const Owner = Component ? Component->GetOwner() : nullptr)
	{
		Owner->AddOwnedComponent(Component);
	}
}

void FReinstancer::ReadValues(const FOld& Old)
{
	UObject* const New = FindNew(Old.Object);
	UObject* const Archetype = New->GetArchetype();
	FMappingReader Reader(Old.Values, *this);
	New->GetClass()->SerializeTaggedProperties(Reader, New, Archetype->GetClass(), Archetype);
}

void FReinstancer::Succeed(UClass* Class, UClass* Successor)
{
	const UObject* const OldDefaults = Class->GetDefaultObject(false);
	Classes.Remove(Class);
	if (Successor)
	{
		Classes.Add(Successor);
		Retired.Add(Successor, Class);
		Replacements.Add(Class, Successor);
		for (FOld& Old : Olds)
		{
			Old.ReplacedClass = Old.ReplacedClass == Class ? Successor : Old.ReplacedClass;
			UObject* const NewOuter = OldDefaults && Old.Object->IsIn(OldDefaults) ? FindNew(Old.Outer) : nullptr;
			UObject* const Inner = NewOuter ? StaticFindObjectFast(nullptr, NewOuter, Old.Name) : nullptr;
			if (UObject* const Counterpart = Old.Object == OldDefaults ? Successor->GetDefaultObject() : Inner)
			{
				Replacements.Add(Old.Object, Counterpart);
			}
		}
	}
	// Old code may still look at its defaults; the new ones have the values of their constructor.
	Olds.RemoveAll([=](const FOld& Old) { return OldDefaults && (Old.Object == OldDefaults || Old.Object->IsIn(OldDefaults)); });
}

void FReinstancer::ReplaceReferences(const TArray<UPackage*>& Within)
{
	const TMap<UObject*, UObject*> All = GetReplacements();
	if (!All.IsEmpty())
	{
		ReplaceAllReferences(All, Within);
	}
	DiscardReplaced();
}

TMap<UObject*, UObject*> FReinstancer::GetReplacements() const
{
	TMap<UObject*, UObject*> All = Replacements;
	for (UClass* const Class : Classes)
	{
		for (TFieldIterator<UFunction> Function(GetRetired(Class), EFieldIterationFlags::None); Function; ++Function)
		{
			if (UFunction* const New = Class->FindFunctionByName(Function->GetFName(), false))
			{
				All.Add(*Function, New);
			}
		}
	}
	for (const FOld& Old : Olds)
	{
		// What could not be replaced, for its class is abstract now, is gone.
		if (Old.ReplacedClass && !FindNew(Old.Object))
		{
			All.Add(Old.Object, nullptr);
		}
	}
	return All;
}

void FReinstancer::DiscardReplaced()
{
	for (const FOld& Old : Olds)
	{
		if (Old.ReplacedClass || FindNew(Old.Object))
		{
			Old.Object->RemoveFromRoot();
			Old.Object->ClearFlags(RF_Standalone);
			Old.Object->MarkAsGarbage();
		}
	}
}
