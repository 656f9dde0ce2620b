#include "RetiredTypes.h"

#include "UObject/UObjectGlobals.h"

namespace
{
constexpr ERenameFlags Quietly = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty;

/** Types of C++ stay among the living, since their libraries do. */
void MoveToTransient(UField* Type)
{
	UClass* const Class = Cast<UClass>(Type);
	UObject* const Defaults = Class ? Class->GetDefaultObject(false) : nullptr;
	const FName Name = MakeUniqueObjectName(GetTransientPackage(), Type->GetClass(), FName(TEXT("REINST_") + Type->GetName()));
	Type->Rename(*Name.ToString(), GetTransientPackage(), Quietly);
	if (Defaults)
	{
		Defaults->Rename(*Class->GetDefaultObjectName().ToString(), GetTransientPackage(), Quietly);
	}
}
}

TArray<UField*> FRetiredTypes::FindTypes(UObject* Package)
{
	TArray<UField*> Found;
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Package, Objects, false);
	for (UObject* const Object : Objects)
	{
		if (UField* const Type = Cast<UField>(Object))
		{
			Found.Add(Type);
		}
	}
	return Found;
}

FRetiredTypes::FRetiredTypes(const TArray<FName>& Modules)
{
	for (const FName Module : Modules)
	{
		if (UPackage* const Package = FindPackage(nullptr, *(TEXT("/Script/") + Module.ToString())))
		{
			Packages.Add(Package);
			Types.Append(FindTypes(Package));
		}
	}
	for (UField* const Type : Types)
	{
		Homes.Add(Type, { Type->GetOuter(), Type->GetFName() });
	}
}

void FRetiredTypes::MoveAway()
{
	for (UField* const Type : Types)
	{
		MoveToTransient(Type);
	}
}

void FRetiredTypes::MoveBack()
{
	for (UObject* const Package : Packages)
	{
		for (UField* const Type : FindTypes(Package))
		{
			MoveToTransient(Type);
		}
	}
	for (UField* const Type : Types)
	{
		const auto& [Home, Name] = Homes[Type];
		Type->Rename(*Name.ToString(), Home, Quietly);
		UClass* const Class = Cast<UClass>(Type);
		if (UObject* const Defaults = Class ? Class->GetDefaultObject(false) : nullptr)
		{
			Defaults->Rename(*Class->GetDefaultObjectName().ToString(), Home, Quietly);
		}
	}
}

UField* FRetiredTypes::FindSuccessor(const UField* Type) const
{
	const auto& [Home, Name] = Homes[const_cast<UField*>(Type)];
	return static_cast<UField*>(StaticFindObjectFast(Type->GetClass(), Home, Name, true));
}
