#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <fstream>

/** What a build says: kept, logged under LogCompile and written to the log file. One thread at a time. */
class FBuildLog
{
public:
	/** Begins the log file anew. */
	FBuildLog();

	void Add(const FString& Line);
	/** All lines, each with its end. */
	const FString& GetText() const { return Text; }

private:
	FString Text;
	std::ofstream File;
};
