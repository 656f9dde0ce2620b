#include "Routes.h"

namespace LocalService
{
namespace
{
constexpr const char* JsonType = "application/json";

Reply Refusal(int Code, const char* Message)
{
	return { Code, { { "message", Message } }, {} };
}
}

Routes::Routes(WireServer& Server, Scenario Rules, std::string InKey, RequestLog& Log)
	: Talks(std::move(Rules))
	, Key(std::move(InKey))
{
	using httplib::Request;
	using httplib::Response;
	Server.Post("(?:/.*)?/command", [this](const Request& Asked, Response& Answer) { HandleCommand(Asked, Answer); });
	Server.Get("(?:/.*)?/status", [this](const Request& Asked, Response& Answer) { HandleStatus(Asked, Answer); });
	Server.set_error_handler(
		[](const Request&, Response& Answer)
		{
		// Answers of ours have a type, however bad their status; this is for what no route took.
		if (!Answer.has_header("Content-Type"))
		{
			Answer.set_content(ToText(Refusal(Answer.status, Answer.status == 404 ? "Not found" : "Bad request").Body), JsonType);
		}
	});
	Server.set_post_routing_handler(
		[&Log](const Request& Asked, Response& Answer) { Log.Write(WireServer::CurrentStream(), Asked, Answer); });
}

void Routes::EndDelays()
{
	{
		const std::scoped_lock Lock(Guard);
		bEnding = true;
	}
	Ending.notify_all();
}

bool Routes::IsKeyRight(const httplib::Request& Request) const
{
	return Key.empty() || Request.get_header_value("x-api-key") == Key;
}

void Routes::HandleCommand(const httplib::Request& Request, httplib::Response& Response)
{
	if (!IsKeyRight(Request))
	{
		return Send(Refusal(401, "Unauthorized"), Response);
	}
	const Json Body = ParseJson(Request.body);
	if (!Body.is_object())
	{
		return Send(Refusal(400, "The body is no JSON object"), Response);
	}
	Send(Talks.Command(Request.get_header_value("conversation-id"), Body), Response);
}

void Routes::HandleStatus(const httplib::Request& Request, httplib::Response& Response)
{
	Send(IsKeyRight(Request) ? Talks.Status(Request.get_param_value("request_id")) : Refusal(401, "Unauthorized"), Response);
}

void Routes::Send(const Reply& Answer, httplib::Response& Response)
{
	const Fault& Change = Answer.Change;
	Delay(Change.Delay);
	Response.status = Change.Code.value_or(Answer.Code);
	Response.set_content(Change.Body ? *Change.Body : ToText(Answer.Body), JsonType);
	if (Change.Cut)
	{
		WireServer::CurrentStream().CutBody(*Change.Cut);
	}
	if (Change.bDrop)
	{
		WireServer::CurrentStream().Drop();
	}
}

void Routes::Delay(double Seconds)
{
	std::unique_lock Lock(Guard);
	Ending.wait_for(Lock, std::chrono::duration<double>(Seconds), [this] { return bEnding; });
}
}
