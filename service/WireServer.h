#pragma once

#include "Certificate.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include <httplib.h>

namespace LocalService
{
/** One TLS connection. Keeps the bytes of the head that is being answered, and can spoil the answer on its way out. */
class WireStream : public httplib::Stream
{
public:
	WireStream(SSL* InTls, int InSocket, std::function<bool()> InIsStopping);

	/** Makes ready for the next request; false when none came in time. */
	bool AwaitRequest(std::chrono::milliseconds Patience);

	/** The request line and the header lines as they came, up to the empty line. */
	const std::string& GetHead() const { return Head; }
	std::chrono::steady_clock::time_point GetArrival() const { return Arrival; }

	/** Sends nothing more and closes the connection. */
	void Drop() { BodyLimit = 0, bSendHead = false; }
	/** Sends the answer's head and `Bytes` bytes of its body, then closes the connection. */
	void CutBody(size_t Bytes) { BodyLimit = Bytes; }
	bool IsDropped() const { return !bSendHead; }
	bool IsSpoiled() const { return BodyLimit.has_value(); }

	bool is_readable() const override;
	bool is_writable() const override { return true; }
	ssize_t read(char* Data, size_t Size) override;
	ssize_t write(const char* Data, size_t Size) override;
	void get_remote_ip_and_port(std::string& Ip, int& Port) const override;
	void get_local_ip_and_port(std::string& Ip, int& Port) const override;
	socket_t socket() const override { return Socket; }

private:
	bool AwaitBytes(std::chrono::milliseconds Patience) const;
	void Record(char Byte);

	SSL* Tls;
	int Socket;
	std::function<bool()> IsStopping;
	std::string Head;
	std::chrono::steady_clock::time_point Arrival;
	bool bHeadComplete = false;
	bool bSendHead = true;
	bool bHeadSent = false;
	std::optional<size_t> BodyLimit;
};

/**
 * httplib's server over TLS of our own: its own keeps headers in a sorted map, and the order on the wire matters here.
 * Handlers run on a pool of threads.
 */
class WireServer : public httplib::Server
{
public:
	explicit WireServer(TlsContext InContext);

	/** The connection whose request the calling handler answers. Valid inside handlers alone. */
	static WireStream& CurrentStream();

private:
	bool process_and_close_socket(socket_t Socket) override;
	void Serve(WireStream& Stream);

	TlsContext Context;
};
}
