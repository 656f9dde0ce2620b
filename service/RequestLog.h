#pragma once

#include <chrono>
#include <fstream>
#include <mutex>

#include <httplib.h>

namespace LocalService
{
class WireStream;

/**
 * One JSON object a line for each request, written before its answer goes out (whoever has the answer finds the line):
 * `time` (seconds since the start at which it came, monotonic), `method`, `path`, `query` (as sent), `headers` ([name, value]
 * in the order of the wire), `body` when it is JSON or else `raw_body`, `status` (0: the connection was dropped), `answer` or
 * `raw_answer`. Safe to call from any thread.
 */
class RequestLog
{
public:
	/** Appends to the file; with an empty path, to standard output. Throws SetupError. */
	explicit RequestLog(const std::string& Path);

	void Write(const WireStream& Stream, const httplib::Request& Request, const httplib::Response& Response);

private:
	const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
	std::mutex Guard;
	std::ofstream File;
	std::ostream& Out;
};
}
