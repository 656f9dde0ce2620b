#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <openssl/ssl.h>
#include <string>
#include <thread>
#include <vector>

/** A request, byte for byte as it came over the wire. */
struct WireRequest
{
	std::string FirstLine;
	std::vector<std::string> HeaderLines;
	std::string Body;
};

/**
 * A TLS server on a free port of 127.0.0.1, with a certificate of its own making. It gives each request to Answer, on a thread of its
 * own, sends the bytes that come back and closes the connection.
 */
class TlsServer
{
public:
	using Handler = std::function<std::string(const WireRequest& Request)>;

	explicit TlsServer(Handler InAnswer);
	~TlsServer();
	TlsServer(const TlsServer&) = delete;
	TlsServer& operator=(const TlsServer&) = delete;

	/** Such as "https://127.0.0.1:4711". */
	std::string Url() const;
	/** The certificate to trust, in PEM form. */
	std::string Certificate() const;
	std::vector<WireRequest> Requests() const;
	/** True once the server is about to end: what a handler waits for it waits for together with this. */
	bool IsEnding() const { return bEnding; }

private:
	void Listen();
	void AcceptLoop();
	void Serve(int Socket);

	const Handler Answer;
	std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)> Context;
	std::unique_ptr<X509, void (*)(X509*)> OwnCertificate;
	int ListenSocket = -1;
	int Port = 0;
	std::atomic<bool> bEnding = false;
	mutable std::mutex Lock;
	std::vector<WireRequest> Received;
	std::vector<std::thread> Connections;
	std::thread Acceptor;
};

/** An answer with its length told truly. */
std::string HttpAnswer(int Code, const std::string& Body, const std::string& ExtraHeaders = "");
