#include "IHotReload.h"
#include "Logging/LogMacros.h"
#include "ProjectBuildHost/ProjectBuild.h"

DEFINE_LOG_CATEGORY_STATIC(LogHotReload, Log, All);

namespace
{
/** A build that had nothing to do has succeeded. */
ECompilationResult::Type ToCompilation(EProjectBuildResult Result)
{
	switch (Result)
	{
	case EProjectBuildResult::Succeeded:
	case EProjectBuildResult::NoChanges: return ECompilationResult::Succeeded;
	case EProjectBuildResult::Failed: return ECompilationResult::OtherCompilationError;
	case EProjectBuildResult::Cancelled: return ECompilationResult::Canceled;
	case EProjectBuildResult::NotStarted: return ECompilationResult::Unsupported;
	}
	checkNoEntry();
}

class FHotReloadModule final : public IHotReloadInterface
{
public:
	void ShutdownModule() override { FProjectBuild::Stop(); }

	FModuleCompilerFinishedEvent& OnModuleCompilerFinished() override { return FinishedEvent; }
	bool IsCurrentlyCompiling() const override { return FProjectBuild::IsRunning(); }

	ECompilationResult::Type DoHotReloadFromEditor(EHotReloadFlags) override
	{
		if (IsCurrentlyCompiling())
		{
			UE_LOG(LogHotReload, Warning, TEXT("A compile is at work already"));
			return ECompilationResult::Canceled;
		}
		UE_LOG(LogHotReload, Display, TEXT("Hot Reload compiles in the background"));
		FProjectBuild::RunInBackground(
			[this](EProjectBuildResult Result, const FString& Output) { Finish(ToCompilation(Result), Output); });
		return ECompilationResult::Unknown;
	}

private:
	void Finish(ECompilationResult::Type Result, const FString& Output)
	{
		UE_LOG(LogHotReload, Display, TEXT("Hot Reload %s"), Result == ECompilationResult::Succeeded ? TEXT("succeeded") : TEXT("failed"));
		FinishedEvent.Broadcast(Output, Result, false);
	}

	FModuleCompilerFinishedEvent FinishedEvent;
};
}

IMPLEMENT_MODULE(FHotReloadModule, HotReload)
