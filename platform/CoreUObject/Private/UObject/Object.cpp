#include "UObject/Object.h"

#include "ObjectTable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

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

FString UObject::GetPathName() const
{
	if (!OuterPrivate)
	{
		return GetName();
	}
	const UObject* const Above = OuterPrivate->OuterPrivate;
	const bool bBelowTopObject = Above && !Above->OuterPrivate && Above->IsA(UPackage::StaticClass());
	return OuterPrivate->GetPathName() + (bBelowTopObject ? TEXT(":") : TEXT(".")) + GetName();
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

void UObject::PostEditChangeProperty(FPropertyChangedEvent&) {}

UFunction* UObject::FindFunction(FName FunctionName) const
{
	return ClassPrivate->FindFunctionByName(FunctionName);
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	check(IsA(Function->GetOwnerClass()));
	Function->Native(this, Parms);
}

FString GetNameSafe(const UObject* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetPathNameSafe(const UObject* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}
