#pragma once

#include "Containers/Array.h"
#include "Internationalization/Text.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

/** What came of an operation. */
struct FSourceControlResultInfo
{
	TArray<FText> ErrorMessages;
};

/** Something to be done with files; made for one call of ISourceControlProvider::Execute. */
class ISourceControlOperation
{
public:
	virtual ~ISourceControlOperation() = default;

	template <typename OperationType>
	static TSharedRef<OperationType, ESPMode::ThreadSafe> Create()
	{
		return MakeShared<OperationType, ESPMode::ThreadSafe>();
	}

	virtual FName GetName() const = 0;

	const FSourceControlResultInfo& GetResultInfo() const { return ResultInfo; }
	/** Spelt as the engine spells it. */
	void AddErrorMessge(const FText& InError) { ResultInfo.ErrorMessages.Add(InError); }

private:
	FSourceControlResultInfo ResultInfo;
};

using FSourceControlOperationRef = TSharedRef<ISourceControlOperation, ESPMode::ThreadSafe>;
