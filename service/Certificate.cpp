#include "Certificate.h"

#include "Options.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

namespace LocalService
{
namespace
{
namespace fs = std::filesystem;

constexpr long Day = 24 * 60 * 60;
constexpr long Lifetime = 365 * Day;

template <typename T, auto Free>
struct FreeWith
{
	void operator()(T* Object) const { Free(Object); }
};
using Certificate = std::unique_ptr<X509, FreeWith<X509, X509_free>>;
using Key = std::unique_ptr<EVP_PKEY, FreeWith<EVP_PKEY, EVP_PKEY_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, FreeWith<X509_EXTENSION, X509_EXTENSION_free>>;
using File = std::unique_ptr<FILE, FreeWith<FILE, fclose>>;

struct Identity
{
	Certificate Certificate_;
	Key Key_;

	explicit operator bool() const { return Certificate_ && Key_; }
};

[[noreturn]] void FailTls(const char* Doing)
{
	char Reason[256] = "unknown reason";
	ERR_error_string_n(ERR_get_error(), Reason, sizeof Reason);
	throw SetupError(std::string("certificate: ") + Doing + " failed: " + Reason);
}

void Check(bool bWorked, const char* Doing)
{
	if (!bWorked)
	{
		FailTls(Doing);
	}
}

void AddExtension(X509* Target, int Nid, const char* Value)
{
	X509V3_CTX Context;
	X509V3_set_ctx_nodb(&Context);
	X509V3_set_ctx(&Context, Target, Target, nullptr, nullptr, 0);
	const Extension Made(X509V3_EXT_conf_nid(nullptr, &Context, Nid, Value));
	Check(Made && X509_add_ext(Target, Made.get(), -1) == 1, "adding an extension");
}

void SetSerial(X509* Target)
{
	unsigned char Bytes[16];
	Check(RAND_bytes(Bytes, sizeof Bytes) == 1, "drawing a serial number");
	Bytes[0] &= 0x7F;
	const std::unique_ptr<BIGNUM, FreeWith<BIGNUM, BN_free>> Number(BN_bin2bn(Bytes, sizeof Bytes, nullptr));
	Check(Number && BN_to_ASN1_INTEGER(Number.get(), X509_get_serialNumber(Target)) != nullptr, "setting the serial number");
}

void SetNames(X509* Target)
{
	X509_NAME* Name = X509_get_subject_name(Target);
	const auto* Text = reinterpret_cast<const unsigned char*>("Kestrin local service");
	Check(X509_NAME_add_entry_by_txt(Name, "CN", MBSTRING_ASC, Text, -1, -1, 0) == 1, "naming the certificate");
	Check(X509_set_issuer_name(Target, Name) == 1, "naming the issuer");
}

Identity MakeIdentity()
{
	Identity Made{ Certificate(X509_new()), Key(EVP_EC_gen("P-256")) };
	Check(static_cast<bool>(Made), "making a key");
	X509* Target = Made.Certificate_.get();
	Check(X509_set_version(Target, X509_VERSION_3) == 1, "setting the version");
	SetSerial(Target);
	// An hour back: clocks of clients in containers may lag.
	X509_gmtime_adj(X509_getm_notBefore(Target), -60 * 60);
	X509_gmtime_adj(X509_getm_notAfter(Target), Lifetime);
	Check(X509_set_pubkey(Target, Made.Key_.get()) == 1, "setting the public key");
	SetNames(Target);
	AddExtension(Target, NID_basic_constraints, "critical,CA:TRUE");
	AddExtension(Target, NID_key_usage, "critical,digitalSignature,keyCertSign");
	AddExtension(Target, NID_ext_key_usage, "serverAuth");
	AddExtension(Target, NID_subject_key_identifier, "hash");
	AddExtension(Target, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1,IP:::1");
	Check(X509_sign(Target, Made.Key_.get(), EVP_sha256()) > 0, "signing");
	return Made;
}

/** Written beside and renamed, so that a reader never sees half a file. */
void WriteFile(const fs::path& Path, const Identity& From, bool bWithKey)
{
	const fs::path Beside = Path.string() + "." + std::to_string(getpid());
	const int Descriptor = open(Beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC, bWithKey ? 0600 : 0644);
	File Out(Descriptor < 0 ? nullptr : fdopen(Descriptor, "w"));
	bool bWritten = Out && PEM_write_X509(Out.get(), From.Certificate_.get()) == 1;
	if (bWritten && bWithKey)
	{
		bWritten = PEM_write_PrivateKey(Out.get(), From.Key_.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1;
	}
	bWritten = Out && fclose(Out.release()) == 0 && bWritten;
	std::error_code Problem;
	if (bWritten)
	{
		fs::rename(Beside, Path, Problem);
	}
	if (!bWritten || Problem)
	{
		throw SetupError("certificate: cannot write " + Path.string());
	}
}

/** Nothing when the file is missing, damaged, for another key, or near its end. */
Identity ReadIdentity(const fs::path& Path)
{
	const File In(fopen(Path.c_str(), "r"));
	if (!In)
	{
		return {};
	}
	Identity Read{ Certificate(PEM_read_X509(In.get(), nullptr, nullptr, nullptr)),
		Key(PEM_read_PrivateKey(In.get(), nullptr, nullptr, nullptr)) };
	time_t Tomorrow = time(nullptr) + Day;
	const bool bUsable = Read && X509_check_private_key(Read.Certificate_.get(), Read.Key_.get()) == 1 &&
		X509_cmp_time(X509_get0_notAfter(Read.Certificate_.get()), &Tomorrow) > 0;
	ERR_clear_error();
	return bUsable ? std::move(Read) : Identity{};
}
}

TlsContext OpenTlsContext(const fs::path& Directory)
{
	std::error_code Problem;
	fs::create_directories(Directory, Problem);
	if (Problem)
	{
		throw SetupError("certificate: cannot make the directory " + Directory.string() + ": " + Problem.message());
	}
	const fs::path Own = Directory / "service.pem";
	Identity Used = ReadIdentity(Own);
	if (!Used)
	{
		Used = MakeIdentity();
		WriteFile(Own, Used, true);
	}
	WriteFile(Directory / "cacert.pem", Used, false);

	TlsContext Context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free);
	Check(Context && SSL_CTX_set_min_proto_version(Context.get(), TLS1_2_VERSION) == 1, "starting TLS");
	Check(SSL_CTX_use_certificate(Context.get(), Used.Certificate_.get()) == 1, "using the certificate");
	Check(SSL_CTX_use_PrivateKey(Context.get(), Used.Key_.get()) == 1, "using the key");
	return Context;
}
}
