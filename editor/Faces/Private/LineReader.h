#pragma once

#include "CoreMinimal.h"

#include <deque>
#include <mutex>
#include <string>

/** Reads the lines of standard input on a thread of its own, so that the main loop goes on meanwhile; each line wakes it. */
class FLineReader
{
public:
	FLineReader();
	UE_NONCOPYABLE(FLineReader)

	/** Takes the oldest line that has come; false when there is none yet. */
	bool Take(FString& OutLine);
	/** Whether there is no further line, now or later. */
	bool HasEnded() const;

private:
	/** Outlives the reader: the thread may hang in its read for as long as the program runs. */
	struct FQueue
	{
		std::mutex Lock;
		std::deque<std::string> Lines;
		bool bEnded = false;
	};

	static void Read(const std::shared_ptr<FQueue>& Queue);

	std::shared_ptr<FQueue> Queue = std::make_shared<FQueue>();
};
