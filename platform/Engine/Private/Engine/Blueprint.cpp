#include "Engine/Blueprint.h"

#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/TimelineTemplate.h"
#include "EngineLogs.h"
#include "UObject/AssetRegistryTagsContext.h"

DEFINE_LOG_CATEGORY(LogBlueprint);

void FBPVariableDescription::SetMetaData(FName Key, FString Value)
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	FBPVariableMetaDataEntry& Entry = Index == INDEX_NONE ? MetaDataArray.AddDefaulted_GetRef() : MetaDataArray[Index];
	Entry.DataKey = Key;
	Entry.DataValue = MoveTemp(Value);
}

int32 FBPVariableDescription::FindMetaDataEntryIndexForKey(FName Key) const
{
	return MetaDataArray.IndexOfByPredicate([Key](const FBPVariableMetaDataEntry& Entry) { return Entry.DataKey == Key; });
}

const FString& FBPVariableDescription::GetMetaData(FName Key) const
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	checkf(Index != INDEX_NONE, TEXT("%s has no metadata %s"), *VarName.ToString(), *Key.ToString());
	return MetaDataArray[Index].DataValue;
}

void FBPVariableDescription::RemoveMetaData(FName Key)
{
	const int32 Index = FindMetaDataEntryIndexForKey(Key);
	if (Index != INDEX_NONE)
	{
		MetaDataArray.RemoveAt(Index);
	}
}

void (*UBlueprint::GenerateSkeleton)(UBlueprint* Blueprint) = nullptr;

UClass* UBlueprint::GetSkeletonOrGeneratedClass() const
{
	if (bSkeletonOutdated && !bBeingCompiled)
	{
		GenerateSkeleton(const_cast<UBlueprint*>(this));
	}
	return SkeletonGeneratedClass ? SkeletonGeneratedClass : GeneratedClass;
}

void UBlueprint::GetAllGraphs(TArray<UEdGraph*>& Graphs) const
{
	const auto Add = [&Graphs](const TArray<TObjectPtr<UEdGraph>>& List)
	{
		for (UEdGraph* const Graph : List)
		{
			if (Graph)
			{
				Graphs.Add(Graph);
				Graph->GetAllChildrenGraphs(Graphs);
			}
		}
	};
	for (const auto* const List : { &FunctionGraphs, &MacroGraphs, &UbergraphPages, &DelegateSignatureGraphs })
	{
		Add(*List);
	}
	for (const FBPInterfaceDescription& Each : ImplementedInterfaces)
	{
		Add(Each.Graphs);
	}
}

UTimelineTemplate* UBlueprint::FindTimelineTemplateByVariableName(FName TimelineName) const
{
	const auto* const Found = Timelines.FindByPredicate(
		[TimelineName](const UTimelineTemplate* Timeline) { return Timeline && Timeline->GetVariableName() == TimelineName; });
	return Found ? Found->Get() : nullptr;
}

UBlueprint* UBlueprint::GetBlueprintFromClass(const UClass* InClass)
{
	return InClass ? Cast<UBlueprint>(InClass->ClassGeneratedBy) : nullptr;
}

UClass* UBlueprint::GetBlueprintClass() const
{
	return UBlueprintGeneratedClass::StaticClass();
}

void UBlueprint::GetAssetRegistryTags(FAssetRegistryTagsContext Context) const
{
	Super::GetAssetRegistryTags(Context);
	const auto Add = [&Context](FName Name, const UClass* Class)
	{
		const FString Value =
			Class ? FString::Printf(TEXT("%s'%s'"), *Class->GetClass()->GetPathName(), *Class->GetPathName()) : FString(TEXT("None"));
		Context.AddTag(FAssetRegistryTag(Name, Value, FAssetRegistryTag::TT_Hidden));
	};
	const UClass* Native = ParentClass;
	while (Native && Native->HasAnyClassFlags(CLASS_CompiledFromBlueprint))
	{
		Native = Native->GetSuperClass();
	}
	Add(FName(TEXT("GeneratedClass")), GeneratedClass);
	Add(FName(TEXT("ParentClass")), ParentClass);
	Add(FName(TEXT("NativeParentClass")), Native);
}

void UBlueprint::PostLoad()
{
	Super::PostLoad();
	Status = BS_Unknown;
	if (!ParentClass)
	{
		UE_LOG(LogBlueprint, Error, TEXT("%s: the parent class is gone; it derives from Object now"), *GetPathName());
		ParentClass = UObject::StaticClass();
		Status = BS_Error;
	}
}
