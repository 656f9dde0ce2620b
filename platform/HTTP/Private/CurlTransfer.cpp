#include "CurlTransfer.h"

#include "HttpHeaders.h"
#include "Misc/FileHelper.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace
{
constexpr long ConnectTimeoutMs = 30'000;
/** A transfer with less than a byte a second for so long is given up. */
constexpr long ActivityTimeoutSeconds = 30;

/** Loopback never goes through a proxy; what the environment excludes stays excluded. */
std::string ProxyExceptions()
{
	std::string Exceptions = "localhost,127.0.0.1,::1";
	for (const char* const Variable : { "no_proxy", "NO_PROXY" })
	{
		const char* const Value = std::getenv(Variable);
		Exceptions.append(Value ? "," : "").append(Value ? Value : "");
	}
	return Exceptions;
}
}

FCurlTransfer::FCurlTransfer(FHttpExchange InExchange)
	: Exchange(MoveTemp(InExchange))
	, Handle(::curl_easy_init())
{
	check(Handle);
	SetUpRequest();
	SetUpHeaders();
	SetUpLimits();
	SetUpTrust();
}

FCurlTransfer::~FCurlTransfer()
{
	::curl_easy_cleanup(Handle);
	::curl_slist_free_all(HeaderLines);
}

void FCurlTransfer::SetUpRequest()
{
	::curl_easy_setopt(Handle, CURLOPT_URL, TCHAR_TO_UTF8(*Exchange.Url));
	::curl_easy_setopt(Handle, CURLOPT_PROTOCOLS_STR, "http,https");
	::curl_easy_setopt(Handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
	::curl_easy_setopt(Handle, CURLOPT_NOPROXY, ProxyExceptions().c_str());
	if (Exchange.Content.Num() > 0 || Exchange.Verb == TEXT("POST"))
	{
		::curl_easy_setopt(Handle, CURLOPT_POST, 1L);
		// On a connection that the server has closed meanwhile libcurl would send the request again, and work could run twice.
		::curl_easy_setopt(Handle, CURLOPT_FRESH_CONNECT, 1L);
		::curl_easy_setopt(Handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(Exchange.Content.Num()));
		// The content lives as long as the transfer; null would ask for a read callback.
		const uint8* const Bytes = Exchange.Content.GetData();
		::curl_easy_setopt(Handle, CURLOPT_POSTFIELDS, Bytes ? reinterpret_cast<const char*>(Bytes) : "");
	}
	if (Exchange.Verb == TEXT("HEAD"))
	{
		::curl_easy_setopt(Handle, CURLOPT_NOBODY, 1L);
	}
	::curl_easy_setopt(Handle, CURLOPT_CUSTOMREQUEST, TCHAR_TO_UTF8(*Exchange.Verb));
	::curl_easy_setopt(Handle, CURLOPT_WRITEFUNCTION, &FCurlTransfer::OnBody);
	::curl_easy_setopt(Handle, CURLOPT_WRITEDATA, this);
	::curl_easy_setopt(Handle, CURLOPT_HEADERFUNCTION, &FCurlTransfer::OnHeader);
	::curl_easy_setopt(Handle, CURLOPT_HEADERDATA, this);
	::curl_easy_setopt(Handle, CURLOPT_ERRORBUFFER, ErrorText);
}

void FCurlTransfer::SetUpHeaders()
{
	for (const TPair<FString, FString>& Header : Exchange.Headers)
	{
		// Curl sends a header without a value only when it is asked for by a semicolon.
		AddHeaderLine(Header.Value.IsEmpty() ? Header.Key + TEXT(";") : Header.Key + TEXT(": ") + Header.Value);
	}
	// Nothing that nobody asked for.
	AddHeaderLine(TEXT("Expect:"));
	if (HttpHeaders::IndexOf(Exchange.Headers, TEXT("Content-Type")) == INDEX_NONE)
	{
		AddHeaderLine(TEXT("Content-Type:"));
	}
	::curl_easy_setopt(Handle, CURLOPT_HTTPHEADER, HeaderLines);
}

void FCurlTransfer::AddHeaderLine(const FString& Line)
{
	HeaderLines = ::curl_slist_append(HeaderLines, TCHAR_TO_UTF8(*Line));
}

void FCurlTransfer::SetUpLimits()
{
	::curl_easy_setopt(Handle, CURLOPT_NOSIGNAL, 1L);
	::curl_easy_setopt(Handle, CURLOPT_CONNECTTIMEOUT_MS, ConnectTimeoutMs);
	::curl_easy_setopt(Handle, CURLOPT_TIMEOUT_MS, static_cast<long>(Exchange.Timeout * 1000.0f));
	::curl_easy_setopt(Handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
	::curl_easy_setopt(Handle, CURLOPT_LOW_SPEED_TIME, ActivityTimeoutSeconds);
}

void FCurlTransfer::SetUpTrust()
{
	TArray<uint8> Trusted;
	if (!FFileHelper::LoadFileToArray(Trusted, *Exchange.ExtraCertificates))
	{
		return;
	}
	// A blob takes the place of the system's certificates, so that these go into it too, when there are any.
	TArray<uint8> System;
	const char* const SystemFile = ::curl_version_info(CURLVERSION_NOW)->cainfo;
	if (SystemFile && FFileHelper::LoadFileToArray(System, UTF8_TO_TCHAR(SystemFile)))
	{
		Trusted.Add('\n');
		Trusted.Append(System);
	}
	curl_blob Blob = { Trusted.GetData(), static_cast<SIZE_T>(Trusted.Num()), CURL_BLOB_COPY };
	::curl_easy_setopt(Handle, CURLOPT_CAINFO_BLOB, &Blob);
}

FHttpOutcome FCurlTransfer::TakeOutcome(CURLcode Result)
{
	long Code = 0;
	::curl_easy_getinfo(Handle, CURLINFO_RESPONSE_CODE, &Code);
	if (Result == CURLE_OK)
	{
		Outcome.bAnswered = true;
		Outcome.Code = static_cast<int32>(Code);
	}
	else
	{
		Outcome.FailureReason = FUtf8::Decode(ErrorText[0] ? ErrorText : ::curl_easy_strerror(Result));
	}
	return MoveTemp(Outcome);
}

size_t FCurlTransfer::OnBody(char* Data, size_t Size, size_t Count, void* Self)
{
	TArray<uint8>& Content = static_cast<FCurlTransfer*>(Self)->Outcome.Content;
	const size_t Length = Size * Count;
	if (Length > static_cast<size_t>(std::numeric_limits<int32>::max() - Content.Num()))
	{
		return 0;
	}
	Content.Append(reinterpret_cast<const uint8*>(Data), static_cast<int32>(Length));
	return Length;
}

size_t FCurlTransfer::OnHeader(char* Data, size_t Size, size_t Count, void* Self)
{
	FHttpHeaders& Headers = static_cast<FCurlTransfer*>(Self)->Outcome.Headers;
	const FString Line = FUtf8::Decode({ Data, Size * Count }).TrimStartAndEnd();
	FString Name;
	FString Value;
	if (Line.StartsWith(TEXT("HTTP/")))
	{
		// An interim answer may have come before; its headers are not the answer's.
		Headers.Reset();
	}
	else if (Line.Split(TEXT(":"), &Name, &Value))
	{
		Headers.Add({ Name, Value.TrimStart() });
	}
	return Size * Count;
}
