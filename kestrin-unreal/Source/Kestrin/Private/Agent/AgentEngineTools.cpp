#include "Agent/Agent.h"
#include "Agent/BlueprintUtils.h"
#include "Agent/CompilationManager.h"
#include "Agent/KestrinFindUtils.h"
#include "Agent/KestrinPythonUtils.h"
#include "ScopedTransaction.h"
#include "TransactionTitle.h"

// The tools that work on the engine's side.

FString FAgent::HandleFinish(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	SetState(EAgentState::AwaitingUpdate);
	return TEXT("Finished");
}

FString FAgent::HandleExecutePythonScript(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	const FScopedTransaction Transaction(FText::FromString(GetTransactionTitle(ConversationId)), true);
	const FPythonScriptResult Result = FKestrinPythonUtils::CreateAndExecutePythonScript(Input->GetStringField(TEXT("code")));
	return FString::Printf(TEXT("%s: %s"), *Result.Output, *Result.ErrorMessage);
}

FString FAgent::HandleCompile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	StartCompilation(ToolId, ConversationMessages);
	return TEXT("Compilation executed");
}

void FAgent::StartCompilation(FString ToolId, const TArray<TSharedPtr<FJsonValue>>& Messages)
{
	TArray<TSharedPtr<FJsonObject>> Objects;
	for (const TSharedPtr<FJsonValue>& Message : Messages)
	{
		const TSharedPtr<FJsonObject>* Object = nullptr;
		if (Message.IsValid() && Message->TryGetObject(Object))
		{
			Objects.Add(*Object);
		}
	}
	FCompilationManager::CompileGameProject(ToolId, Objects);
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

FString FAgent::HandleModifyBlueprintVariables(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::ModifyBlueprint(Input->GetStringField(TEXT("blueprint_name")), Input->GetStringField(TEXT("updates")));
}

FString FAgent::HandleReadBehaviorTree(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::ReadBehaviorTree(Input->GetStringField(TEXT("behavior_tree_name")));
}

FString FAgent::HandleSaveAndCompileAllDirtyBlueprints(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints();
}

FString FAgent::HandleFindReferenceInAllFiles(const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	return FKestrinFindUtils::FindInAllFiles(Input->GetStringField(TEXT("reference_string")));
}
