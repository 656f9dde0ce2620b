#pragma once

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "MemberReference.generated.h"

/** A member's class and name, or a package-level function's package and name. */
USTRUCT()
struct ENGINE_API FSimpleMemberReference
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UObject> MemberParent;

	UPROPERTY()
	FName MemberName;

	UPROPERTY()
	FGuid MemberGuid;

	UClass* GetMemberParentClass() const { return Cast<UClass>(MemberParent); }
	void Reset() { *this = FSimpleMemberReference(); }
	bool operator==(const FSimpleMemberReference&) const = default;
};

/** What a node refers to: a function or property of its own Blueprint ("self"), of another class, or of a function (a local variable). */
USTRUCT()
struct ENGINE_API FMemberReference
{
	GENERATED_BODY()

	/** A member of a class; null for a package-level delegate signature. */
	void SetExternalMember(FName InMemberName, UClass* InMemberParentClass);
	void SetGlobalField(FName InFieldName, UPackage* InParentPackage);
	void SetSelfMember(FName InMemberName, const FGuid& InMemberGuid = FGuid());
	/** A variable of the function named InScopeName. */
	void SetLocalMember(FName InMemberName, const FString& InScopeName, const FGuid& InMemberGuid);
	/** Of an own member the class is left open, so that it follows the Blueprint. */
	void SetFromField(const UFunction* Function, bool bIsConsideredSelfContext);
	void SetFromField(const FProperty* Property, bool bIsConsideredSelfContext);
	void SetDirect(FName InMemberName, const FGuid& InMemberGuid, UClass* InMemberParentClass, bool bIsConsideredSelfContext);

	FName GetMemberName() const { return MemberName; }
	const FGuid& GetMemberGuid() const { return MemberGuid; }
	bool IsSelfContext() const { return bSelfContext; }
	bool IsLocalScope() const { return !MemberScope.IsEmpty(); }
	const FString& GetMemberScopeName() const { return MemberScope; }
	UClass* GetMemberParentClass() const { return Cast<UClass>(MemberParent); }
	/** Null for a local variable and for a package. */
	UClass* GetMemberParentClass(UClass* SelfScope) const { return bSelfContext ? SelfScope : GetMemberParentClass(); }
	UPackage* GetMemberParentPackage() const { return Cast<UPackage>(MemberParent); }
	void InvalidateScope() { *this = FMemberReference(); }

	/** The member in the class that is meant, or null. T is UFunction or a kind of FProperty. */
	template <typename T>
	T* ResolveMember(UClass* SelfScope = nullptr) const
	{
		if constexpr (std::is_base_of_v<FProperty, T>)
		{
			return CastField<T>(ResolveProperty(SelfScope));
		}
		else
		{
			return Cast<T>(ResolveFunction(SelfScope));
		}
	}

	bool operator==(const FMemberReference&) const = default;

private:
	UFunction* ResolveFunction(UClass* SelfScope) const;
	FProperty* ResolveProperty(UClass* SelfScope) const;

	UPROPERTY()
	TObjectPtr<UObject> MemberParent;

	UPROPERTY()
	FString MemberScope;

	UPROPERTY()
	FName MemberName;

	UPROPERTY()
	FGuid MemberGuid;

	UPROPERTY()
	bool bSelfContext = false;
};
