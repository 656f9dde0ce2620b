#include "TlsServer.h"

#include <arpa/inet.h>
#include <csignal>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>
#include <sstream>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
void Require(bool bHeld, const char* What)
{
	if (!bHeld)
	{
		throw std::runtime_error(std::string("test server: ") + What);
	}
}

void AddExtension(X509* Certificate, int Kind, const char* Value)
{
	X509V3_CTX Context;
	X509V3_set_ctx(&Context, Certificate, Certificate, nullptr, nullptr, 0);
	X509_EXTENSION* const Extension = X509V3_EXT_conf_nid(nullptr, &Context, Kind, Value);
	Require(Extension && X509_add_ext(Certificate, Extension, -1) == 1, "extension");
	X509_EXTENSION_free(Extension);
}

X509* MakeCertificate(EVP_PKEY* Key)
{
	X509* const Certificate = X509_new();
	X509_set_version(Certificate, 2);
	ASN1_INTEGER_set(X509_get_serialNumber(Certificate), 1);
	X509_gmtime_adj(X509_getm_notBefore(Certificate), -60);
	X509_gmtime_adj(X509_getm_notAfter(Certificate), 3600);
	X509_set_pubkey(Certificate, Key);
	X509_NAME* const Name = X509_get_subject_name(Certificate);
	X509_NAME_add_entry_by_txt(Name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("test server"), -1, -1, 0);
	X509_set_issuer_name(Certificate, Name);
	AddExtension(Certificate, NID_basic_constraints, "critical,CA:TRUE");
	AddExtension(Certificate, NID_subject_alt_name, "IP:127.0.0.1");
	Require(X509_sign(Certificate, Key, EVP_sha256()) > 0, "signature");
	return Certificate;
}

/** Reads on until Text has a request's head and the body that it tells of; false when the client goes before that. */
bool ReadRequest(SSL* Connection, WireRequest& Out)
{
	std::string Text;
	size_t HeadEnd = std::string::npos;
	size_t Length = 0;
	while (HeadEnd == std::string::npos || Text.size() < HeadEnd + 4 + Length)
	{
		char Buffer[16384];
		const int Count = SSL_read(Connection, Buffer, sizeof Buffer);
		if (Count <= 0)
		{
			return false;
		}
		Text.append(Buffer, static_cast<size_t>(Count));
		if (HeadEnd == std::string::npos && (HeadEnd = Text.find("\r\n\r\n")) != std::string::npos)
		{
			const size_t Header = Text.find("Content-Length: ");
			Length = Header < HeadEnd ? std::stoul(Text.substr(Header + 16)) : 0;
		}
	}
	Out.Body = Text.substr(HeadEnd + 4);
	std::istringstream Head(Text.substr(0, HeadEnd));
	for (std::string Line; std::getline(Head, Line);)
	{
		Line.erase(Line.find_last_not_of('\r') + 1);
		Out.FirstLine.empty() ? (void)(Out.FirstLine = Line) : Out.HeaderLines.push_back(Line);
	}
	return true;
}
}

TlsServer::TlsServer(Handler InAnswer)
	: Answer(std::move(InAnswer))
	, Context(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free)
	, OwnCertificate(nullptr, &X509_free)
{
	// A client that goes in the middle of an answer is nothing special.
	std::signal(SIGPIPE, SIG_IGN);
	EVP_PKEY* const Key = EVP_EC_gen("P-256");
	OwnCertificate.reset(MakeCertificate(Key));
	Require(SSL_CTX_use_certificate(Context.get(), OwnCertificate.get()) == 1, "certificate");
	Require(SSL_CTX_use_PrivateKey(Context.get(), Key) == 1, "key");
	EVP_PKEY_free(Key);
	Listen();
	Acceptor = std::thread([this] { AcceptLoop(); });
}

TlsServer::~TlsServer()
{
	bEnding = true;
	::shutdown(ListenSocket, SHUT_RDWR);
	Acceptor.join();
	for (std::thread& Connection : Connections)
	{
		Connection.join();
	}
	::close(ListenSocket);
}

void TlsServer::Listen()
{
	ListenSocket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
	sockaddr_in Address = {};
	Address.sin_family = AF_INET;
	Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
	socklen_t Size = sizeof Address;
	auto* const General = reinterpret_cast<sockaddr*>(&Address);
	Require(::bind(ListenSocket, General, Size) == 0 && ::listen(ListenSocket, 16) == 0, "listen");
	Require(::getsockname(ListenSocket, General, &Size) == 0, "port");
	Port = ntohs(Address.sin_port);
}

void TlsServer::AcceptLoop()
{
	for (int Socket; (Socket = ::accept(ListenSocket, nullptr, nullptr)) >= 0;)
	{
		Connections.emplace_back([this, Socket] { Serve(Socket); });
	}
}

void TlsServer::Serve(int Socket)
{
	const timeval Patience = { 10, 0 };
	::setsockopt(Socket, SOL_SOCKET, SO_RCVTIMEO, &Patience, sizeof Patience);
	SSL* const Connection = SSL_new(Context.get());
	SSL_set_fd(Connection, Socket);
	WireRequest Request;
	if (SSL_accept(Connection) == 1 && ReadRequest(Connection, Request))
	{
		{
			std::lock_guard Guard(Lock);
			Received.push_back(Request);
		}
		const std::string Bytes = Answer(Request);
		// The client may have gone.
		if (!Bytes.empty() && SSL_write(Connection, Bytes.data(), static_cast<int>(Bytes.size())) > 0)
		{
			SSL_shutdown(Connection);
		}
	}
	SSL_free(Connection);
	::close(Socket);
}

std::string TlsServer::Url() const
{
	return "https://127.0.0.1:" + std::to_string(Port);
}

std::string TlsServer::Certificate() const
{
	BIO* const Memory = BIO_new(BIO_s_mem());
	PEM_write_bio_X509(Memory, OwnCertificate.get());
	char* Data = nullptr;
	const long Size = BIO_get_mem_data(Memory, &Data);
	std::string Text(Data, static_cast<size_t>(Size));
	BIO_free(Memory);
	return Text;
}

std::vector<WireRequest> TlsServer::Requests() const
{
	std::lock_guard Guard(Lock);
	return Received;
}

std::string HttpAnswer(int Code, const std::string& Body, const std::string& ExtraHeaders)
{
	return "HTTP/1.1 " + std::to_string(Code) + " Some Reason\r\nContent-Length: " + std::to_string(Body.size()) + "\r\n" + ExtraHeaders +
		"Connection: close\r\n\r\n" + Body;
}
