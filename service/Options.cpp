#include "Options.h"

#include <charconv>
#include <functional>
#include <map>
#include <string_view>

namespace LocalService
{
namespace
{
int ReadPort(const std::string& Text)
{
	int Port = -1;
	const char* End = Text.data() + Text.size();
	const auto [Stop, Problem] = std::from_chars(Text.data(), End, Port);
	if (Problem != std::errc() || Stop != End || Port < 0 || Port > 65535)
	{
		throw SetupError("--port: expected a number from 0 to 65535, got '" + Text + "'");
	}
	return Port;
}

using Setter = std::function<void(Options&, const std::string&)>;

const std::map<std::string_view, Setter>& ValueOptions()
{
	static const std::map<std::string_view, Setter> Table = {
		{ "--port", [](Options& Out, const std::string& Value) { Out.Port = ReadPort(Value); } },
		{ "--cert-dir", [](Options& Out, const std::string& Value) { Out.CertificateDirectory = Value; } },
		{ "--scenario", [](Options& Out, const std::string& Value) { Out.ScenarioFile = Value; } },
		{ "--key", [](Options& Out, const std::string& Value) { Out.Key = Value; } },
		{ "--log", [](Options& Out, const std::string& Value) { Out.LogFile = Value; } },
	};
	return Table;
}
}

Options ReadOptions(std::span<char*> Arguments)
{
	Options Result;
	for (size_t Index = 0; Index < Arguments.size(); ++Index)
	{
		const std::string Name = Arguments[Index];
		if (Name == "--help")
		{
			Result.bHelp = true;
			continue;
		}
		const auto Found = ValueOptions().find(Name);
		if (Found == ValueOptions().end())
		{
			throw SetupError("unknown option '" + Name + "'; --help lists the options");
		}
		if (++Index == Arguments.size() || *Arguments[Index] == '\0')
		{
			throw SetupError(Name + ": a value is missing");
		}
		Found->second(Result, Arguments[Index]);
	}
	return Result;
}

const char* HelpText()
{
	return "kestrin-service: answers the assistant's protocol on this machine, by a scenario.\n"
		   "\n"
		   "  --port N         port on 127.0.0.1 (default 8443; 0: any free one)\n"
		   "  --cert-dir DIR   where the certificate lies, made when missing (default certificates);\n"
		   "                   clients trust DIR/cacert.pem\n"
		   "  --scenario FILE  rules for the answers (docs/service.md)\n"
		   "  --key KEY        the x-api-key that requests must carry (default: any)\n"
		   "  --log FILE       appends one JSON line for each request (default: standard output)\n"
		   "  --help           this text\n"
		   "\n"
		   "Prints 'listening on 127.0.0.1:PORT' when it is ready; ends on SIGINT or SIGTERM.\n";
}
}
