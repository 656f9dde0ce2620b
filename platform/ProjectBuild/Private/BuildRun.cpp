#include "BuildRun.h"

#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

#include <csignal>
#include <filesystem>

namespace
{
namespace Files = std::filesystem;

/** Messages in English, and no progress in front of the lines. */
const TArray<FString> Environment = { TEXT("LC_ALL=C.UTF-8"), TEXT("NINJA_STATUS=") };

Files::path ToPath(const FString& Path)
{
	return Files::path(FUtf8::Encode(Path));
}

/** MinValue for what is not there. */
Files::file_time_type GetTime(const Files::path& Path)
{
	std::error_code Error;
	const Files::file_time_type Time = Files::last_write_time(Path, Error);
	return Error ? Files::file_time_type::min() : Time;
}

/** When the folder or anything in it was last changed; a file that was removed changes its folder. */
Files::file_time_type GetNewestTime(const Files::path& Folder)
{
	Files::file_time_type Newest = GetTime(Folder);
	std::error_code Error;
	for (Files::recursive_directory_iterator Each(Folder, Error), End; !Error && Each != End; Each.increment(Error))
	{
		Newest = std::max(Newest, GetTime(Each->path()));
	}
	return Newest;
}

/** Of what ninja says of a command that failed, the first output is enough: others follow, and on the next line the whole command. */
class FNinjaLines
{
public:
	explicit FNinjaLines(FBuildLog& InLog)
		: Log(InLog)
	{
	}

	void Take(const FString& Line)
	{
		bInterrupted |= Line.StartsWith(TEXT("ninja: build stopped: interrupted by user"));
		const bool bCommand = bFailed;
		bFailed = Line.StartsWith(Failed, ESearchCase::CaseSensitive);
		if (bFailed)
		{
			Log.Add(Line.Left(Line.Find(TEXT(" "), ESearchCase::CaseSensitive, ESearchDir::FromStart, FCString::Strlen(Failed))));
		}
		else if (!bCommand && !Line.StartsWith(TEXT("ninja: Entering directory")))
		{
			Log.Add(Line);
		}
	}

	bool bInterrupted = false;

private:
	static constexpr const TCHAR* Failed = TEXT("FAILED: ");

	FBuildLog& Log;
	bool bFailed = false;
};
}

void FBuildRun::Run()
{
	Result = Build();
}

EProjectBuildResult FBuildRun::Fail(const FString& Error, EProjectBuildResult Kind)
{
	Log.Add(Error);
	return Kind;
}

EProjectBuildResult FBuildRun::Build()
{
	FText DescriptorError;
	FString Error;
	if (ProjectFile.IsEmpty())
	{
		return Fail(TEXT("error: no project is open"), EProjectBuildResult::NotStarted);
	}
	if (!Project.Load(ProjectFile, DescriptorError))
	{
		return Fail(TEXT("error: ") + DescriptorError.ToString());
	}
	if (!Sources.Find(FPaths::GetPath(ProjectFile), Error))
	{
		return Fail(Error);
	}
	if (Sources.Modules.IsEmpty())
	{
		return Fail(FString::Printf(TEXT("%s has no C++ modules: there is nothing to compile"), *FPaths::GetBaseFilename(ProjectFile)),
			EProjectBuildResult::NoChanges);
	}
	if (!Toolchain.Load(Error))
	{
		return Fail(Error, EProjectBuildResult::NotStarted);
	}
	File = MakeUnique<FBuildFile>(FPaths::GetPath(ProjectFile), Sources, Toolchain);
	Number = File->ReadNumber();
	if ((Number == 0 && IsStartLibraryCurrent()) || (Number > 0 && IsCurrent(Number)))
	{
		NoteModules(Number);
		return EProjectBuildResult::NoChanges;
	}
	Warn();
	Number = File->GetNextNumber();
	if (!File->Write(Number))
	{
		return Fail(FString::Printf(TEXT("error: %s can't be written"), *File->Directory));
	}
	NoteModules(Number);
	return RunNinja();
}

void FBuildRun::Warn()
{
	for (const FModuleSources& Module : Sources.Modules)
	{
		for (const FString& Name : Module.Dependencies)
		{
			if (!Toolchain.Modules.Contains(Name) &&
				!Sources.Modules.ContainsByPredicate([&Name](const FModuleSources& Each) { return Each.Name == Name; }))
			{
				Log.Add(FString::Printf(
					TEXT("%s:1: warning: this editor has no module %s; its headers are not there"), *Module.RulesFile, *Name));
			}
		}
		if (!Project.Modules.ContainsByPredicate([&Module](const FModuleDescriptor& Each) { return Each.Name == FName(Module.Name); }))
		{
			Log.Add(FString::Printf(
				TEXT("%s:1: warning: the module %s is not named here, so the editor loads it only when another one needs it"), *ProjectFile,
				*Module.Name));
		}
	}
}

bool FBuildRun::IsStartLibraryCurrent() const
{
	const Files::file_time_type Newest =
		std::max(GetNewestTime(ToPath(FPaths::Combine(FPaths::GetPath(ProjectFile), TEXT("Source")))), GetTime(ToPath(Toolchain.File)));
	return !Sources.Modules.ContainsByPredicate(
		[&](const FModuleSources& Module) { return GetTime(ToPath(File->GetStartLibrary(Module.Name))) <= Newest; });
}

bool FBuildRun::IsCurrent(int32 InNumber)
{
	bool bNothingToDo = false;
	const FChildProcess::FEnd End = File->Write(InNumber)
		? Ninja.Run({ Toolchain.Ninja, TEXT("-n"), TEXT("-C"), File->Directory }, Environment,
			  [&bNothingToDo](const FString& Line) { bNothingToDo |= Line.StartsWith(TEXT("ninja: no work to do.")); })
		: FChildProcess::FEnd();
	return End.ExitCode == 0 && bNothingToDo;
}

bool FBuildRun::IsLoaded() const
{
	return !Modules.ContainsByPredicate(
		[](const FBuiltModule& Module) { return Module.bStarted && !FModuleManager::Get().IsModuleLoaded(FName(Module.Name)); });
}

void FBuildRun::NoteModules(int32 InNumber)
{
	for (const FModuleSources& Module : Sources.Modules)
	{
		const bool bStarted =
			Project.Modules.ContainsByPredicate([&Module](const FModuleDescriptor& Each) { return Each.Name == FName(Module.Name); });
		Modules.Add({ Module.Name, InNumber > 0 ? File->GetLibrary(Module.Name, InNumber) : File->GetStartLibrary(Module.Name), bStarted });
	}
}

EProjectBuildResult FBuildRun::RunNinja()
{
	FNinjaLines Lines(Log);
	const FChildProcess::FEnd End = Ninja.Run({ Toolchain.Ninja, TEXT("-k"), TEXT("0"), TEXT("-C"), File->Directory }, Environment,
		[&Lines](const FString& Line) { Lines.Take(Line); });
	if (!End.StartError.IsEmpty())
	{
		return Fail(
			FString::Printf(TEXT("error: %s can't be run: %s"), *Toolchain.Ninja, *End.StartError), EProjectBuildResult::NotStarted);
	}
	if (Lines.bInterrupted || End.Signal == SIGINT || End.Signal == SIGTERM)
	{
		return Fail(TEXT("the build was interrupted"), EProjectBuildResult::Cancelled);
	}
	if (End.Signal != 0)
	{
		return Fail(FString::Printf(TEXT("error: the build was ended by the signal %d"), End.Signal));
	}
	return End.ExitCode == 0 ? EProjectBuildResult::Succeeded : EProjectBuildResult::Failed;
}

void FBuildRun::Conclude(bool bLoaded) const
{
	if (Number == 0)
	{
		return;
	}
	for (const FBuiltModule& Module : Modules)
	{
		std::error_code Ignored; // The next start then loads the older one, and the next compile makes good for it.
		const Files::path Library = ToPath(Module.Library);
		const Files::path Start = ToPath(File->GetStartLibrary(Module.Name));
		const Files::path Beside = Start.string() + ".new";
		if (bLoaded)
		{
			Files::remove(Beside, Ignored);
			Files::create_hard_link(Library, Beside, Ignored);
			Files::rename(Beside, Start, Ignored);
		}
		else
		{
			// Gone, it is made anew by the next build, which then has the same reasons to refuse it.
			Files::remove(Library, Ignored);
		}
	}
	if (bLoaded)
	{
		File->DeleteLibraries(Number);
	}
}
