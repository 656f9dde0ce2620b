#include "BlueprintCompilationManager.h"

#include "ClassBuilder.h"
#include "ClassMatch.h"
#include "DefaultValues.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "EngineLogs.h"
#include "GraphValidation.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Misc/ITransaction.h"
#include "Reinstancer.h"
#include "UObject/ClassReplacement.h"
#include "UObject/CompileOnLoad.h"
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

	/**
	 * @param Class the Blueprint's generated class, or its skeleton
	 * @param Within the packages that alone can refer to objects of the class; empty when all can
	 */
	void Run(UClass* Class, const TArray<UPackage*>& Within = {})
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
		Reinstancer.ReplaceReferences(Within);
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
			Own->CompiledStatus = Own->Status;
		}
	}

	void Tell() const
	{
		for (const UClass* const Class : Classes)
		{
			UBlueprint* const Own = GetBlueprint(Class);
			if (Own && Own->GeneratedClass == Class)
			{
				Own->BroadcastCompiled();
				Own->BroadcastChanged();
			}
		}
	}

private:
	static UBlueprint* GetBlueprint(const UClass* Class) { return UBlueprint::GetBlueprintFromClass(Class); }

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

FDelegateHandle OnLoadHandle;
/** Default values are read in a compile, and what they name is loaded; what must be compiled then waits for the end. */
bool bCompiling = false;
TArray<UPackage*> LoadedMeanwhile;

/** Those just loaded that nobody has judged yet, parents first. */
TArray<UBlueprint*> FindLoaded(const TArray<UPackage*>& Packages)
{
	TArray<TPair<int32, UBlueprint*>> Found;
	for (const UPackage* const Package : Packages)
	{
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Package, Objects, false);
		for (UObject* const Object : Objects)
		{
			UBlueprint* const Blueprint = Cast<UBlueprint>(Object);
			if (Blueprint && Blueprint->Status == BS_Unknown)
			{
				int32 Depth = 0;
				for (const UClass* Class = Blueprint->ParentClass; Class; Class = Class->GetSuperClass())
				{
					++Depth;
				}
				Found.Add({ Depth, Blueprint });
			}
		}
	}
	Found.StableSort([](const auto& A, const auto& B) { return A.Key < B.Key; });
	TArray<UBlueprint*> Blueprints;
	for (const TPair<int32, UBlueprint*>& Each : Found)
	{
		Blueprints.Add(Each.Value);
	}
	return Blueprints;
}

void CompileOutdated(const TArray<UPackage*>& Packages, const TArray<UPackage*>& Within)
{
	const TGuardValue<ITransaction*> NoTransaction(GUndo, nullptr);
	const TGuardValue<bool> Compiling(bCompiling, true);
	TArray<TUniquePtr<FCompilerResultsLog>> Logs;
	TArray<TUniquePtr<FCompilation>> Compilations;
	for (UBlueprint* const Blueprint : FindLoaded(Packages))
	{
		// The compile of a parent compiles its children.
		Blueprint->Status = Blueprint->CompiledStatus;
		if (DoesClassMatch(*Blueprint))
		{
			continue;
		}
		UE_LOG(LogBlueprint, Log, TEXT("%s: the class in the file does not match any more; it is compiled"), *Blueprint->GetPathName());
		if (!Blueprint->GeneratedClass)
		{
			FBlueprintCompilationManager::MakeGeneratedClass(Blueprint, Blueprint->GetBlueprintClass());
		}
		FCompilerResultsLog& Log = *Logs.Add_GetRef(MakeUnique<FCompilerResultsLog>());
		Log.SetSourcePath(Blueprint->GetPathName());
		const TUniquePtr<FCompilation>& Compilation = Compilations.Add_GetRef(MakeUnique<FCompilation>(*Blueprint, Log));
		Compilation->Run(Blueprint->GeneratedClass, Within);
	}
	for (const TUniquePtr<FCompilation>& Compilation : Compilations)
	{
		Compilation->Conclude();
	}
	for (const TUniquePtr<FCompilation>& Compilation : Compilations)
	{
		Compilation->Tell();
	}
}

void CompileLoadedMeanwhile()
{
	while (!bCompiling && !LoadedMeanwhile.IsEmpty())
	{
		// What was compiled refers to them by now.
		CompileOutdated(std::exchange(LoadedMeanwhile, {}), {});
	}
}

void CompileLoaded(const TArray<UPackage*>& Packages)
{
	if (bCompiling)
	{
		LoadedMeanwhile.Append(Packages);
		return;
	}
	CompileOutdated(Packages, Packages);
	CompileLoadedMeanwhile();
}
}

void FBlueprintCompilationManager::Initialize()
{
	OnLoadHandle = GetCompileOnLoadEvent().AddStatic(&CompileLoaded);
	UBlueprint::GenerateSkeleton = &GenerateSkeleton;
}

void FBlueprintCompilationManager::Shutdown()
{
	GetCompileOnLoadEvent().Remove(OnLoadHandle);
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
	FCompilation Compilation(*Blueprint, Results);
	{
		const TGuardValue<bool> Compiling(bCompiling, true);
		Blueprint->bBeingCompiled = true;
		if (Blueprint->SkeletonGeneratedClass)
		{
			GenerateSkeleton(Blueprint);
		}
		Blueprint->bSkeletonOutdated = false;
		Compilation.Run(Blueprint->GeneratedClass);
		Compilation.Conclude();
		Blueprint->bBeingCompiled = false;
	}
	CompileLoadedMeanwhile();
	Compilation.Tell();
}

void FBlueprintCompilationManager::MakeGeneratedClass(UBlueprint* Blueprint, UClass* Kind)
{
	Blueprint->GeneratedClass = MakeClass(*Blueprint, Kind, Blueprint->GetName() + TEXT("_C"), RF_Public);
}

void FBlueprintCompilationManager::GenerateSkeleton(UBlueprint* Blueprint)
{
	const TGuardValue<ITransaction*> NoTransaction(GUndo, nullptr);
	Blueprint->bSkeletonOutdated = false;
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
