#include "Agent/Agent.h"
#include "Agent/BlueprintUtils.h"
#include "Agent/TransactionTitle.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "BlueprintPackage.h"
#include "JsonUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "ScopedTransaction.h"

// A document's sections are applied one after the other, whatever became of those before. Of the sections that there are, a document
// reaches the variables and the functions.

FString FKestrinBlueprintUtils::ModifyBlueprint(const FString& BlueprintName, const FString& Document)
{
	TSharedPtr<FJsonObject> Result = MakeShared<FJsonObject>();
	const TSharedPtr<FJsonObject> Json = ParseJsonObject(Document);
	if (!Json.IsValid())
	{
		Result->SetStringField(TEXT("Error"), TEXT("Failed to parse modification JSON."));
		return SerializeJson(Result);
	}
	UBlueprint* const Blueprint = GetBlueprintFromtBlueprintName(BlueprintName);
	if (!Blueprint)
	{
		Result->SetStringField(TEXT("Error"), FString::Printf(TEXT("Blueprint '%s' not found."), *BlueprintName));
		return SerializeJson(Result);
	}

	// Open to the end, so that one undo takes back what all sections did; what one did stays when a later step fails.
	const FScopedTransaction Transaction(FText::FromString(GetTransactionTitle(FAgent::Get().GetConversationId())), true);
	bool bChanged = false;
	const TSharedPtr<FJsonObject>* Variables = nullptr;
	if (Json->TryGetObjectField(TEXT("Variables"), Variables))
	{
		bChanged |= ModifyBlueprintVariables(Blueprint, **Variables, Result);
	}
	const TArray<TSharedPtr<FJsonValue>>* Functions = nullptr;
	if (Json->TryGetArrayField(TEXT("Functions"), Functions))
	{
		bChanged |= ModifyBlueprintFunctions(Blueprint, *Functions, Result);
	}

	if (!bChanged)
	{
		Result->SetStringField(TEXT("Message"), TEXT("No modifications were made to the Blueprint."));
		return SerializeJson(Result);
	}
	FKismetEditorUtilities::CompileBlueprint(Blueprint, EBlueprintCompileOptions::None, nullptr);
	if (SaveBlueprintPackage(Blueprint))
	{
		IAssetRegistry::GetChecked().AssetCreated(Blueprint);
		Result->SetStringField(TEXT("Success"), TEXT("Blueprint modified, compiled, and saved successfully."));
	}
	else
	{
		Result->SetStringField(TEXT("Error"), TEXT("Failed to save modified Blueprint."));
	}
	return SerializeJson(Result);
}
