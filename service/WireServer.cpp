#include "WireServer.h"

#include <algorithm>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace LocalService
{
namespace
{
using namespace std::chrono_literals;

constexpr auto KeepAlive = 60s;
constexpr auto ReadPatience = 5s;
constexpr size_t Threads = 32;
constexpr std::string_view HeadEnd = "\r\n\r\n";

thread_local WireStream* Current = nullptr;

void ReadAddress(int Socket, decltype(&getpeername) Ask, std::string& Ip, int& Port)
{
	sockaddr_in Address{};
	socklen_t Length = sizeof Address;
	char Text[INET_ADDRSTRLEN] = "";
	if (Ask(Socket, reinterpret_cast<sockaddr*>(&Address), &Length) == 0 && inet_ntop(AF_INET, &Address.sin_addr, Text, sizeof Text))
	{
		Ip = Text;
		Port = ntohs(Address.sin_port);
	}
}
}

WireStream::WireStream(SSL* InTls, int InSocket, std::function<bool()> InIsStopping)
	: Tls(InTls)
	, Socket(InSocket)
	, IsStopping(std::move(InIsStopping))
{
}

bool WireStream::AwaitRequest(std::chrono::milliseconds Patience)
{
	Head.clear();
	bHeadComplete = false;
	bHeadSent = false;
	const bool bCame = AwaitBytes(Patience);
	Arrival = std::chrono::steady_clock::now();
	return bCame;
}

bool WireStream::AwaitBytes(std::chrono::milliseconds Patience) const
{
	// Short steps, so that the end of the program does not wait for silent clients.
	constexpr auto Step = 100ms;
	for (; Patience > 0ms && !IsStopping(); Patience -= Step)
	{
		pollfd Poll{ Socket, POLLIN, 0 };
		if (SSL_pending(Tls) > 0 || poll(&Poll, 1, static_cast<int>(Step.count())) > 0)
		{
			return true;
		}
	}
	return false;
}

bool WireStream::is_readable() const
{
	pollfd Poll{ Socket, POLLIN, 0 };
	return SSL_pending(Tls) > 0 || poll(&Poll, 1, 0) > 0;
}

ssize_t WireStream::read(char* Data, size_t Size)
{
	if (!AwaitBytes(ReadPatience))
	{
		return -1;
	}
	size_t Got = 0;
	if (SSL_read_ex(Tls, Data, Size, &Got) != 1)
	{
		return SSL_get_error(Tls, 0) == SSL_ERROR_ZERO_RETURN ? 0 : -1;
	}
	std::for_each(Data, Data + Got, [this](char Byte) { Record(Byte); });
	return static_cast<ssize_t>(Got);
}

void WireStream::Record(char Byte)
{
	if (bHeadComplete)
	{
		return;
	}
	Head.push_back(Byte);
	bHeadComplete = Head.ends_with(HeadEnd);
}

ssize_t WireStream::write(const char* Data, size_t Size)
{
	// The head goes out in one piece, the body behind it.
	const bool bIsHead = !bHeadSent;
	bHeadSent = true;
	size_t Allowed = Size;
	if (bIsHead && !bSendHead)
	{
		Allowed = 0;
	}
	else if (!bIsHead && BodyLimit)
	{
		Allowed = std::min(Size, *BodyLimit);
		*BodyLimit -= Allowed;
	}
	size_t Sent = 0;
	if (Allowed == 0 || SSL_write_ex(Tls, Data, Allowed, &Sent) != 1)
	{
		return -1;
	}
	return static_cast<ssize_t>(Sent);
}

void WireStream::get_remote_ip_and_port(std::string& Ip, int& Port) const
{
	ReadAddress(Socket, getpeername, Ip, Port);
}

void WireStream::get_local_ip_and_port(std::string& Ip, int& Port) const
{
	ReadAddress(Socket, getsockname, Ip, Port);
}

WireServer::WireServer(TlsContext InContext)
	: Context(std::move(InContext))
{
	// A thread serves one connection for as long as it lives: enough of them for clients that keep several open.
	new_task_queue = [] { return new httplib::ThreadPool(Threads); };
	set_keep_alive_timeout(KeepAlive.count());
	set_keep_alive_max_count(1'000'000);
	set_tcp_nodelay(true);
	// httplib would let two programs share a port, and half of the requests would go astray.
	set_socket_options(
		[](socket_t Socket)
		{
		const int On = 1;
		setsockopt(Socket, SOL_SOCKET, SO_REUSEADDR, &On, sizeof On);
	});
}

WireStream& WireServer::CurrentStream()
{
	return *Current;
}

bool WireServer::process_and_close_socket(socket_t Socket)
{
	const std::unique_ptr<SSL, decltype(&SSL_free)> Tls(SSL_new(Context.get()), SSL_free);
	WireStream Stream(Tls.get(), Socket, [this] { return svr_sock_ == INVALID_SOCKET; });
	if (Tls && SSL_set_fd(Tls.get(), Socket) == 1 && Stream.AwaitRequest(ReadPatience) && SSL_accept(Tls.get()) == 1)
	{
		Serve(Stream);
		if (!Stream.IsSpoiled())
		{
			SSL_shutdown(Tls.get());
		}
	}
	::shutdown(Socket, SHUT_RDWR);
	::close(Socket);
	return true;
}

void WireServer::Serve(WireStream& Stream)
{
	Current = &Stream;
	bool bClosed = false;
	while (!bClosed && !Stream.IsSpoiled() && Stream.AwaitRequest(KeepAlive))
	{
		// Answers go out uncompressed: a cut answer is cut at a byte of the JSON, and the log shows what was sent.
		const bool bAnswered =
			process_request(Stream, false, bClosed, [](httplib::Request& Request) { Request.headers.erase("Accept-Encoding"); });
		if (!bAnswered)
		{
			break;
		}
	}
	Current = nullptr;
}
}
