#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

#include <atomic>

/** A source of log lines, with the least important verbosity that it still lets through. Any thread. */
struct CORE_API FLogCategoryBase
{
	FLogCategoryBase(const TCHAR* Name, ELogVerbosity::Type DefaultVerbosity, ELogVerbosity::Type CompileTimeVerbosity);
	UE_NONCOPYABLE(FLogCategoryBase)

	bool IsSuppressed(ELogVerbosity::Type Level) const { return Level > GetVerbosity(); }
	const FName& GetCategoryName() const { return CategoryName; }
	ELogVerbosity::Type GetVerbosity() const { return Verbosity.load(std::memory_order_relaxed); }
	/** Never lets through more than the category was compiled for. */
	void SetVerbosity(ELogVerbosity::Type NewVerbosity);

private:
	std::atomic<ELogVerbosity::Type> Verbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
	const FName CategoryName;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : FLogCategoryBase
{
	explicit FLogCategory(const TCHAR* Name)
		: FLogCategoryBase(Name, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
