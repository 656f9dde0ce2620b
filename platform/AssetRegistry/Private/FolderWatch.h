#pragma once

#include "CoreMinimal.h"

/** Tells without a look at any file whether something in some folders may have changed. */
class FFolderWatch
{
public:
	FFolderWatch();
	~FFolderWatch();
	UE_NONCOPYABLE(FFolderWatch)

	/** Forgets all folders, and what has changed. */
	void Reset();
	/** A folder alone, without those in it; it need not be there yet. Call it before the folder is looked at. */
	void Add(const FString& Folder);
	/**
	 * Since Reset. Also true when that can't be told, and from time to time: some changes are not told of, such as those of a link's
	 * target or by other machines.
	 */
	bool MayHaveChanged();

private:
	/** INDEX_NONE when the system has no more of them. */
	int Queue = INDEX_NONE;
	TArray<int> Watches;
	TArray<FString> Missing;
	bool bChanged = true;
	double ResetAt = 0.0;
};
