#include "Agent/Agent.h"
#include "Agent/BlueprintUtils.h"

// The tools that work on the engine's side.

FString FAgent::HandleFinish(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	SetState(EAgentState::AwaitingUpdate);
	return TEXT("Finished");
}

FString FAgent::HandleCreateBlueprint(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::CreateBlueprintAsset(
		Input->GetStringField(TEXT("BPPath")), Input->GetStringField(TEXT("BPName")), Input->GetStringField(TEXT("BPParentClassName")));
}

FString FAgent::HandleReadBlueprint(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::ReadBlueprint(Input->GetStringField(TEXT("blueprint_name")), Input->GetStringField(TEXT("data_subset")));
}

FString FAgent::HandleReadBehaviorTree(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::ReadBehaviorTree(Input->GetStringField(TEXT("behavior_tree_name")));
}

FString FAgent::HandleSaveAndCompileAllDirtyBlueprints(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
}
