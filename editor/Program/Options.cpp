#include "Options.h"

#include "Misc/Paths.h"

namespace
{
/** The words of the command line, taken one after the other. */
class FWords
{
public:
	explicit FWords(const TArray<FString>& InWords)
		: Words(InWords)
	{
	}

	bool IsEmpty() const { return Next == Words.Num(); }
	const FString& Take() { return Words[Next++]; }
	/** False when there are fewer. */
	bool Has(int32 Count) const { return Words.Num() - Next >= Count; }

private:
	const TArray<FString>& Words;
	int32 Next = 0;
};

struct FOption
{
	const TCHAR* Name;
	/** How many words follow it. */
	int32 Arguments;
	/** What is wrong with it; empty when nothing is. */
	FString (*Apply)(FWords& Words, FProgramOptions& Options);
};

template <EEditorFace Face>
FString ChooseFace(FWords&, FProgramOptions& Options)
{
	if (Options.bFaceChosen && Options.Face.Face != Face)
	{
		return TEXT("the editor has one face at a time");
	}
	Options.Face.Face = Face;
	Options.bFaceChosen = true;
	return FString();
}

const TArray<FOption> KnownOptions = {
	{ TEXT("--headless"), 0, &ChooseFace<EEditorFace::Headless> },
	{ TEXT("--terminal"), 0, &ChooseFace<EEditorFace::Terminal> },
	{ TEXT("--window"), 0, &ChooseFace<EEditorFace::Window> },
	{ TEXT("--call"), 2,
		[](FWords& Words, FProgramOptions& Options) {
			const FString Tool = Words.Take();
			Options.Face.Calls.Add({ Tool, Words.Take() });
			return ChooseFace<EEditorFace::Call>(Words, Options);
		} },
	{ TEXT("--screenshot"), 1,
		[](FWords& Words, FProgramOptions& Options) {
			const FString File = Words.Take();
			Options.Face.Screenshot = FPaths::ConvertRelativePathToFull(File);
			return File.IsEmpty() ? FString(TEXT("the file's name is empty")) : FString();
		} },
	{ TEXT("--clock-rate"), 1,
		[](FWords& Words, FProgramOptions& Options) {
			const FString Rate = Words.Take();
			Options.ClockRate = Rate.IsNumeric() ? FCString::Atod(*Rate) : 0.0;
			return Options.ClockRate > 0.0 ? FString() : FString(TEXT("the rate is a number above 0"));
		} },
	{ TEXT("--log"), 1,
		[](FWords& Words, FProgramOptions& Options) {
			Options.LogFile = FPaths::ConvertRelativePathToFull(Words.Take());
			return FString();
		} },
	{ TEXT("--plugin"), 1,
		[](FWords& Words, FProgramOptions& Options) {
			Options.PluginFolder = FPaths::ConvertRelativePathToFull(Words.Take());
			return FString();
		} },
	{ TEXT("--help"), 0,
		[](FWords&, FProgramOptions& Options) {
			Options.bShowHelp = true;
			return FString();
		} },
	{ TEXT("--version"), 0,
		[](FWords&, FProgramOptions& Options) {
			Options.bShowVersion = true;
			return FString();
		} },
};
}

bool ParseOptions(const TArray<FString>& Words, FProgramOptions& OutOptions, FString& OutError)
{
	FWords Rest(Words);
	while (!Rest.IsEmpty())
	{
		const FString Word = Rest.Take();
		const FOption* const Option = KnownOptions.FindByPredicate([&Word](const FOption& Each) { return Word.Equals(Each.Name); });
		if (Option)
		{
			const FString Fault = Rest.Has(Option->Arguments) ? Option->Apply(Rest, OutOptions) : FString(TEXT("its value is missing"));
			if (!Fault.IsEmpty())
			{
				OutError = FString::Printf(TEXT("%s: %s"), *Word, *Fault);
				return false;
			}
		}
		else if (Word.StartsWith(TEXT("-")) || !OutOptions.Project.IsEmpty())
		{
			OutError = FString::Printf(TEXT("%s: unknown option, or one project too many"), *Word);
			return false;
		}
		else
		{
			OutOptions.Project = FPaths::ConvertRelativePathToFull(Word);
		}
	}
	if (OutOptions.Project.IsEmpty() && !OutOptions.bShowHelp && !OutOptions.bShowVersion)
	{
		OutError = TEXT("no project given");
		return false;
	}
	const bool bHasPicture = OutOptions.Face.Face == EEditorFace::Headless || OutOptions.Face.Face == EEditorFace::Window;
	if (!OutOptions.Face.Screenshot.IsEmpty() && !bHasPicture)
	{
		OutError = TEXT("--screenshot: goes with --headless or --window only");
		return false;
	}
	return true;
}

FString GetUsage()
{
	return TEXT(
		"kestrin-editor PROJECT.uproject [--window | --terminal | --headless | --call TOOL JSON ...] [options]\n"
		"\n"
		"  --window            the editor's window\n"
		"  --terminal          a conversation on the terminal\n"
		"  --headless          commands on standard input, events on standard output, one JSON object a line (the default)\n"
		"  --call TOOL JSON    run a tool and print its result; may be repeated\n"
		"\n"
		"  --clock-rate N      the platform's clock runs N times as fast\n"
		"  --screenshot FILE   at the end of input, a picture (PNG) of the window, or, with --headless, of the panel; --window then takes\n"
		"                      the headless commands on standard input as well\n"
		"  --log FILE          where the editor's log goes (standard error otherwise)\n"
		"  --plugin DIR        another copy of the plug-in\n"
		"  --help, --version\n");
}
