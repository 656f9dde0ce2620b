#pragma once

#include "ISourceControlProvider.h"

/** Git as revision control, for the repository that a directory lies in. */
class FGitProvider final : public ISourceControlProvider
{
public:
	/** Follows a directory. @return whether it lies in a repository, of whatever kind */
	bool Open(const FString& InDirectory);

	const FName& GetName() const override { return Name; }
	bool IsEnabled() const override { return true; }
	/** Not with a repository that can't be read or has no working tree; the log tells. */
	bool IsAvailable() const override;
	ECommandResult::Type GetState(
		const TArray<FString>& InFiles, TArray<FSourceControlStateRef>& OutState, EStateCacheUsage::Type InStateCacheUsage) override;
	ECommandResult::Type Execute(
		const FSourceControlOperationRef& InOperation, const TArray<FString>& InFiles, EConcurrency::Type InConcurrency) override;

private:
	const FName Name = "Git";
	FString Directory;
};
