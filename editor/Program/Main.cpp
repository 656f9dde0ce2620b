#include "EditorSession.h"

#include <csignal>
#include <cstdio>

int main(int ArgumentCount, char** Arguments)
{
	TArray<FString> Words;
	for (int Index = 1; Index < ArgumentCount; ++Index)
	{
		Words.Add(FUtf8::Decode(Arguments[Index]));
	}
	FProgramOptions Options;
	FString Error;
	if (!ParseOptions(Words, Options, Error))
	{
		std::fprintf(stderr, "kestrin-editor: %s; --help lists the options\n", TCHAR_TO_UTF8(*Error));
		return 2;
	}
	if (Options.bShowHelp)
	{
		std::printf("%s", TCHAR_TO_UTF8(*GetUsage()));
		return 0;
	}
	if (Options.bShowVersion)
	{
		std::printf("kestrin-editor %s\n", KESTRIN_VERSION);
		return 0;
	}
	// A reader of standard output who goes away ends nothing; a write to it fails instead.
	std::signal(SIGPIPE, SIG_IGN);
	Options.Face.Version = TEXT("" KESTRIN_VERSION);
	return RunEditor(MoveTemp(Options));
}
