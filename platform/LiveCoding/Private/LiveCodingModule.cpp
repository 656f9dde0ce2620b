#include "ILiveCodingModule.h"
#include "LiveCodingSettings.h"
#include "Logging/LogMacros.h"
#include "Modules/ModuleManager.h"
#include "ProjectBuildHost/ProjectBuild.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogLiveCoding, Log, All);

namespace
{
ELiveCodingCompileResult ToLiveCoding(EProjectBuildResult Result)
{
	switch (Result)
	{
	case EProjectBuildResult::Succeeded: return ELiveCodingCompileResult::Success;
	case EProjectBuildResult::NoChanges: return ELiveCodingCompileResult::NoChanges;
	case EProjectBuildResult::Failed: return ELiveCodingCompileResult::Failure;
	case EProjectBuildResult::Cancelled: return ELiveCodingCompileResult::Cancelled;
	case EProjectBuildResult::NotStarted: return ELiveCodingCompileResult::NotStarted;
	}
	checkNoEntry();
}

/** Nothing is said where nothing was done. */
void LogEnd(ELiveCodingCompileResult Result)
{
	switch (Result)
	{
	case ELiveCodingCompileResult::Success: UE_LOG(LogLiveCoding, Display, TEXT("Live coding succeeded")); break;
	case ELiveCodingCompileResult::Failure:
		UE_LOG(LogLiveCoding, Error, TEXT("Live coding failed, please see %s for more information"), *FProjectBuild::GetLogFile());
		break;
	case ELiveCodingCompileResult::Cancelled: UE_LOG(LogLiveCoding, Error, TEXT("Live coding canceled")); break;
	case ELiveCodingCompileResult::NotStarted: UE_LOG(LogLiveCoding, Error, TEXT("Live coding could not be started")); break;
	case ELiveCodingCompileResult::CompileStillActive: UE_LOG(LogLiveCoding, Error, TEXT("A compile is at work already")); break;
	case ELiveCodingCompileResult::NoChanges:
	case ELiveCodingCompileResult::InProgress: break;
	}
}

class FLiveCodingModule final : public ILiveCodingModule
{
public:
	void StartupModule() override { bEnabledForSession = IsEnabledByDefault(); }
	void ShutdownModule() override { FProjectBuild::Stop(); }

	void EnableByDefault(bool bInEnabled) override
	{
		ULiveCodingSettings* const Settings = GetMutableDefault<ULiveCodingSettings>();
		Settings->bEnabled = bInEnabled;
		Settings->SaveConfig();
	}
	bool IsEnabledByDefault() const override { return GetDefault<ULiveCodingSettings>()->bEnabled; }

	void EnableForSession(bool bInEnabled) override { bEnabledForSession = bInEnabled; }
	bool IsEnabledForSession() const override { return bEnabledForSession; }
	const FText& GetEnableErrorText() const override { return NoError; }
	bool CanEnableForSession() const override { return true; }
	bool HasStarted() const override { return bStarted; }

	void Compile() override { Compile(ELiveCodingCompileFlags::None, nullptr); }

	bool Compile(ELiveCodingCompileFlags CompileFlags, ELiveCodingCompileResult* Result) override
	{
		const ELiveCodingCompileResult Reached =
			RunCompile((CompileFlags & ELiveCodingCompileFlags::WaitForCompletion) != ELiveCodingCompileFlags::None);
		LogEnd(Reached);
		if (Result)
		{
			*Result = Reached;
		}
		return Reached == ELiveCodingCompileResult::Success || Reached == ELiveCodingCompileResult::NoChanges ||
			Reached == ELiveCodingCompileResult::InProgress;
	}

	bool IsCompiling() const override { return FProjectBuild::IsRunning(); }
	FOnPatchCompleteDelegate& GetOnPatchCompleteDelegate() override { return OnPatchComplete; }

private:
	ELiveCodingCompileResult RunCompile(bool bWait)
	{
		if (!bEnabledForSession)
		{
			return ELiveCodingCompileResult::NotStarted;
		}
		if (FProjectBuild::IsRunning())
		{
			return ELiveCodingCompileResult::CompileStillActive;
		}
		bStarted = true;
		if (bWait)
		{
			return Tell(ToLiveCoding(FProjectBuild::Run()));
		}
		FProjectBuild::RunInBackground([this](EProjectBuildResult Result, const FString&) { LogEnd(Tell(ToLiveCoding(Result))); });
		return ELiveCodingCompileResult::InProgress;
	}

	ELiveCodingCompileResult Tell(ELiveCodingCompileResult Result)
	{
		if (Result == ELiveCodingCompileResult::Success)
		{
			OnPatchComplete.Broadcast();
		}
		return Result;
	}

	bool bEnabledForSession = false;
	bool bStarted = false;
	const FText NoError;
	FOnPatchCompleteDelegate OnPatchComplete;
};
}

IMPLEMENT_MODULE(FLiveCodingModule, LiveCoding)
