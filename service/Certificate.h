#pragma once

#include <filesystem>
#include <memory>

#include <openssl/ssl.h>

namespace LocalService
{
using TlsContext = std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)>;

/**
 * The server side of TLS with this machine's own certificate, for localhost, 127.0.0.1 and ::1.
 *
 * `Directory` keeps `service.pem` (certificate and key, for the owner alone) and `cacert.pem` (the certificate, for clients
 * to trust). They are made when missing, unreadable or within a day of their end, and reused otherwise: a client that
 * trusts them goes on trusting after a restart. Throws SetupError.
 */
TlsContext OpenTlsContext(const std::filesystem::path& Directory);
}
