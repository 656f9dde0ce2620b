#include "ClassRelations.h"

#include "EdGraphSchema_K2.h"

bool DerivesFrom(const UClass* Class, const UClass* Base)
{
	const auto Authoritative = [](const UClass* Each) { return UEdGraphSchema_K2::GetAuthoritativeClass(const_cast<UClass*>(Each)); };
	const UClass* const AuthoritativeBase = Authoritative(Base);
	while (Class && Authoritative(Class) != AuthoritativeBase)
	{
		Class = Class->GetSuperClass();
	}
	return Class && Base;
}

bool HasInterface(const UClass* Class, const UClass* Interface)
{
	return Class && Interface &&
		(DerivesFrom(Class, Interface) ||
			Class->ImplementsInterface(UEdGraphSchema_K2::GetAuthoritativeClass(const_cast<UClass*>(Interface))) ||
			Class->ImplementsInterface(Interface));
}

bool IsClassOf(const UBlueprint& Blueprint, const UClass* Class)
{
	const UClass* const Own = Blueprint.GetSkeletonOrGeneratedClass();
	return Class && (Class->ClassGeneratedBy == &Blueprint || DerivesFrom(Own ? Own : Blueprint.ParentClass.Get(), Class));
}

UFunction* ResolveFunction(const FMemberReference& Reference, const UK2Node& Node)
{
	return Reference.ResolveMember<UFunction>(Reference.IsSelfContext() ? Node.GetBlueprintClassFromNode() : nullptr);
}
