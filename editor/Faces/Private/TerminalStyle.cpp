#include "TerminalStyle.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{
// What a terminal takes after ESC [.
const char* const Blue = "34";
const char* const Yellow = "33";
const char* const Grey = "2";
const char* const Green = "32";
const char* const Red = "31";
const char* const Bold = "1";

constexpr int32 ContextLines = 2;
}

FTerminalStyle::FTerminalStyle()
	: bColored(isatty(STDOUT_FILENO) && !std::getenv("NO_COLOR"))
{
}

void FTerminalStyle::Print(const FString& Text, const char* ColorCode, bool bLineEnd) const
{
	const std::string Bytes = FUtf8::Encode(Text);
	const char* const End = bLineEnd ? "\n" : "";
	if (bColored)
	{
		std::printf("\033[%sm%s\033[0m%s", ColorCode, Bytes.c_str(), End);
	}
	else
	{
		std::printf("%s%s", Bytes.c_str(), End);
	}
	std::fflush(stdout);
}

void FTerminalStyle::PrintLine(const FString& Text, const TCHAR* Look) const
{
	const FString Name(Look);
	Print(Text, Name == TEXT("user") ? Blue : (Name == TEXT("assistant") ? Yellow : Grey));
}

void FTerminalStyle::PrintDiff(const FString& Path, const FString& OldContent, const FString& NewContent) const
{
	TArray<FString> Old;
	TArray<FString> New;
	OldContent.ParseIntoArrayLines(Old, false);
	NewContent.ParseIntoArrayLines(New, false);
	int32 Head = 0;
	while (Head < Old.Num() && Head < New.Num() && Old[Head].Equals(New[Head]))
	{
		++Head;
	}
	int32 Tail = 0;
	while (Tail < Old.Num() - Head && Tail < New.Num() - Head && Old.Last(Tail).Equals(New.Last(Tail)))
	{
		++Tail;
	}

	Print(FString::Printf(TEXT("--- %s"), *Path), Bold);
	for (int32 Index = FMath::Max(0, Head - ContextLines); Index < Head; ++Index)
	{
		Print(TEXT("  ") + Old[Index], Grey);
	}
	for (int32 Index = Head; Index < Old.Num() - Tail; ++Index)
	{
		Print(TEXT("- ") + Old[Index], Red);
	}
	for (int32 Index = Head; Index < New.Num() - Tail; ++Index)
	{
		Print(TEXT("+ ") + New[Index], Green);
	}
	for (int32 Index = New.Num() - Tail; Index < FMath::Min(New.Num(), New.Num() - Tail + ContextLines); ++Index)
	{
		Print(TEXT("  ") + New[Index], Grey);
	}
}

void FTerminalStyle::PrintNote(const FString& Text) const
{
	Print(Text, Grey);
}

void FTerminalStyle::PrintPrompt(const FString& Text) const
{
	Print(Text, Bold, false);
}
