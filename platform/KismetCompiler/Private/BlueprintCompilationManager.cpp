#include "BlueprintCompilationManager.h"

#include "ClassBuilder.h"
#include "DefaultValues.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "GraphValidation.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Misc/ITransaction.h"
#include "Reinstancer.h"
#include "UObject/ClassReplacement.h"
#include "UObject/UObjectGlobals.h"

#include <utility>

namespace
{
/** The parent class, or what stands in for one that can't be it. */
UClass* GetUsableParent(const UBlueprint& Blueprint, const UClass* Class, FCompilerResultsLog& Log)
{
	UClass* const Parent = Blueprint.ParentClass;
	if (!Parent)
	{
		Log.Error(TEXT("The parent class of @@ is gone"), &Blueprint);
		return UObject::StaticClass();
	}
	if (Class && Parent->IsChildOf(Class))
	{
		Log.Error(TEXT("@@ can't derive from @@, which derives from it"), &Blueprint, Parent);
		return UObject::StaticClass();
	}
	return Parent;
}

/** Frees the name of a class whose Blueprint is no more, but is kept by the undo buffer, say. */
void MoveAway(UObject* Object)
{
	if (Object)
	{
		const FName Away = MakeUniqueObjectName(GetTransientPackage(), Object->GetClass(), Object->GetFName());
		Object->Rename(*Away.ToString(), GetTransientPackage(), REN_NonTransactional | REN_DoNotDirty);
	}
}

/** Laid out like its parent for now. */
UBlueprintGeneratedClass* MakeClass(UBlueprint& Blueprint, UClass* Kind, const FString& Name, EObjectFlags Flags)
{
	auto* const Old = static_cast<UClass*>(StaticFindObjectFast(UClass::StaticClass(), Blueprint.GetOuter(), FName(Name)));
	if (Old && Old->ClassGeneratedBy == &Blueprint)
	{
		// Undo has gone back to before it was made.
		return CastChecked<UBlueprintGeneratedClass>(Old);
	}
	MoveAway(Old);
	MoveAway(Old ? Old->GetDefaultObject(false) : nullptr);
	auto* const Class = NewObject<UBlueprintGeneratedClass>(Blueprint.GetOuter(), Kind, FName(Name), Flags);
	Class->ClassGeneratedBy = &Blueprint;
	Class->ClassFlags = CLASS_CompiledFromBlueprint;
	Class->SetSuperStruct(Blueprint.ParentClass ? Blueprint.ParentClass.Get() : UObject::StaticClass());
	Class->StaticLink();
	Class->Bind();
	return Class;
}

/** A class of which there is nothing but itself is made anew without more ado. */
bool IsUnused(const UClass* Class)
{
	TArray<UObject*> Objects;
	TArray<UClass*> Derived;
	GetAllInstances(Class, Objects);
	GetDerivedClasses(Class, Derived, false);
	return Objects.IsEmpty() && Derived.IsEmpty();
}

void DropMembers(UClass* Class)
{
	for (UField* Function = std::exchange(Class->Children, nullptr); Function; Function = Function->Next)
	{
		Function->MarkAsGarbage();
	}
	Class->DestroyChildPropertiesAndResetPropertyLinks();
}

void BuildSkeleton(UBlueprint& Blueprint, UBlueprintGeneratedClass& Class)
{
	FCompilerResultsLog Silent;
	Silent.bSilentMode = true;
	Silent.bAnnotateMentionedNodes = false;
	Class.SetSuperStruct(GetUsableParent(Blueprint, Blueprint.GeneratedClass, Silent));
	BuildBlueprintClass(Blueprint, Class, Blueprint.GeneratedClass, Silent);
}

/** Compiles one Blueprint's class and what derives from it. */
class FCompilation
{
public:
	FCompilation(UBlueprint& InBlueprint, FCompilerResultsLog& InResults)
		: Blueprint(InBlueprint)
		, Results(InResults)
	{
	}

	/** @param Class the Blueprint's generated class, or its skeleton */
	void Run(UClass* Class)
	{
		CollectClasses(Class);
		FReinstancer Reinstancer(Classes);
		Reinstancer.Retire();
		for (UClass* const Each : Classes)
		{
			Rebuild(Each, Reinstancer.GetRetired(Each));
			Reinstancer.MakeDefaultObject(Each);
			SeedDefaults(Each, Reinstancer.GetRetired(Each));
		}
		Reinstancer.MakeInstances();
		Reinstancer.ReplaceReferences();
	}

	/** Judges the graphs of all Blueprints, whose classes are complete now. */
	void Conclude()
	{
		for (UClass* const Class : Classes)
		{
			UBlueprint* const Own = GetBlueprint(Class);
			if (!Own || Class != Own->GeneratedClass)
			{
				continue;
			}
			FCompilerResultsLog& Log = GetLog(*Own);
			ValidateGraphs(*Own, Log);
			Own->Status = Log.NumErrors > 0 ? BS_Error : Log.NumWarnings > 0 ? BS_UpToDateWithWarnings : BS_UpToDate;
		}
	}

	const TArray<UClass*>& GetClasses() const { return Classes; }
	static UBlueprint* GetBlueprint(const UClass* Class) { return UBlueprint::GetBlueprintFromClass(Class); }

private:
	/** Parents first. Retired layouts are the reinstancer's matter. */
	void CollectClasses(UClass* Class)
	{
		Classes = { Class };
		TArray<UClass*> Derived;
		GetDerivedClasses(Class, Derived);
		Derived.RemoveAll([](const UClass* Each) { return IsRetiredClass(Each); });
		const auto Rank = [](const UClass* Each)
		{
			int32 Depth = 0;
			for (const UClass* Super = Each; Super; Super = Super->GetSuperClass())
			{
				++Depth;
			}
			return std::pair(Depth, Each->GetUniqueID());
		};
		Derived.Sort([&Rank](const UClass* A, const UClass* B) { return Rank(A) < Rank(B); });
		Classes.Append(Derived);
	}

	FCompilerResultsLog& GetLog(const UBlueprint& Own)
	{
		if (&Own == &Blueprint)
		{
			return Results;
		}
		TUniquePtr<FCompilerResultsLog>& Log = Logs.FindOrAdd(&Own);
		if (!Log)
		{
			Log = MakeUnique<FCompilerResultsLog>();
			Log->SetSourcePath(Own.GetPathName());
		}
		return *Log;
	}

	void Rebuild(UClass* Class, const UClass* Previous)
	{
		UBlueprint* const Own = GetBlueprint(Class);
		auto* const Generated = Cast<UBlueprintGeneratedClass>(Class);
		if (!Own || !Generated)
		{
			// Its Blueprint could not be loaded; it goes on with what it has.
			CopyOwnProperties(Previous, Class);
			Class->StaticLink();
			return;
		}
		if (Class == Own->GeneratedClass)
		{
			FCompilerResultsLog& Log = GetLog(*Own);
			Class->SetSuperStruct(GetUsableParent(*Own, Class, Log));
			BuildBlueprintClass(*Own, *Generated, Previous, Log);
			return;
		}
		BuildSkeleton(*Own, *Generated);
	}

	void SeedDefaults(const UClass* Class, const UClass* Previous)
	{
		UBlueprint* const Own = GetBlueprint(Class);
		if (Own && Class == Own->GeneratedClass)
		{
			SeedDefaultValues(*Own, Previous, GetLog(*Own));
		}
	}

	UBlueprint& Blueprint;
	FCompilerResultsLog& Results;
	TArray<UClass*> Classes;
	TMap<const UBlueprint*, TUniquePtr<FCompilerResultsLog>> Logs;
};
}

void FBlueprintCompilationManager::CompileSynchronously(UBlueprint* Blueprint, FCompilerResultsLog& Results)
{
	check(IsInGameThread());
	if (Blueprint->bBeingCompiled)
	{
		return;
	}
	const TGuardValue<ITransaction*> NoTransaction(GUndo, GUndo);
	if (!Blueprint->GeneratedClass)
	{
		MakeGeneratedClass(Blueprint, Blueprint->GetBlueprintClass());
	}
	else if (GUndo && Blueprint->GeneratedClass->GetDefaultObject(false))
	{
		// Variables come and go, and defaults change; undo gives the values back.
		GUndo->SaveObject(Blueprint->GeneratedClass->GetDefaultObject());
	}
	GUndo = nullptr;
	Blueprint->bBeingCompiled = true;
	if (Blueprint->SkeletonGeneratedClass)
	{
		GenerateSkeleton(Blueprint);
	}
	FCompilation Compilation(*Blueprint, Results);
	Compilation.Run(Blueprint->GeneratedClass);
	Compilation.Conclude();
	Blueprint->bBeingCompiled = false;
	for (const UClass* const Class : Compilation.GetClasses())
	{
		UBlueprint* const Own = FCompilation::GetBlueprint(Class);
		if (Own && Own->GeneratedClass == Class)
		{
			Own->BroadcastCompiled();
			Own->BroadcastChanged();
		}
	}
}

void FBlueprintCompilationManager::MakeGeneratedClass(UBlueprint* Blueprint, UClass* Kind)
{
	Blueprint->GeneratedClass = MakeClass(*Blueprint, Kind, Blueprint->GetName() + TEXT("_C"), RF_Public);
}

void FBlueprintCompilationManager::GenerateSkeleton(UBlueprint* Blueprint)
{
	const TGuardValue<ITransaction*> NoTransaction(GUndo, nullptr);
	if (!Blueprint->SkeletonGeneratedClass)
	{
		const FString Name = FString::Printf(TEXT("SKEL_%s_C"), *Blueprint->GetName());
		Blueprint->SkeletonGeneratedClass = MakeClass(*Blueprint, Blueprint->GetBlueprintClass(), Name, RF_Public | RF_Transient);
	}
	UClass* const Class = Blueprint->SkeletonGeneratedClass;
	if (IsUnused(Class))
	{
		DropMembers(Class);
		BuildSkeleton(*Blueprint, *CastChecked<UBlueprintGeneratedClass>(Class));
		return;
	}
	FCompilerResultsLog Silent;
	Silent.bSilentMode = true;
	FCompilation(*Blueprint, Silent).Run(Class);
}
