#include "ISourceControlModule.h"

#include "GitProvider.h"
#include "Misc/Paths.h"
#include "SourceControlHost/SourceControlProvider.h"

#include <git2.h>

namespace
{
ISourceControlProvider* HostProvider = nullptr;

/** For a project without revision control. */
class FNoProvider final : public ISourceControlProvider
{
public:
	const FName& GetName() const override { return Name; }
	bool IsEnabled() const override { return false; }
	bool IsAvailable() const override { return false; }
	ECommandResult::Type GetState(const TArray<FString>&, TArray<FSourceControlStateRef>&, EStateCacheUsage::Type) override
	{
		return ECommandResult::Failed;
	}
	ECommandResult::Type Execute(const FSourceControlOperationRef&, const TArray<FString>&, EConcurrency::Type) override
	{
		return ECommandResult::Failed;
	}

private:
	const FName Name = "None";
};

class FSourceControlModule final : public ISourceControlModule
{
public:
	void StartupModule() override { git_libgit2_init(); }
	void ShutdownModule() override { git_libgit2_shutdown(); }

	bool IsEnabled() const override { return GetProvider().IsEnabled(); }
	ISourceControlProvider& GetProvider() const override
	{
		if (HostProvider)
		{
			return *HostProvider;
		}
		return Git.Open(FPaths::ProjectDir()) ? static_cast<ISourceControlProvider&>(Git) : None;
	}

private:
	// The provider follows the project, which no event tells of.
	mutable FGitProvider Git;
	mutable FNoProvider None;
};
}

FHostSourceControlProvider::FHostSourceControlProvider(ISourceControlProvider& Provider)
{
	check(!HostProvider);
	HostProvider = &Provider;
}

FHostSourceControlProvider::~FHostSourceControlProvider()
{
	HostProvider = nullptr;
}

IMPLEMENT_MODULE(FSourceControlModule, SourceControl)
