#include "CallFace.h"

#include "JsonLine.h"
#include "ToolRun.h"

int32 RunToolCalls(const TArray<FToolCall>& Calls)
{
	bool bFailed = false;
	for (const FToolCall& Call : Calls)
	{
		FString Error;
		const TSharedPtr<FJsonObject> Input = ReadJsonObject(Call.Input, Error);
		for (const TSharedPtr<FJsonObject>& Result : RunTool(Call.Tool, TEXT("call"), Input))
		{
			const bool bIsError = Result->GetBoolField(TEXT("is_error"));
			bFailed |= bIsError;
			const TSharedRef<FJsonObject> Line = MakeShared<FJsonObject>();
			Line->SetStringField(TEXT("tool"), Call.Tool);
			Line->SetStringField(TEXT("content"), Result->GetStringField(TEXT("content")));
			Line->SetBoolField(TEXT("is_error"), bIsError);
			WriteJsonLine(Line);
		}
	}
	return bFailed ? 1 : 0;
}
