#include "Agent/CompilationManager.h"

#include "CompilationSteps.h"
#include "Engine/Engine.h"
#include "IHotReload.h"
#include "ILiveCodingModule.h"
#include "Modules/ModuleManager.h"

FOnCompilationFinished FCompilationManager::OnCompilationFinishedDelegate;
TArray<TSharedPtr<FJsonObject>> FCompilationManager::StoredMessages;
FString FCompilationManager::SharedToolId;
FDelegateHandle FCompilationManager::CompilationManagerDelegateHandle;

namespace
{
const FName LiveCodingName(TEXT("LiveCoding"));
const FName HotReloadName(TEXT("HotReload"));

/** Null when it can't be used in this run of the editor. */
ILiveCodingModule* FindLiveCoding()
{
	ILiveCodingModule* LiveCoding = FModuleManager::GetModulePtr<ILiveCodingModule>(LiveCodingName);
	if (!LiveCoding)
	{
		FModuleManager::Get().LoadModule(LiveCodingName);
		LiveCoding = FModuleManager::GetModulePtr<ILiveCodingModule>(LiveCodingName);
	}
	return LiveCoding && LiveCoding->IsEnabledForSession() ? LiveCoding : nullptr;
}

ELiveCodingCompileResult Compile(ILiveCodingModule& LiveCoding)
{
	ELiveCodingCompileResult Result = ELiveCodingCompileResult::Failure;
	try
	{
		const bool bRan = LiveCoding.Compile(ELiveCodingCompileFlags::WaitForCompletion, &Result);
		return bRan ? Result : ELiveCodingCompileResult::Failure;
	}
	catch (...)
	{
		return ELiveCodingCompileResult::Failure;
	}
}
}

void FCompilationManager::CompileGameProject(FString ToolId, const TArray<TSharedPtr<FJsonObject>>& Messages)
{
	StoredMessages = Messages;
	SharedToolId = ToolId;
	CompileGameWithLiveCoding();
}

void FCompilationManager::Finish(const FString& Output, bool bSuccess)
{
	OnCompilationFinishedDelegate.Broadcast(StoredMessages, SharedToolId, Output, bSuccess);
	StoredMessages.Empty();
}

void FCompilationManager::CompileGameWithLiveCoding()
{
	SaveDirtyPackages();
	CaptureCompilationLogs();
	ILiveCodingModule* const LiveCoding = FindLiveCoding();
	if (!LiveCoding)
	{
		CompileGameWithHotReload();
		return;
	}
	const ELiveCodingCompileResult Result = Compile(*LiveCoding);
	OnLiveCodingCompilationFinished(ReadBuildLog(), Result);
}

void FCompilationManager::OnLiveCodingCompilationFinished(const FString& Output, ELiveCodingCompileResult Result)
{
	const bool bSuccess = Result == ELiveCodingCompileResult::Success || Result == ELiveCodingCompileResult::NoChanges;
	FString Combined;
	if (!Output.IsEmpty())
	{
		Combined += TEXT("--- LiveCoding Console Output ---\n") + Output;
	}
	if (!GetCompilationLogs().IsEmpty())
	{
		Combined += TEXT("\n\n--- General Compilation Logs ---\n");
		for (const FString& Line : GetCompilationLogs())
		{
			Combined += Line + TEXT("\n");
		}
	}
	if (bSuccess)
	{
		RescanAfterCompilation();
	}
	Finish(Combined, bSuccess);
}

void FCompilationManager::UnbindFromHotReload()
{
	if (!CompilationManagerDelegateHandle.IsValid())
	{
		return;
	}
	if (FModuleManager::Get().IsModuleLoaded(HotReloadName))
	{
		IHotReloadInterface::Get().OnModuleCompilerFinished().Remove(CompilationManagerDelegateHandle);
	}
	CompilationManagerDelegateHandle.Reset();
}

void FCompilationManager::CompileGameWithHotReload()
{
	CaptureCompilationLogs();
	SaveDirtyPackages();
	UnbindFromHotReload();
	if (!FModuleManager::Get().IsModuleLoaded(HotReloadName))
	{
		FModuleManager::Get().LoadModule(HotReloadName);
	}
	if (!FModuleManager::Get().IsModuleLoaded(HotReloadName))
	{
		Finish(TEXT("Failed to load HotReload module"), false);
		return;
	}
	IHotReloadInterface& HotReload = IHotReloadInterface::Get();
	CompilationManagerDelegateHandle = HotReload.OnModuleCompilerFinished().AddStatic(&FCompilationManager::OnHotReloadCompilationFinished);
	// The end of a compile that is at work is heard, too.
	if (!HotReload.IsCurrentlyCompiling())
	{
		HotReload.DoHotReloadFromEditor(EHotReloadFlags::WaitForCompletion);
	}
}

void FCompilationManager::OnHotReloadCompilationFinished(const FString& Output, ECompilationResult::Type Result, bool)
{
	const bool bSuccess = Result == ECompilationResult::Succeeded;
	FString Combined = Output;
	for (const FString& Line : GetCompilationLogs())
	{
		Combined += TEXT("\n") + Line;
	}
	UnbindFromHotReload();
	Finish(Combined, bSuccess);
	if (bSuccess)
	{
		RescanAfterCompilation();
		if (GEngine)
		{
			GEngine->DeferredCommands.Add(TEXT("HotReload.ModuleCompilationFinished"));
		}
	}
}
