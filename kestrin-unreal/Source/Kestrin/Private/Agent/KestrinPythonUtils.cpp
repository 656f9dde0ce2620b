#include "Agent/KestrinPythonUtils.h"

#include "Agent/FileUtils.h"
#include "HAL/PlatformFileManager.h"
#include "IPythonScriptPlugin.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

namespace
{
const TCHAR* const FailureHeadline = TEXT("Error: Python script execution failed.");

/** The code with its output going to a file. Nothing is escaped. */
FString WrapCode(const FString& Code, const FString& LogPath)
{
	const FString Head = FString::Printf(TEXT("import sys\nsys.stdout = open('%s', 'w')\nsys.stderr = sys.stdout\n"), *LogPath);
	return Head + Code + TEXT("\n\nsys.stdout.close()\nsys.stdout = sys.__stdout__\nsys.stderr = sys.__stderr__\n");
}

/** What the script has printed. The file goes, unless it could not be read. */
FString TakeLog(const FString& LogPath)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *LogPath))
	{
		return TEXT("Error: Failed to read Python script log file.");
	}
	FPlatformFileManager::Get().GetPlatformFile().DeleteFile(*LogPath);
	return Text;
}
}

FString FKestrinPythonUtils::GenerateScriptName()
{
	return FString::Printf(TEXT("generated_script_%s.py"), *FDateTime::Now().ToString(TEXT("%Y%m%d_%H%M%S")));
}

FPythonScriptResult FKestrinPythonUtils::CreateAndExecutePythonScript(const FString& PythonCode)
{
	static const FName PythonModule(TEXT("PythonScriptPlugin"));
	IPythonScriptPlugin* const Python = FModuleManager::GetModulePtr<IPythonScriptPlugin>(PythonModule);
	if (!Python)
	{
		return { false, FailureHeadline, TEXT("The Python plug-in is not available.") };
	}
	const FString ScriptPath = FPaths::Combine(TEXT("Plugins"), TEXT("kestrin-unreal"), TEXT("Python"), GenerateScriptName());
	const FString LogPath = FPaths::CreateTempFilename(*FPaths::ProjectLogDir(), TEXT("PythonScriptLog_"), TEXT(".log"));
	const FString Written = FFileUtils::CreateNewFileWithContent(ScriptPath, WrapCode(PythonCode, LogPath));
	if (FFileUtils::IsFailure(Written))
	{
		return { false, Written, FString() };
	}
	FPythonCommandEx Command;
	Command.Command = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), ScriptPath);
	Command.FileExecutionScope = EPythonFileExecutionScope::Public;
	const bool bRan = Python->ExecPythonCommandEx(Command);
	FFileUtils::DeleteFile(ScriptPath);
	const FString Log = TakeLog(LogPath);
	if (!bRan)
	{
		return { false, FailureHeadline, Log + TEXT(" ") + Command.CommandResult };
	}
	return { true, FString::Printf(TEXT("Python script completed: \n%s"), *Log), FString() };
}
