#include "ModuleTypesReload.h"

#include "BlueprintCompilationManager.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Misc/ITransaction.h"
#include "Reinstancer.h"
#include "RetiredTypes.h"
#include "TypeReferences.h"
#include "UObject/ClassReplacement.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

namespace
{
/** The type that an object is or is a part of; null for other objects. */
UField* GetType(UObject* Object)
{
	UField* Type = nullptr;
	for (; Object; Object = Object->GetOuter())
	{
		UField* const Outer = Cast<UField>(Object);
		Type = Outer ? Outer : Type;
	}
	return Type;
}

bool IsBlueprintClass(const UClass* Class)
{
	return Class->IsA<UBlueprintGeneratedClass>() && !IsRetiredClass(Class) && UBlueprint::GetBlueprintFromClass(Class);
}

int32 GetDepth(const UClass* Class)
{
	int32 Depth = 0;
	for (; Class; Class = Class->GetSuperClass())
	{
		++Depth;
	}
	return Depth;
}

/** Super classes first. */
void Sort(TArray<UClass*>& Classes)
{
	Classes.StableSort([](const UClass* A, const UClass* B) { return GetDepth(A) < GetDepth(B); });
}
}

struct FModuleTypesReload::FImpl
{
	explicit FImpl(const TArray<FName>& Modules)
		: Old(Modules)
		, Natives(GetNatives(Old))
	{
		for (TObjectIterator<UClass> Class; Class; ++Class)
		{
			if (IsBlueprintClass(*Class) && IsMadeOfOldTypes(*Class))
			{
				Blueprints.AddUnique(UBlueprint::GetBlueprintFromClass(*Class));
			}
		}
		FreezeTypeTags();
		Reinstancer = MakeUnique<FReinstancer>(Natives);
		Old.MoveAway();
	}

	FRetiredTypes Old;
	TArray<UClass*> Natives;
	/** Those whose classes have the layout of old types in them. */
	TArray<UBlueprint*> Blueprints;
	TUniquePtr<FReinstancer> Reinstancer;

	static TArray<UClass*> GetNatives(const FRetiredTypes& Types)
	{
		TArray<UClass*> Classes;
		for (UField* const Type : Types.GetTypes())
		{
			if (UClass* const Class = Cast<UClass>(Type))
			{
				Classes.Add(Class);
			}
		}
		Sort(Classes);
		return Classes;
	}

	bool IsMadeOfOldTypes(UClass* Class) const
	{
		const auto IsLayout = [this](const UObject* Object) { return Old.Contains(Object) && !Object->IsA<UClass>(); };
		FReferenceFinder Finder(IsLayout);
		TArray<UObject*> Parts{ Class };
		GetObjectsWithOuter(Class, Parts);
		return Natives.ContainsByPredicate([Class](const UClass* Native) { return Class->IsChildOf(Native); }) ||
			Parts.ContainsByPredicate([&Finder](UObject* Part) { return Part->IsA<UField>() && Finder.Find(Part); });
	}

	/** Values are found again by their types' names, which are made on first use: this is before the types lose them. */
	void FreezeTypeTags() const
	{
		TArray<UStruct*> Structs;
		for (UField* const Type : Old.GetTypes())
		{
			if (UStruct* const Struct = Cast<UStruct>(Type))
			{
				Structs.Add(Struct);
			}
		}
		for (TObjectIterator<UClass> Class; Class; ++Class)
		{
			if (IsBlueprintClass(*Class))
			{
				Structs.Add(*Class);
			}
		}
		for (const UStruct* const Struct : Structs)
		{
			for (TFieldIterator<FProperty> Property(Struct, EFieldIterationFlags::None); Property; ++Property)
			{
				Property->GetTypeTag();
			}
		}
	}

	/** The types' own parts and defaults do not count. */
	bool IsPartOfOld(UObject* Object) const
	{
		const UField* const Type = GetType(Object);
		return (Type && Old.Contains(Type)) || (Object->HasAnyFlags(RF_ClassDefaultObject) && Old.Contains(Object->GetClass()));
	}

	void AddMissingNeeded(TArray<FString>& Obstacles) const
	{
		TSet<const UObject*> Missing;
		for (const UField* const Type : Old.GetTypes())
		{
			if (!Old.FindSuccessor(Type))
			{
				Missing.Add(Type);
			}
		}
		if (Missing.IsEmpty())
		{
			return;
		}
		// What is about to go needs nothing.
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		const auto IsMissing = [&Missing](const UObject* Object) { return Missing.Contains(Object); };
		FReferenceFinder Finder(IsMissing);
		TMap<const UObject*, UObject*> Needed;
		for (TObjectIterator<UObject> Object; Object; ++Object)
		{
			const UClass* const Class = Cast<UClass>(GetType(*Object));
			if (IsPartOfOld(*Object) || (Class && IsRetiredClass(Class)))
			{
				continue;
			}
			// What is never saved may go on naming a type that is gone, as long as it is not made of it.
			const bool bSaved = Object->GetOutermost() != GetTransientPackage();
			const UObject* const Named = bSaved ? Finder.Find(*Object) : nullptr;
			const UObject* const Found = IsMissing(Object->GetClass()) ? Object->GetClass() : Named;
			if (Found && !Needed.Contains(Found))
			{
				Needed.Add(Found, *Object);
			}
		}
		for (const auto& [Type, By] : Needed)
		{
			Obstacles.Add(FString::Printf(TEXT("the type %s is gone, but %s needs it; the old module stays"),
				*Old.GetName(static_cast<const UField*>(Type)), *By->GetPathName()));
		}
	}

	/** Types of other modules and struct assets keep the layouts that they were made with. */
	void AddUnchangeable(TArray<FString>& Obstacles) const
	{
		const auto IsLayout = [this](const UObject* Object) { return Old.Contains(Object) && !Object->IsA<UClass>(); };
		FReferenceFinder Finder(IsLayout);
		for (TObjectIterator<UStruct> Struct; Struct; ++Struct)
		{
			const UClass* const Class = Cast<UClass>(*Struct);
			if (Old.Contains(*Struct) || Struct->IsA<UFunction>() || (Class && (IsBlueprintClass(Class) || IsRetiredClass(Class))))
			{
				continue;
			}
			const bool bDerived = Natives.ContainsByPredicate([&Struct](const UClass* Native) { return Struct->IsChildOf(Native); });
			const UObject* const Super = bDerived ? Struct->GetSuperStruct() : nullptr;
			if (const UObject* const Used = Super ? Super : Finder.Find(*Struct))
			{
				Obstacles.Add(FString::Printf(TEXT("%s is made with %s and can't be changed while the editor runs; the old module stays"),
					*Struct->GetPathName(), *Used->GetName().Replace(TEXT("REINST_"), TEXT(""))));
			}
		}
	}

	TMap<UObject*, UObject*> GetReplacements()
	{
		TMap<UObject*, UObject*> Replacements;
		for (UField* const Type : Old.GetTypes())
		{
			UField* const Successor = Old.FindSuccessor(Type);
			if (UClass* const Class = Cast<UClass>(Type))
			{
				Reinstancer->Succeed(Class, static_cast<UClass*>(Successor));
			}
			if (Successor)
			{
				Replacements.Add(Type, Successor);
			}
		}
		Reinstancer->MakeInstances();
		Replacements.Append(Reinstancer->GetReplacements());
		return Replacements;
	}

	/** Variables may refer to the new objects from now on. */
	void TakeObjectsOfNewClasses(const TMap<UObject*, UObject*>& Replacements) const
	{
		FClassReplacer Replacer(Replacements);
		for (const UBlueprint* const Blueprint : Blueprints)
		{
			for (const UClass* const Class : { Blueprint->GeneratedClass.Get(), Blueprint->SkeletonGeneratedClass.Get() })
			{
				if (Class)
				{
					Replacer.Visit(Class);
				}
			}
		}
	}

	/** The Blueprints' classes go on with their old layout until they are compiled, in which their objects get the new one. */
	TSet<const UObject*> GetUntouched() const
	{
		TSet<const UObject*> Untouched;
		const auto Add = [&Untouched](UObject* Type)
		{
			TArray<UObject*> Parts{ Type };
			GetObjectsWithOuter(Type, Parts);
			for (UObject* const Part : Parts)
			{
				if (Part->IsA<UField>())
				{
					Untouched.Add(Part);
				}
			}
		};
		for (UField* const Type : Old.GetTypes())
		{
			Add(Type);
		}
		for (const UBlueprint* const Blueprint : Blueprints)
		{
			for (UClass* const Class : { Blueprint->GeneratedClass.Get(), Blueprint->SkeletonGeneratedClass.Get() })
			{
				if (Class)
				{
					Add(Class);
				}
			}
		}
		return Untouched;
	}

	/** Compiling one compiles those below it. */
	void CompileBlueprints() const
	{
		TArray<UClass*> Roots;
		for (const UBlueprint* const Blueprint : Blueprints)
		{
			const UBlueprint* const Parent = UBlueprint::GetBlueprintFromClass(Blueprint->ParentClass);
			if (Blueprint->GeneratedClass && !(Parent && Blueprints.Contains(const_cast<UBlueprint*>(Parent))))
			{
				Roots.Add(Blueprint->GeneratedClass);
			}
		}
		Sort(Roots);
		for (const UClass* const Root : Roots)
		{
			UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Root);
			FCompilerResultsLog Log;
			Log.SetSourcePath(Blueprint->GetPathName());
			FBlueprintCompilationManager::CompileSynchronously(Blueprint, Log);
		}
	}
};

FModuleTypesReload::FModuleTypesReload(const TArray<FName>& Modules)
	: Impl(MakeUnique<FImpl>(Modules))
{
}

FModuleTypesReload::~FModuleTypesReload() = default;

void FModuleTypesReload::MakeNewTypes()
{
	ProcessNewlyLoadedUObjects();
}

TArray<FString> FModuleTypesReload::FindObstacles() const
{
	TArray<FString> Obstacles;
	Impl->AddMissingNeeded(Obstacles);
	Impl->AddUnchangeable(Obstacles);
	return Obstacles;
}

void FModuleTypesReload::ChangeOver()
{
	const TGuardValue<ITransaction*> NoTransaction(GUndo, nullptr);
	const TMap<UObject*, UObject*> Replacements = Impl->GetReplacements();
	Impl->TakeObjectsOfNewClasses(Replacements);
	ReplaceAllReferencesBut(Impl->GetUntouched(), Replacements);
	Impl->Reinstancer->DiscardReplaced();
	Impl->CompileBlueprints();
}

void FModuleTypesReload::GoBack()
{
	Impl->Old.MoveBack();
}
