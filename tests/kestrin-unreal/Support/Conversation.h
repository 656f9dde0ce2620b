#pragma once

#include "Agent/Agent.h"
#include "HTTPHost/ScriptedTransport.h"
#include "Support/TestProject.h"

#include <string>
#include <vector>

/**
 * The agent in a project of its own, with a scripted service, a clock that the test moves, and a record of what the chat shows.
 * The agent is in Idle at the beginning, and is brought there at the end.
 */
class FConversation
{
public:
	explicit FConversation(std::string_view ProjectName = "Project");
	~FConversation();
	UE_NONCOPYABLE(FConversation)

	FTestProject Project;
	FScriptedTransport Wire;
	/** The lines of the chat so far, each "look|text"; a diff is "diff|path|old|new". */
	std::vector<std::string> Chat;
	/** Every state that listeners were told of. */
	std::vector<std::string> States;

	/** Answers the newest request and lets the answer arrive. */
	void Answer(int32 Code, std::string_view Body);
	/** The newest request was a command: the service takes it on. */
	void Accept(std::string_view RequestId = "r1");
	/** Moves the clock on until a poll has gone out. */
	void WaitForPoll();
	/** Accepts the newest command, waits for its poll and answers it as finished. @param Response a JSON object */
	void Finish(std::string_view Response, std::string_view RequestId = "r1");
	/** Finishes with these blocks, a JSON array's items, and the answer's "auto_continue". */
	void FinishWith(std::string_view Blocks, bool bAutoContinue = false);
	/** Starts a conversation and finishes its first answer with these blocks. */
	void StartAndFinishWith(std::string_view Blocks, bool bAutoContinue = false);

	/** Runs a tool as an answer of the service would. @param Input a JSON object */
	std::string RunTool(const char* Tool, std::string_view Input);

	std::string State() const;
	const FScriptedRequest& LastRequest() const { return Wire.GetRequests().Last(); }
	std::string LastBody() const { return ToUtf8(LastRequest().Body); }
	/** How many requests of that verb there were. */
	int32 CountRequests(const TCHAR* Verb) const;
	/** Forgets the chat and the states. */
	void Forget();

private:
	FDelegateHandle StateHandle;
};

/** Names a state in the messages of a failed test. */
std::string StateName(EAgentState State);
