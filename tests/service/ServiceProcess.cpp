#include "ServiceProcess.h"

#include <csignal>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <openssl/ssl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
namespace fs = std::filesystem;

/** Starts the program; its standard output and error go to the two descriptors. */
pid_t Launch(const std::vector<std::string>& Arguments, int Out, int Error)
{
	std::vector<char*> Pointers{ const_cast<char*>(SERVICE_PROGRAM) };
	for (const std::string& Argument : Arguments)
	{
		Pointers.push_back(const_cast<char*>(Argument.c_str()));
	}
	Pointers.push_back(nullptr);
	const pid_t Child = fork();
	if (Child == 0)
	{
		dup2(Out, STDOUT_FILENO);
		dup2(Error, STDERR_FILENO);
		execv(SERVICE_PROGRAM, Pointers.data());
		_exit(127);
	}
	return Child;
}

int AwaitEnd(pid_t Child)
{
	int Status = 0;
	waitpid(Child, &Status, 0);
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

struct Pipe
{
	Pipe() { EXPECT_EQ(pipe2(Ends, O_CLOEXEC), 0); }
	~Pipe()
	{
		close(Ends[0]);
		CloseWriter();
	}
	void CloseWriter() { close(std::exchange(Ends[1], -1)); }
	int Ends[2] = { -1, -1 };
};

std::string ReadUntil(int Descriptor, char Stop)
{
	std::string Text;
	for (char Byte; read(Descriptor, &Byte, 1) == 1 && Byte != Stop;)
	{
		Text.push_back(Byte);
	}
	return Text;
}
}

TemporaryDirectory::TemporaryDirectory()
{
	std::string Template = (fs::temp_directory_path() / "kestrin-service-XXXXXX").string();
	EXPECT_NE(mkdtemp(Template.data()), nullptr);
	Path = Template;
}

TemporaryDirectory::~TemporaryDirectory()
{
	std::error_code Ignored;
	fs::remove_all(Path, Ignored);
}

std::string ReadText(const fs::path& Path)
{
	std::ifstream In(Path, std::ios::binary);
	std::ostringstream Text;
	Text << In.rdbuf();
	return Text.str();
}

void WriteText(const fs::path& Path, const std::string& Text)
{
	std::ofstream(Path, std::ios::binary) << Text;
}

Ending RunToEnd(const std::vector<std::string>& Arguments)
{
	Pipe Out;
	Pipe Error;
	const pid_t Child = Launch(Arguments, Out.Ends[1], Error.Ends[1]);
	Out.CloseWriter();
	Error.CloseWriter();
	Ending Result;
	Result.Out = ReadUntil(Out.Ends[0], '\0');
	Result.Error = ReadUntil(Error.Ends[0], '\0');
	Result.Code = AwaitEnd(Child);
	return Result;
}

ServiceProcess::ServiceProcess(const Json& Rules, const std::vector<std::string>& More)
	: Files(Own)
{
	std::vector<std::string> Arguments = More;
	if (!Rules.is_null())
	{
		WriteText(Own / "scenario.json", Json{ { "rules", Rules } }.dump());
		Arguments.insert(Arguments.end(), { "--scenario", (Own / "scenario.json").string() });
	}
	Start(Arguments);
}

ServiceProcess::ServiceProcess(const TemporaryDirectory& InFiles, const std::vector<std::string>& More)
	: Files(InFiles)
{
	Start(More);
}

ServiceProcess::~ServiceProcess()
{
	Stop();
}

void ServiceProcess::Start(const std::vector<std::string>& More)
{
	std::vector<std::string> Arguments{ "--port", "0", "--cert-dir", (Files / "").string(), "--log", (Files / "log").string() };
	Arguments.insert(Arguments.end(), More.begin(), More.end());
	Pipe Out;
	Process = Launch(Arguments, Out.Ends[1], STDERR_FILENO);
	Out.CloseWriter();
	const std::string Line = ReadUntil(Out.Ends[0], '\n');
	const std::string Expected = "listening on 127.0.0.1:";
	ASSERT_TRUE(Line.starts_with(Expected)) << Line;
	Port = std::stoi(Line.substr(Expected.size()));
}

int ServiceProcess::Stop()
{
	if (Process <= 0)
	{
		return -1;
	}
	kill(Process, SIGTERM);
	return AwaitEnd(std::exchange(Process, -1));
}

std::unique_ptr<httplib::SSLClient> ServiceProcess::Connect(const std::string& Host) const
{
	auto Client = std::make_unique<httplib::SSLClient>(Host, Port);
	Client->set_ca_cert_path(GetCertificate().c_str());
	Client->set_keep_alive(true);
	Client->set_tcp_nodelay(true);
	return Client;
}

std::string ServiceProcess::Exchange(const std::string& Request) const
{
	const std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> Context(SSL_CTX_new(TLS_client_method()), SSL_CTX_free);
	SSL_CTX_load_verify_locations(Context.get(), GetCertificate().c_str(), nullptr);
	SSL_CTX_set_verify(Context.get(), SSL_VERIFY_PEER, nullptr);
	const std::unique_ptr<BIO, decltype(&BIO_free_all)> Connection(BIO_new_ssl_connect(Context.get()), BIO_free_all);
	BIO_set_conn_hostname(Connection.get(), ("127.0.0.1:" + std::to_string(Port)).c_str());
	EXPECT_EQ(BIO_write(Connection.get(), Request.data(), static_cast<int>(Request.size())), static_cast<int>(Request.size()));
	std::string Answer;
	char Chunk[4096];
	for (int Got; (Got = BIO_read(Connection.get(), Chunk, sizeof Chunk)) > 0;)
	{
		Answer.append(Chunk, static_cast<size_t>(Got));
	}
	return Answer;
}

std::vector<Json> ServiceProcess::GetLog() const
{
	std::ifstream In(Files / "log");
	std::vector<Json> Lines;
	for (std::string Line; std::getline(In, Line);)
	{
		Lines.push_back(Json::parse(Line));
	}
	return Lines;
}

Talk::Talk(const ServiceProcess& Service, std::string Id)
	: Client(Service.Connect())
	, Headers{ { "conversation-id", std::move(Id) } }
{
}

std::string Talk::Post(const Json& Body)
{
	const auto Answer = Client->Post("/prod/command", Headers, Body.dump(), "application/json");
	EXPECT_TRUE(Answer) << to_string(Answer.error());
	return Answer ? Json::parse(Answer->body).value("request_id", "") : "";
}

Json Talk::Poll(const std::string& RequestId)
{
	const auto Answer = Client->Get("/prod/status?request_id=" + RequestId, Headers);
	EXPECT_TRUE(Answer) << to_string(Answer.error());
	return Answer ? Json::parse(Answer->body) : Json();
}

Json Talk::Ask(const Json& Body)
{
	const Json Status = Poll(Post(Body));
	EXPECT_EQ(Status.value("status", ""), "COMPLETED") << Status;
	return Status.value("response", Json::object());
}

std::string Talk::AskText(const Json& Body)
{
	for (const Json& Block : Ask(Body).value("response", Json::array()))
	{
		if (Block.value("type", "") == "text")
		{
			return Block.value("text", "");
		}
	}
	return "";
}

Json ResultBody(const std::string& Id, const std::string& Content, bool bIsError)
{
	return { { "tool_results",
		Json::array({ { { "type", "tool_result" }, { "tool_use_id", Id }, { "content", Content }, { "is_error", bIsError } } }) } };
}
