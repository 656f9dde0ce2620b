#pragma once

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "Support/Program.h"
#include "Support/Project.h"

/** How many times as fast the editor's clock runs where a test does not say otherwise. */
constexpr int ClockRate = 40;

/** One headless session, or, with "--window" among the options, one beside a window. Whatever comes that is no event of the contract fails the test. */
class Session
{
public:
	explicit Session(const Project& In, std::vector<std::string> Options = { "--clock-rate", std::to_string(ClockRate) });

	/** Ends it, unless that was done. */
	~Session();
	Session(const Session&) = delete;
	Session& operator=(const Session&) = delete;

	/** The first event. */
	const Json& GetReady() const { return Ready; }

	void Send(const Json& Command) { SendLine(Command.dump()); }
	void SendLine(const std::string& Line) { Editor.Write(Line + "\n"); }
	void SendBytes(std::string_view Bytes) { Editor.Write(Bytes); }

	/** The next event; null at the end of output, or with the test failed after the time. */
	Json Next(double Seconds = 20);
	/** Events up to and with the next of that kind. */
	std::vector<Json> Until(const std::string& Event);

	/** Sends the commands and gives all events until the last of them is done. */
	std::vector<Json> Run(const std::vector<Json>& Commands);
	/** The `state` event that answers a query. */
	Json Query() { return Run({ { { "do", "query" } } }).back(); }
	std::string GetState() { return Query().value("state", ""); }

	/** Closes the input. What comes until the end; the program must leave with `ExitCode`. */
	std::vector<Json> End(int ExitCode = 0);

private:
	Program Editor;
	Json Ready;
};

Json Do(const std::string& Name);
Json Do(const std::string& Name, const std::string& Text);
Json Set(const std::string& Name, const Json& Value);
/** Waits up to 20 seconds of real time. */
Json WaitFor(const std::string& State);

/**
 * What a person would see of the events, a text each: "look|text" of a chat line, "diff|path", "> State", "waited State",
 * "timed out", "error", "tool|content". Further polls in a row count as one: a slow machine may need more of them.
 */
std::vector<std::string> Transcript(const std::vector<Json>& Events);

/** The bodies of the POSTs that the service has got; the tree of a first prompt is shortened to "TREE". */
std::vector<Json> PostedBodies(const ServiceProcess& Service);
/** The requests of that method. */
std::vector<Json> LoggedRequests(const ServiceProcess& Service, const std::string& Method);

/** The lines that come with every request. */
inline const std::string Sending = "progress|Sending request...";
inline const std::string Processing = "progress|Processing request...";
