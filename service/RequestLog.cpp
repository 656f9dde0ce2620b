#include "RequestLog.h"

#include "Json.h"
#include "Options.h"
#include "WireServer.h"

#include <iostream>

namespace LocalService
{
namespace
{
/** What stands before the separator; the text goes on behind it. All of it when there is none. */
std::string_view TakeUntil(std::string_view& Text, std::string_view Separator)
{
	const size_t End = Text.find(Separator);
	const std::string_view Taken = Text.substr(0, End);
	Text.remove_prefix(End == std::string_view::npos ? Text.size() : End + Separator.size());
	return Taken;
}

std::string_view TrimBlanks(std::string_view Text)
{
	constexpr std::string_view Blanks = " \t";
	const size_t First = Text.find_first_not_of(Blanks);
	return First == std::string_view::npos ? std::string_view() : Text.substr(First, Text.find_last_not_of(Blanks) - First + 1);
}

void AddHead(Json& Line, std::string_view Head)
{
	std::string_view RequestLine = TakeUntil(Head, "\r\n");
	Line["method"] = TakeUntil(RequestLine, " ");
	std::string_view Target = TakeUntil(RequestLine, " ");
	Line["path"] = TakeUntil(Target, "?");
	Line["query"] = Target;
	Json& Headers = Line["headers"] = Json::array();
	for (std::string_view Header = TakeUntil(Head, "\r\n"); !Header.empty(); Header = TakeUntil(Head, "\r\n"))
	{
		const std::string_view Name = TakeUntil(Header, ":");
		Headers.push_back(Json::array({ Name, TrimBlanks(Header) }));
	}
}

void AddContent(Json& Line, const std::string& Name, const std::string& Text)
{
	if (Text.empty())
	{
		return;
	}
	Json Parsed = ParseJson(Text);
	if (Parsed.is_discarded())
	{
		Line["raw_" + Name] = Text;
	}
	else
	{
		Line[Name] = std::move(Parsed);
	}
}
}

RequestLog::RequestLog(const std::string& Path)
	: Out(Path.empty() ? std::cout : File)
{
	if (!Path.empty())
	{
		File.open(Path, std::ios::app);
		if (!File)
		{
			throw SetupError("--log: cannot write " + Path);
		}
	}
}

void RequestLog::Write(const WireStream& Stream, const httplib::Request& Request, const httplib::Response& Response)
{
	const std::chrono::duration<double> Time = Stream.GetArrival() - Start;
	Json Line = { { "time", Time.count() } };
	AddHead(Line, Stream.GetHead());
	AddContent(Line, "body", Request.body);
	Line["status"] = Stream.IsDropped() ? 0 : Response.status;
	AddContent(Line, "answer", Stream.IsDropped() ? std::string() : Response.body);
	const std::scoped_lock Lock(Guard);
	Out << ToText(Line) << std::endl;
}
}
