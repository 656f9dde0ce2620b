#pragma once

#include "ISourceControlProvider.h"

/** While one of these lives, its provider is the project's, wherever the project lies. One at a time; game thread. */
class SOURCECONTROL_API FHostSourceControlProvider
{
public:
	explicit FHostSourceControlProvider(ISourceControlProvider& Provider);
	~FHostSourceControlProvider();
	UE_NONCOPYABLE(FHostSourceControlProvider)
};
