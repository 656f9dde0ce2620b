#include "Kismet2/CompilerResultsLog.h"

#include "EdGraph/EdGraphNode.h"
#include "EngineLogs.h"

namespace
{
/** "@@" is replaced in the order of the tokens; one beyond them stays. */
FString ReplaceTokens(const FString& Format, const TArray<FCompilerMessageToken>& Tokens)
{
	FString Result;
	int32 Begin = 0;
	for (const FCompilerMessageToken& Token : Tokens)
	{
		const int32 Place = Format.Find(TEXT("@@"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Begin);
		if (Place == INDEX_NONE)
		{
			break;
		}
		Result += Format.Mid(Begin, Place - Begin) + Token.Text;
		Begin = Place + 2;
	}
	return Result + Format.Mid(Begin);
}

UObject* FindSubject(const TArray<FCompilerMessageToken>& Tokens)
{
	const FCompilerMessageToken* const Found =
		Tokens.FindByPredicate([](const FCompilerMessageToken& Token) { return Token.Subject != nullptr; });
	return Found ? Found->Subject : nullptr;
}

/** The worst message is the one that shows. */
void Annotate(UEdGraphNode& Node, EMessageSeverity::Type Severity, const FString& Text)
{
	if (!Node.bHasCompilerMessage || Severity < Node.ErrorType)
	{
		Node.ErrorMsg = Text;
		Node.ErrorType = Severity;
	}
	Node.bHasCompilerMessage = true;
}
}

FCompilerMessageToken::FCompilerMessageToken(const UObject* Object)
	: Text(GetNameSafe(Object))
	, Subject(const_cast<UObject*>(Object))
{
	if (const UEdGraphNode* const Node = Cast<UEdGraphNode>(Object))
	{
		Text = Node->GetNodeTitle(ENodeTitleType::ListView).ToString();
	}
}

FCompilerMessageToken::FCompilerMessageToken(const UEdGraphPin* Pin)
	: Text(Pin->GetDisplayName().ToString())
	, Subject(Pin->GetOwningNode())
{
}

FCompilerMessageToken::FCompilerMessageToken(const FField* Field)
	: Text(Field->GetName())
{
}

void FCompilerResultsLog::Append(const FCompilerResultsLog& Other)
{
	Messages.Append(Other.Messages);
	NumErrors += Other.NumErrors;
	NumWarnings += Other.NumWarnings;
}

void FCompilerResultsLog::Add(EMessageSeverity::Type Severity, const FString& Format, const TArray<FCompilerMessageToken>& Tokens)
{
	const FString Text = ReplaceTokens(Format, Tokens);
	Messages.Add(MakeShared<FTokenizedMessage>(Severity, FText::FromString(Text), FindSubject(Tokens)));
	NumErrors += Severity == EMessageSeverity::Error;
	NumWarnings += Severity == EMessageSeverity::Warning;
	for (const FCompilerMessageToken& Token : Tokens)
	{
		UEdGraphNode* const Node = bAnnotateMentionedNodes ? Cast<UEdGraphNode>(Token.Subject) : nullptr;
		if (Node)
		{
			Annotate(*Node, Severity, Text);
		}
	}
	if (bSilentMode)
	{
		return;
	}
	const FString Line = (SourcePath.IsEmpty() ? FString() : SourcePath + TEXT(": ")) + TEXT("[Compiler] ") + Text;
	switch (Severity)
	{
	case EMessageSeverity::Error: UE_LOG(LogBlueprint, Error, TEXT("%s"), *Line); break;
	case EMessageSeverity::Warning: UE_LOG(LogBlueprint, Warning, TEXT("%s"), *Line); break;
	case EMessageSeverity::Info: UE_LOG(LogBlueprint, Log, TEXT("%s"), *Line); break;
	}
}
