#pragma once

#include "Scenario.h"

#include <chrono>
#include <mutex>
#include <unordered_map>

namespace LocalService
{
/** An answer of the service before it goes out. */
struct Reply
{
	int Code = 200;
	Json Body;
	Fault Change;
};

/** All conversations and the work that they asked for. Safe to call from any thread. */
class Conversations
{
public:
	explicit Conversations(Scenario InRules)
		: Rules(std::move(InRules))
	{
	}

	/** Starts the work that the rules give for this command: `{"request_id": ...}`. */
	Reply Command(const std::string& ConversationId, const Json& Body);

	/** How that work stands; 404 for an id that was never given out. The answer of finished work stays the same. */
	Reply Status(const std::string& RequestId);

private:
	struct Conversation
	{
		std::string Step = Scenario::FirstStep;
		/** The names of the tools that the service asked for, by the ids of the calls. */
		std::unordered_map<std::string, std::string> ToolNames;
	};
	struct Work
	{
		const Rule* Origin = nullptr;
		/** What the status is when the work is done. */
		Json Outcome;
		std::chrono::steady_clock::time_point Started;
		size_t PollsSeen = 0;
	};

	static Turn Understand(const Conversation& From, const Json& Body);
	static Json Decide(Conversation& From, const Rule* Chosen, const Turn& Said);

	const Scenario Rules;
	std::mutex Guard;
	std::unordered_map<std::string, Conversation> ById;
	std::unordered_map<std::string, Work> ByRequest;
};
}
