#include "ProjectSources.h"

#include "Containers/Map.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace
{
const TCHAR* const RulesEnding = TEXT(".Build.cs");

TArray<FString> FindFiles(const FString& Directory, const TCHAR* Pattern)
{
	TArray<FString> Files;
	IFileManager::Get().FindFilesRecursive(Files, *Directory, Pattern, true, false);
	return Files;
}

/** The text without comments; texts in quotes stay. */
FString WithoutComments(const FString& Source)
{
	FString Result;
	for (int32 Index = 0; Index < Source.Len(); ++Index)
	{
		const bool bLine = Source.Mid(Index, 2).Equals(TEXT("//"));
		if (bLine || Source.Mid(Index, 2).Equals(TEXT("/*")))
		{
			const TCHAR* const Ending = bLine ? TEXT("\n") : TEXT("*/");
			const int32 End = Source.Find(Ending, ESearchCase::CaseSensitive, ESearchDir::FromStart, Index + 2);
			Index = End == INDEX_NONE ? Source.Len() : End + (bLine ? 0 : 1);
			Result += TCHAR('\n');
			continue;
		}
		const int32 Start = Index;
		if (Source[Index] == '"')
		{
			do
			{
				++Index;
			} while (Index < Source.Len() && (Source[Index] != '"' || Source[Index - 1] == '\\'));
		}
		Result += Source.Mid(Start, Index - Start + 1);
	}
	return Result;
}

bool IncludesItsGeneratedHeader(const FString& File)
{
	FString Text;
	return FFileHelper::LoadFileToString(Text, *File) &&
		Text.Contains(TEXT("\"") + FPaths::GetBaseFilename(File) + TEXT(".generated.h\""), ESearchCase::CaseSensitive);
}

/** Puts each module behind those that it depends on. @return false when some depend on each other in a circle */
bool Sort(TArray<FModuleSources>& Modules)
{
	TArray<FModuleSources> Sorted;
	const auto Waits = [&Modules](const FModuleSources& Module)
	{
		return Modules.ContainsByPredicate(
			[&Module](const FModuleSources& Other) { return Module.Dependencies.Contains(Other.Name) && Other.Name != Module.Name; });
	};
	while (!Modules.IsEmpty())
	{
		const int32 Ready = Modules.IndexOfByPredicate([&Waits](const FModuleSources& Module) { return !Waits(Module); });
		if (Ready == INDEX_NONE)
		{
			return false;
		}
		Sorted.Add(Modules[Ready]);
		Modules.RemoveAt(Ready);
	}
	Modules = MoveTemp(Sorted);
	return true;
}

/** Sorts a file in that belongs to the module. */
void AddFile(FModuleSources& Module, const FString& File)
{
	const FString Extension = FPaths::GetExtension(File);
	if (Extension == TEXT("cpp") || Extension == TEXT("cc") || Extension == TEXT("cxx"))
	{
		Module.CppFiles.Add(File);
	}
	else if (Extension == TEXT("h") && IncludesItsGeneratedHeader(File))
	{
		Module.ReflectedHeaders.Add(File);
	}
}
}

TArray<FString> ReadDependencies(const FString& Rules)
{
	TArray<FString> Names;
	TArray<FString> Statements;
	WithoutComments(Rules).ParseIntoArray(Statements, TEXT(";"));
	for (const FString& Statement : Statements)
	{
		TArray<FString> Parts;
		Statement.ParseIntoArray(Parts, TEXT("\""), false);
		if (!Parts[0].Contains(TEXT("DependencyModuleNames"), ESearchCase::CaseSensitive))
		{
			continue;
		}
		// Every other part stands between quotes.
		for (int32 Index = 1; Index < Parts.Num(); Index += 2)
		{
			Names.AddUnique(Parts[Index]);
		}
	}
	return Names;
}

bool FProjectSources::Find(const FString& ProjectDirectory, FString& OutError)
{
	const FString Source = FPaths::Combine(ProjectDirectory, TEXT("Source"));
	for (const FString& RulesFile : FindFiles(Source, *(TEXT("*") + FString(RulesEnding))))
	{
		FModuleSources Module;
		FString Rules;
		Module.Name = FPaths::GetCleanFilename(RulesFile).LeftChop(FCString::Strlen(RulesEnding));
		Module.Root = FPaths::GetPath(RulesFile);
		Module.RulesFile = RulesFile;
		const FModuleSources* const Same =
			Modules.FindByPredicate([&Module](const FModuleSources& Each) { return Each.Name == Module.Name; });
		if (Same || !FFileHelper::LoadFileToString(Rules, *RulesFile))
		{
			OutError = FString::Printf(TEXT("%s:1: error: %s"), *RulesFile,
				Same ? *(TEXT("the module is there already: ") + Same->RulesFile) : TEXT("the file can't be read"));
			return false;
		}
		Module.Dependencies = ReadDependencies(Rules);
		Modules.Add(MoveTemp(Module));
	}
	TArray<FString> Everything;
	IFileManager::Get().FindFilesRecursive(Everything, *Source, TEXT("*"), true, false);
	for (const FString& File : Everything)
	{
		// Of modules inside each other the inner one has the file.
		FModuleSources* Owner = nullptr;
		for (FModuleSources& Module : Modules)
		{
			const bool bInside = File.StartsWith(Module.Root + TEXT("/"), ESearchCase::CaseSensitive);
			Owner = bInside && (!Owner || Module.Root.Len() > Owner->Root.Len()) ? &Module : Owner;
		}
		if (Owner)
		{
			AddFile(*Owner, File);
		}
	}
	if (!Sort(Modules))
	{
		OutError = FString::Printf(TEXT("%s:1: error: modules depend on each other in a circle"), *Source);
		return false;
	}
	return true;
}
