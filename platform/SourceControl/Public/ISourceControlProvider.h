#pragma once

#include "Containers/Array.h"
#include "ISourceControlOperation.h"
#include "ISourceControlState.h"

namespace ECommandResult
{
enum Type
{
	Failed,
	Succeeded,
	Cancelled
};
}

namespace EConcurrency
{
enum Type
{
	/** The operation has ended when the call returns. */
	Synchronous
};
}

namespace EStateCacheUsage
{
enum Type
{
	/** Asks anew. */
	ForceUpdate,
	/** What an earlier question gave will do, where the provider keeps that. */
	Use
};
}

/** A revision control system. Files go by their full paths. Game thread. */
class ISourceControlProvider
{
public:
	virtual ~ISourceControlProvider() = default;

	virtual const FName& GetName() const = 0;
	/** False for "None" alone. */
	virtual bool IsEnabled() const = 0;
	/** Whether it can be reached now. */
	virtual bool IsAvailable() const = 0;

	/** The states of the files in their order; none at all when it fails. */
	virtual ECommandResult::Type GetState(
		const TArray<FString>& InFiles, TArray<FSourceControlStateRef>& OutState, EStateCacheUsage::Type InStateCacheUsage) = 0;
	/** Null when the state can't be told. */
	FSourceControlStatePtr GetState(const FString& InFile, EStateCacheUsage::Type InStateCacheUsage)
	{
		TArray<FSourceControlStateRef> States;
		return GetState(TArray<FString>{ InFile }, States, InStateCacheUsage) == ECommandResult::Succeeded && !States.IsEmpty()
			? FSourceControlStatePtr(States[0])
			: nullptr;
	}

	/** Does it to all the files or, when it fails, to none. What was wrong is then in the operation and in the log. */
	virtual ECommandResult::Type Execute(const FSourceControlOperationRef& InOperation, const TArray<FString>& InFiles,
		EConcurrency::Type InConcurrency = EConcurrency::Synchronous) = 0;
	ECommandResult::Type Execute(
		const FSourceControlOperationRef& InOperation, const FString& InFile, EConcurrency::Type InConcurrency = EConcurrency::Synchronous)
	{
		return Execute(InOperation, TArray<FString>{ InFile }, InConcurrency);
	}
};
