#include "Agent/FileUtils.h"

#include "HAL/FileManager.h"
#include "ISourceControlModule.h"
#include "ISourceControlProvider.h"
#include "ISourceControlState.h"
#include "SourceControlOperations.h"

// Each failure is a line in the log and a false result: the file operation that called goes on.

namespace
{
/** Null, with a line in the log, when there is none to be reached. */
ISourceControlProvider* GetSourceControlProvider()
{
	ISourceControlProvider& Provider = FModuleManager::LoadModuleChecked<ISourceControlModule>(TEXT("SourceControl")).GetProvider();
	if (!Provider.IsEnabled() || !Provider.IsAvailable())
	{
		UE_LOG(LogTemp, Warning, TEXT("Source control is not available"));
		return nullptr;
	}
	return &Provider;
}

template <typename OperationType>
bool Execute(ISourceControlProvider& Provider, const FString& FilePath)
{
	return Provider.Execute(ISourceControlOperation::Create<OperationType>(), FilePath, EConcurrency::Synchronous) ==
		ECommandResult::Succeeded;
}

/** The state as it is now; null when it can't be told. */
FSourceControlStatePtr GetFreshState(ISourceControlProvider& Provider, const FString& FilePath)
{
	Execute<FUpdateStatus>(Provider, FilePath); // whether that worked shows in the state
	return Provider.GetState(FilePath, EStateCacheUsage::Use);
}

bool RevertAddition(ISourceControlProvider& Provider, const FString& FilePath)
{
	if (!Execute<FRevert>(Provider, FilePath))
	{
		UE_LOG(LogTemp, Error, TEXT("Failed to revert addition of %s from source control"), *FilePath);
		return false;
	}
	UE_LOG(LogTemp, Display, TEXT("Successfully reverted addition of %s from source control"), *FilePath);
	return true;
}

bool MarkForDelete(ISourceControlProvider& Provider, const ISourceControlState& State, const FString& FilePath)
{
	if (State.CanCheckout())
	{
		Execute<FCheckOut>(Provider, FilePath); // should it fail, so does the next
	}
	if (!Execute<FDelete>(Provider, FilePath))
	{
		UE_LOG(LogTemp, Error, TEXT("Failed to mark %s for deletion in source control"), *FilePath);
		return false;
	}
	UE_LOG(LogTemp, Display, TEXT("Successfully marked %s for deletion in source control"), *FilePath);
	return true;
}

bool RemoveByState(ISourceControlProvider& Provider, const ISourceControlState& State, const FString& FilePath)
{
	if (State.IsAdded())
	{
		return RevertAddition(Provider, FilePath);
	}
	if (!State.IsSourceControlled())
	{
		UE_LOG(LogTemp, Display, TEXT("File %s is not under source control, nothing to remove"), *FilePath);
		return true;
	}
	return MarkForDelete(Provider, State, FilePath);
}
}

bool FFileUtils::AddNewFileToSourceControl(const FString& FilePath)
{
	ISourceControlProvider* const Provider = GetSourceControlProvider();
	if (!Provider)
	{
		return false;
	}
	if (!Execute<FMarkForAdd>(*Provider, FilePath))
	{
		UE_LOG(LogTemp, Error, TEXT("Failed to add %s to source control"), *FilePath);
		return false;
	}
	UE_LOG(LogTemp, Display, TEXT("Successfully added %s to source control"), *FilePath);
	return true;
}

bool FFileUtils::CheckoutFileFromSourceControl(const FString& FilePath)
{
	ISourceControlProvider* const Provider = GetSourceControlProvider();
	if (!Provider)
	{
		return false;
	}
	const FSourceControlStatePtr State = GetFreshState(*Provider, FilePath);
	if (State.IsValid() && State->CanCheckout())
	{
		return Execute<FCheckOut>(*Provider, FilePath);
	}
	if (!State.IsValid())
	{
		UE_LOG(LogTemp, Warning, TEXT("Could not get file state for %s"), *FilePath);
	}
	else if (!State->IsSourceControlled())
	{
		UE_LOG(LogTemp, Warning, TEXT("File %s is not under source control"), *FilePath);
	}
	else
	{
		UE_LOG(LogTemp, Warning, TEXT("File %s cannot be checked out (it may already be checked out)"), *FilePath);
	}
	return false;
}

bool FFileUtils::RemoveFileFromSourceControl(const FString& FilePath, bool bDeleteFromDisk)
{
	ISourceControlProvider* const Provider = GetSourceControlProvider();
	if (!Provider)
	{
		return false;
	}
	const FSourceControlStatePtr State = GetFreshState(*Provider, FilePath);
	if (!State.IsValid())
	{
		UE_LOG(LogTemp, Error, TEXT("Could not determine source control status for %s"), *FilePath);
		return false;
	}
	const bool bSuccess = RemoveByState(*Provider, *State, FilePath);
	if (bSuccess && bDeleteFromDisk)
	{
		if (IFileManager::Get().Delete(*FilePath, false, false, false))
		{
			UE_LOG(LogTemp, Display, TEXT("Deleted %s from disk"), *FilePath);
		}
		else
		{
			UE_LOG(LogTemp, Warning, TEXT("Failed to delete %s from disk"), *FilePath);
		}
	}
	return bSuccess;
}
