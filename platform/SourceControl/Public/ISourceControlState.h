#pragma once

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

/** What revision control knew of a file when it was asked. */
class ISourceControlState
{
public:
	virtual ~ISourceControlState() = default;

	virtual const FString& GetFilename() const = 0;
	/** Whether it can be checked out now; never where there are no locks, as in git: such files count as checked out. */
	virtual bool CanCheckout() const = 0;
	virtual bool IsCheckedOut() const = 0;
	/** Known, be it only as one to be added or deleted. */
	virtual bool IsSourceControlled() const = 0;
	/** To be added with the next commit. */
	virtual bool IsAdded() const = 0;
	/** To be deleted with the next commit. */
	virtual bool IsDeleted() const = 0;
	/** Its content is not the committed one. */
	virtual bool IsModified() const = 0;
	virtual bool IsIgnored() const = 0;
	virtual bool IsConflicted() const = 0;
};

using FSourceControlStateRef = TSharedRef<ISourceControlState, ESPMode::ThreadSafe>;
using FSourceControlStatePtr = TSharedPtr<ISourceControlState, ESPMode::ThreadSafe>;
