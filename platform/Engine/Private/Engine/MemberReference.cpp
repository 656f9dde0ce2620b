#include "Engine/MemberReference.h"

void FMemberReference::SetDirect(FName InMemberName, const FGuid& InMemberGuid, UClass* InMemberParentClass, bool bIsConsideredSelfContext)
{
	*this = FMemberReference();
	MemberName = InMemberName;
	MemberGuid = InMemberGuid;
	bSelfContext = bIsConsideredSelfContext;
	MemberParent = InMemberParentClass;
}

void FMemberReference::SetExternalMember(FName InMemberName, UClass* InMemberParentClass)
{
	SetDirect(InMemberName, FGuid(), InMemberParentClass, false);
}

void FMemberReference::SetGlobalField(FName InFieldName, UPackage* InParentPackage)
{
	SetDirect(InFieldName, FGuid(), nullptr, false);
	MemberParent = InParentPackage;
}

void FMemberReference::SetSelfMember(FName InMemberName, const FGuid& InMemberGuid)
{
	SetDirect(InMemberName, InMemberGuid, nullptr, true);
}

void FMemberReference::SetLocalMember(FName InMemberName, const FString& InScopeName, const FGuid& InMemberGuid)
{
	SetDirect(InMemberName, InMemberGuid, nullptr, false);
	MemberScope = InScopeName;
}

void FMemberReference::SetFromField(const UFunction* Function, bool bIsConsideredSelfContext)
{
	SetDirect(Function->GetFName(), FGuid(), bIsConsideredSelfContext ? nullptr : Function->GetOwnerClass(), bIsConsideredSelfContext);
	if (!bSelfContext && !MemberParent)
	{
		MemberParent = Function->GetPackage();
	}
}

void FMemberReference::SetFromField(const FProperty* Property, bool bIsConsideredSelfContext)
{
	SetDirect(Property->GetFName(), FGuid(), bIsConsideredSelfContext ? nullptr : Property->GetOwnerClass(), bIsConsideredSelfContext);
}

UFunction* FMemberReference::ResolveFunction(UClass* SelfScope) const
{
	if (UPackage* const Package = GetMemberParentPackage())
	{
		return FindObject<UFunction>(Package, *MemberName.ToString());
	}
	const UClass* const Class = GetMemberParentClass(SelfScope);
	return Class ? Class->FindFunctionByName(MemberName) : nullptr;
}

FProperty* FMemberReference::ResolveProperty(UClass* SelfScope) const
{
	if (IsLocalScope())
	{
		const UFunction* const Function = SelfScope ? SelfScope->FindFunctionByName(FName(MemberScope)) : nullptr;
		return Function ? Function->FindPropertyByName(MemberName) : nullptr;
	}
	const UClass* const Class = GetMemberParentClass(SelfScope);
	return Class ? Class->FindPropertyByName(MemberName) : nullptr;
}
