#include "Conversations.h"

#include "NewId.h"

namespace LocalService
{
namespace
{
std::string TextField(const Json& Object, const char* Name)
{
	const auto Found = Object.find(Name);
	return Found != Object.end() && Found->is_string() ? Found->get<std::string>() : std::string();
}

bool FlagField(const Json& Object, const char* Name)
{
	const auto Found = Object.find(Name);
	return Found != Object.end() && Found->is_boolean() && Found->get<bool>();
}

Json Failed(const std::string& Error)
{
	return { { "status", "FAILED" }, { "error", Error } };
}
}

Turn Conversations::Understand(const Conversation& From, const Json& Body)
{
	Turn Said;
	Said.Step = From.Step;
	if (const auto Message = Body.find("message"); Message != Body.end() && Message->is_string())
	{
		Said.Message = Message->get<std::string>();
	}
	const auto Results = Body.find("tool_results");
	if (Results == Body.end() || !Results->is_array())
	{
		return Said;
	}
	for (const Json& Result : *Results)
	{
		if (Result.is_object())
		{
			const std::string Id = TextField(Result, "tool_use_id");
			const auto Named = From.ToolNames.find(Id);
			Said.Results.push_back({ Named == From.ToolNames.end() ? Id : Named->second, TextField(Result, "content"),
				FlagField(Result, "is_error"), FlagField(Result, "is_abort") });
		}
	}
	return Said;
}

Json Conversations::Decide(Conversation& From, const Rule* Chosen, const Turn& Said)
{
	if (!Chosen)
	{
		return Failed("No rule of the scenario fits this request (step \"" + Said.Step + "\").");
	}
	From.Step = Chosen->Next.value_or(From.Step);
	if (Chosen->Failure)
	{
		return Failed(*Chosen->Failure);
	}
	Json Blocks = FillIn(Chosen->Blocks, Said);
	for (Json& Block : Blocks)
	{
		if (Block.is_object() && TextField(Block, "type") == "tool_use")
		{
			From.ToolNames[TextField(Block, "id")] = TextField(Block, "name");
		}
	}
	Json Response = Json::object();
	if (Chosen->bAutoContinue)
	{
		Response["auto_continue"] = *Chosen->bAutoContinue;
	}
	if (Chosen->Messages)
	{
		Response["messages"] = FillIn(*Chosen->Messages, Said);
	}
	Response["response"] = std::move(Blocks);
	return { { "status", "COMPLETED" }, { "response", std::move(Response) } };
}

Reply Conversations::Command(const std::string& ConversationId, const Json& Body)
{
	const std::scoped_lock Lock(Guard);
	Conversation& From = ById[ConversationId];
	const Turn Said = Understand(From, Body);
	const Rule* Chosen = Rules.Find(Said);
	const std::string RequestId = NewId();
	ByRequest[RequestId] = { Chosen, Decide(From, Chosen, Said), std::chrono::steady_clock::now() };
	return { 200, { { "request_id", RequestId } }, Chosen ? Chosen->CommandFault : Fault() };
}

Reply Conversations::Status(const std::string& RequestId)
{
	const std::scoped_lock Lock(Guard);
	const auto Found = ByRequest.find(RequestId);
	if (Found == ByRequest.end())
	{
		return { 404, { { "message", "Unknown request_id" } }, {} };
	}
	Work& Asked = Found->second;
	static const Rule NoRule;
	const Rule& Origin = Asked.Origin ? *Asked.Origin : NoRule;
	const std::chrono::duration<double> Elapsed = std::chrono::steady_clock::now() - Asked.Started;
	const size_t Poll = Asked.PollsSeen++;
	const bool bDone = Poll >= Origin.Polls && Elapsed.count() >= Origin.Takes;
	return { 200, bDone ? Asked.Outcome : Json{ { "status", "PROCESSING" } },
		Poll < Origin.StatusFaults.size() ? Origin.StatusFaults[Poll] : Fault() };
}
}
