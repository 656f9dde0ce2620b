#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <httplib.h>
#include <nlohmann/json.hpp>

using Json = nlohmann::ordered_json;

/** A new directory that goes away with the object. */
class TemporaryDirectory
{
public:
	TemporaryDirectory();
	~TemporaryDirectory();
	TemporaryDirectory(const TemporaryDirectory&) = delete;
	TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

	std::filesystem::path operator/(const std::string& Name) const { return Path / Name; }

private:
	std::filesystem::path Path;
};

std::string ReadText(const std::filesystem::path& Path);
void WriteText(const std::filesystem::path& Path, const std::string& Text);

/** How the program ended, for runs that end by themselves. */
struct Ending
{
	int Code = -1;
	std::string Out;
	std::string Error;
};
Ending RunToEnd(const std::vector<std::string>& Arguments);

/** The real program on a free port, with its files in a directory. Ended with the object. */
class ServiceProcess
{
public:
	/** `Rules` is the array of a scenario's rules; null for none. */
	explicit ServiceProcess(const Json& Rules = nullptr, const std::vector<std::string>& More = {});
	/** Over the files of an earlier run. */
	ServiceProcess(const TemporaryDirectory& InFiles, const std::vector<std::string>& More);
	~ServiceProcess();
	ServiceProcess(const ServiceProcess&) = delete;
	ServiceProcess& operator=(const ServiceProcess&) = delete;

	int GetPort() const { return Port; }
	std::filesystem::path GetCertificate() const { return Files / "cacert.pem"; }

	/** Trusts the service's certificate. */
	std::unique_ptr<httplib::SSLClient> Connect(const std::string& Host = "127.0.0.1") const;

	/** Sends the bytes over TLS and reads until the service closes the connection. */
	std::string Exchange(const std::string& Request) const;

	/** The request log so far. */
	std::vector<Json> GetLog() const;

	/** SIGTERM; the exit code, or -1 after a signal. */
	int Stop();

private:
	void Start(const std::vector<std::string>& More);

	TemporaryDirectory Own;
	const TemporaryDirectory& Files;
	pid_t Process = -1;
	int Port = 0;
};

/** One conversation with the service, as the plug-in leads it. */
class Talk
{
public:
	Talk(const ServiceProcess& Service, std::string InId = "talk");

	/** Posts the body; the request id, or an empty text with the test failed. */
	std::string Post(const Json& Body);
	/** One poll: the whole status object. */
	Json Poll(const std::string& RequestId);
	/** Posts and polls once: the `response` array's object. */
	Json Ask(const Json& Body);
	/** As Ask; the text of the first text block. */
	std::string AskText(const Json& Body);

private:
	std::unique_ptr<httplib::SSLClient> Client;
	httplib::Headers Headers;
};

/** A command that carries one tool result. */
Json ResultBody(const std::string& Id, const std::string& Content, bool bIsError = false);
