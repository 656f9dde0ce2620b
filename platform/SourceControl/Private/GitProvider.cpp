#include "GitProvider.h"

#include "GitRepository.h"
#include "Logging/LogMacros.h"

#include <git2/status.h>

DEFINE_LOG_CATEGORY_STATIC(LogSourceControl, Log, All);

namespace
{
class FGitState final : public ISourceControlState
{
public:
	FGitState(const FString& InFilename, uint32 InStatus)
		: Filename(InFilename)
		, Status(InStatus)
	{
	}

	const FString& GetFilename() const override { return Filename; }
	bool CanCheckout() const override { return false; }
	bool IsCheckedOut() const override { return IsSourceControlled(); }
	bool IsSourceControlled() const override { return FGitRepository::IsControlled(Status); }
	bool IsAdded() const override { return Has(GIT_STATUS_INDEX_NEW); }
	bool IsDeleted() const override { return Has(GIT_STATUS_INDEX_DELETED); }
	bool IsModified() const override { return Has(GIT_STATUS_INDEX_MODIFIED | GIT_STATUS_WT_MODIFIED); }
	bool IsIgnored() const override { return Has(GIT_STATUS_IGNORED); }
	bool IsConflicted() const override { return Has(GIT_STATUS_CONFLICTED); }

private:
	bool Has(uint32 Flags) const { return (Status & Flags) != 0; }

	const FString Filename;
	const uint32 Status;
};

struct FGitOperation
{
	FName Name;
	/** Changes the index in memory. */
	FGitError (FGitRepository::*Apply)(const FString& File);
};

const TArray<FGitOperation>& GetOperations()
{
	static const TArray<FGitOperation> Operations = {
		{ "UpdateStatus", &FGitRepository::Check },
		{ "MarkForAdd", &FGitRepository::Add },
		{ "Delete", &FGitRepository::Remove },
		{ "Revert", &FGitRepository::RevertAddition },
	};
	return Operations;
}

FGitError ApplyToAll(const FString& Directory, const FGitOperation& Operation, const TArray<FString>& Files)
{
	FGitRepository Repository;
	if (const FGitError Error = Repository.Open(Directory))
	{
		return Error;
	}
	for (const FString& File : Files)
	{
		if (const FGitError Error = (Repository.*Operation.Apply)(File))
		{
			return File + TEXT(": ") + *Error;
		}
	}
	return Repository.Save();
}

ECommandResult::Type Fail(ISourceControlOperation& Operation, const FString& Message)
{
	UE_LOG(LogSourceControl, Error, TEXT("%s"), *Message);
	Operation.AddErrorMessge(FText::FromString(Message));
	return ECommandResult::Failed;
}
}

bool FGitProvider::Open(const FString& InDirectory)
{
	Directory = InDirectory;
	return FGitRepository::Exists(Directory);
}

bool FGitProvider::IsAvailable() const
{
	const FGitError Error = FGitRepository().Open(Directory);
	if (Error)
	{
		UE_LOG(LogSourceControl, Error, TEXT("%s: %s"), *Directory, **Error);
	}
	return !Error;
}

ECommandResult::Type FGitProvider::GetState(
	const TArray<FString>& InFiles, TArray<FSourceControlStateRef>& OutState, EStateCacheUsage::Type)
{
	FGitRepository Repository;
	FGitError Error = Repository.Open(Directory);
	TArray<FSourceControlStateRef> States;
	for (int32 Index = 0; Index < InFiles.Num() && !Error; ++Index)
	{
		uint32 Status = 0;
		Error = Repository.GetStatus(InFiles[Index], Status);
		States.Add(MakeShared<FGitState>(InFiles[Index], Status));
	}
	if (Error)
	{
		UE_LOG(LogSourceControl, Error, TEXT("%s: %s"), *Directory, **Error);
		return ECommandResult::Failed;
	}
	OutState.Append(States);
	return ECommandResult::Succeeded;
}

ECommandResult::Type FGitProvider::Execute(
	const FSourceControlOperationRef& InOperation, const TArray<FString>& InFiles, EConcurrency::Type)
{
	const FName OperationName = InOperation->GetName();
	const FGitOperation* const Operation =
		GetOperations().FindByPredicate([&OperationName](const FGitOperation& Each) { return Each.Name == OperationName; });
	if (!Operation)
	{
		return Fail(*InOperation,
			FString::Printf(
				TEXT("Operation '%s' not supported by source control provider '%s'"), *OperationName.ToString(), *Name.ToString()));
	}
	const FGitError Error = ApplyToAll(Directory, *Operation, InFiles);
	return Error ? Fail(*InOperation, *Error) : ECommandResult::Succeeded;
}
