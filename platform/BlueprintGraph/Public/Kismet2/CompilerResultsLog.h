#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "Logging/TokenizedMessage.h"

/** What "@@" in a message stands for: a node by its title, another object by its name, a pin, a property, a text. */
struct BLUEPRINTGRAPH_API FCompilerMessageToken
{
	FCompilerMessageToken(const UObject* Object);
	FCompilerMessageToken(const UEdGraphPin* Pin);
	FCompilerMessageToken(const FField* Field);
	FCompilerMessageToken(const FString& InText)
		: Text(InText)
	{
	}
	FCompilerMessageToken(const TCHAR* InText)
		: Text(InText)
	{
	}

	FString Text;
	/** The object, or the pin's node. */
	UObject* Subject = nullptr;
};

/**
 * What the compile of a Blueprint found. Each message is a line of the global log as well, unless bSilentMode is set, and a node that a
 * message names keeps the text in ErrorMsg, unless bAnnotateMentionedNodes is cleared.
 */
class BLUEPRINTGRAPH_API FCompilerResultsLog
{
public:
	/** In the order in which they came. */
	TArray<TSharedRef<FTokenizedMessage>> Messages;
	int32 NumErrors = 0;
	int32 NumWarnings = 0;
	bool bSilentMode = false;
	bool bAnnotateMentionedNodes = true;

	/** What is compiled; stands at the head of each line in the global log. */
	void SetSourcePath(const FString& InSourcePath) { SourcePath = InSourcePath; }

	/** Each "@@" in the text is replaced by the next argument, see FCompilerMessageToken. */
	template <typename... ArgTypes>
	void Error(const TCHAR* Format, const ArgTypes&... Args)
	{
		Add(EMessageSeverity::Error, Format, { FCompilerMessageToken(Args)... });
	}
	template <typename... ArgTypes>
	void Warning(const TCHAR* Format, const ArgTypes&... Args)
	{
		Add(EMessageSeverity::Warning, Format, { FCompilerMessageToken(Args)... });
	}
	template <typename... ArgTypes>
	void Note(const TCHAR* Format, const ArgTypes&... Args)
	{
		Add(EMessageSeverity::Info, Format, { FCompilerMessageToken(Args)... });
	}

	/** Takes over another log's messages, which have been logged already. */
	void Append(const FCompilerResultsLog& Other);

private:
	void Add(EMessageSeverity::Type Severity, const FString& Format, const TArray<FCompilerMessageToken>& Tokens);

	FString SourcePath;
};
