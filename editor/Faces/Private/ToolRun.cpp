#include "ToolRun.h"

#include "Agent/Agent.h"
#include "CoreHost/MainLoop.h"
#include "IHotReload.h"

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
	// A compile may end later than its call.
	const IHotReloadInterface* const HotReload = IHotReloadInterface::GetPtr();
	while (HotReload && HotReload->IsCurrentlyCompiling())
	{
		FMainLoop::Wait();
		FMainLoop::Tick();
	}
	TArray<TSharedPtr<FJsonObject>> Results;
	while (Waiting.Num() > Before)
	{
		Results.Insert(Waiting.Pop()->AsObject(), 0);
	}
	if (Results.IsEmpty())
	{
		const TSharedRef<FJsonObject> None = MakeShared<FJsonObject>();
		None->SetStringField(TEXT("tool_use_id"), Id);
		None->SetStringField(TEXT("content"), TEXT("Error: The tool gave no result."));
		None->SetBoolField(TEXT("is_error"), true);
		Results.Add(None);
	}
	return Results;
}
