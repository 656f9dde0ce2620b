#pragma once

#include "Conversations.h"
#include "RequestLog.h"
#include "WireServer.h"

#include <condition_variable>
#include <mutex>

namespace LocalService
{
/** The protocol over HTTPS: keys, commands and polls, faults on the way out, and the log. */
class Routes
{
public:
	Routes(WireServer& InServer, Scenario Rules, std::string InKey, RequestLog& InLog);

	/** Lets answers that are held back go at once. */
	void EndDelays();

private:
	void HandleCommand(const httplib::Request& Request, httplib::Response& Response);
	void HandleStatus(const httplib::Request& Request, httplib::Response& Response);
	bool IsKeyRight(const httplib::Request& Request) const;
	void Send(const Reply& Answer, httplib::Response& Response);
	void Delay(double Seconds);

	Conversations Talks;
	const std::string Key;
	std::mutex Guard;
	std::condition_variable Ending;
	bool bEnding = false;
};
}
