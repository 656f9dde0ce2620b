#include "ModificationSection.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "JsonUtils.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"

bool ApplySection(UBlueprint* Blueprint, FJsonObject& Result, const TCHAR* ResultKey, TFunctionRef<void(FSectionWork&)> Walk,
	const TCHAR* (*FindObstacle)(const UBlueprint& Blueprint))
{
	if (!Blueprint)
	{
		Result.SetStringField(TEXT("Error"), TEXT("Invalid Blueprint provided."));
		return false;
	}
	if (const TCHAR* const Obstacle = FindObstacle ? FindObstacle(*Blueprint) : nullptr)
	{
		Result.SetStringField(TEXT("Error"), Obstacle);
		return false;
	}
	Blueprint->Modify(true);
	FSectionWork Work{ Blueprint, false, {} };
	Walk(Work);
	SetArrayUnlessEmpty(Result, ResultKey, Work.Messages);
	if (Work.bChanged)
	{
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
	return Work.bChanged;
}

bool ApplyEntries(UBlueprint* Blueprint, const TArray<TSharedPtr<FJsonValue>>& Entries, FJsonObject& Result, const FEntrySection& Section,
	TFunctionRef<void(FSectionWork&, const FSectionEntry&)> ApplyEntry)
{
	const auto Walk = [&](FSectionWork& Work)
	{
		for (const TSharedPtr<FJsonValue>& Element : Entries)
		{
			const TSharedPtr<FJsonObject>* Json = nullptr;
			FString Name;
			FString Type;
			if (Element->TryGetObject(Json) && (*Json)->TryGetStringField(TEXT("Name"), Name) &&
				(!Section.bNeedsType || (*Json)->TryGetStringField(TEXT("Type"), Type)))
			{
				ApplyEntry(Work, { **Json, Name, Type });
			}
			else
			{
				Work.Say(Section.IncompleteEntry);
			}
		}
	};
	return ApplySection(Blueprint, Result, Section.ResultKey, Walk, Section.FindObstacle);
}

void ForEachObject(const FJsonObject& Parent, const TCHAR* Key, TFunctionRef<void(const TSharedPtr<FJsonObject>&)> Visit)
{
	const TArray<TSharedPtr<FJsonValue>>* Elements = nullptr;
	if (!Parent.TryGetArrayField(Key, Elements))
	{
		return;
	}
	for (const TSharedPtr<FJsonValue>& Element : *Elements)
	{
		const TSharedPtr<FJsonObject>* Object = nullptr;
		if (Element->TryGetObject(Object))
		{
			Visit(*Object);
		}
	}
}

FBPVariableDescription* FindVariable(UBlueprint& Blueprint, FName Name)
{
	return Blueprint.NewVariables.FindByPredicate([Name](const FBPVariableDescription& Each) { return Each.VarName == Name; });
}

UK2Node_FunctionEntry* FindFunctionEntry(const UEdGraph& Graph)
{
	TArray<UK2Node_FunctionEntry*> Entries;
	Graph.GetNodesOfClass(Entries);
	return Entries.IsEmpty() ? nullptr : Entries[0];
}
