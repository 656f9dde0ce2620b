#include "ToolRun.h"

#include "Agent/Agent.h"

TArray<TSharedPtr<FJsonObject>> RunTool(const FString& Name, const FString& Id, const TSharedPtr<FJsonObject>& Input)
{
	const TSharedRef<FJsonObject> Block = MakeShared<FJsonObject>();
	Block->SetStringField(TEXT("type"), TEXT("tool_use"));
	Block->SetStringField(TEXT("name"), Name);
	Block->SetStringField(TEXT("id"), Id);
	if (Input.IsValid())
	{
		Block->SetObjectField(TEXT("input"), Input);
	}

	TArray<TSharedPtr<FJsonValue>>& Waiting = FAgent::Get().GetToolResults();
	const int32 Before = Waiting.Num();
	FAgent::Get().ExecuteTool(Block);
	TArray<TSharedPtr<FJsonObject>> Results;
	while (Waiting.Num() > Before)
	{
		Results.Insert(Waiting.Pop()->AsObject(), 0);
	}
	return Results;
}
