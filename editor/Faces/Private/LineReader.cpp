#include "LineReader.h"

#include "CoreHost/MainLoop.h"

#include <iostream>
#include <thread>

FLineReader::FLineReader()
{
	std::thread([Kept = Queue] { Read(Kept); }).detach();
}

void FLineReader::Read(const std::shared_ptr<FQueue>& Queue)
{
	std::string Line;
	while (std::getline(std::cin, Line))
	{
		{
			const std::lock_guard Guard(Queue->Lock);
			Queue->Lines.push_back(std::move(Line));
		}
		FMainLoop::Wake();
	}
	{
		const std::lock_guard Guard(Queue->Lock);
		Queue->bEnded = true;
	}
	FMainLoop::Wake();
}

bool FLineReader::Take(FString& OutLine)
{
	const std::lock_guard Guard(Queue->Lock);
	if (Queue->Lines.empty())
	{
		return false;
	}
	OutLine = FUtf8::Decode(Queue->Lines.front());
	Queue->Lines.pop_front();
	return true;
}

bool FLineReader::HasEnded() const
{
	const std::lock_guard Guard(Queue->Lock);
	return Queue->bEnded && Queue->Lines.empty();
}
