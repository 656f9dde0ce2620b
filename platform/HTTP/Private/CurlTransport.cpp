#include "CurlTransport.h"

#include <csignal>
#include <utility>

namespace
{
/** The library's own start, once for the process. */
CURLM* MakeMulti()
{
	static const CURLcode Started = ::curl_global_init(CURL_GLOBAL_DEFAULT);
	check(Started == CURLE_OK);
	return ::curl_multi_init();
}

/** A connection that the other side has closed is an error like others, not the end of the process. */
void BlockBrokenPipeSignal()
{
	sigset_t Signals;
	::sigemptyset(&Signals);
	::sigaddset(&Signals, SIGPIPE);
	::pthread_sigmask(SIG_BLOCK, &Signals, nullptr);
}
}

FCurlTransport::FCurlTransport(FOnFinished InOnFinished)
	: OnFinished(MoveTemp(InOnFinished))
	, Multi(MakeMulti())
{
}

FCurlTransport::~FCurlTransport()
{
	if (!Thread.joinable())
	{
		::curl_multi_cleanup(Multi);
		return;
	}
	{
		// Under the lock, since the thread cleans up as soon as it sees that it is to end.
		std::lock_guard Guard(Lock);
		bEnd = true;
		::curl_multi_wakeup(Multi);
	}
	Thread.join();
}

void FCurlTransport::Start(FHttpExchange Exchange)
{
	{
		std::lock_guard Guard(Lock);
		ToStart.push_back(MoveTemp(Exchange));
	}
	if (!Thread.joinable())
	{
		Thread = std::thread([this] { Run(); });
	}
	::curl_multi_wakeup(Multi);
}

void FCurlTransport::Cancel(int32 Id)
{
	{
		std::lock_guard Guard(Lock);
		ToCancel.push_back(Id);
	}
	::curl_multi_wakeup(Multi);
}

void FCurlTransport::Run()
{
	constexpr int LongestSleepMs = 60'000;
	BlockBrokenPipeSignal();
	while (TakeOrders())
	{
		int StillRunning = 0;
		::curl_multi_perform(Multi, &StillRunning);
		FinishTransfers();
		::curl_multi_poll(Multi, nullptr, 0, LongestSleepMs, nullptr);
	}
	for (const auto& [Handle, Transfer] : Transfers)
	{
		::curl_multi_remove_handle(Multi, Handle);
	}
	Transfers.clear();
	::curl_multi_cleanup(Multi);
}

bool FCurlTransport::TakeOrders()
{
	std::vector<FHttpExchange> Starting;
	std::vector<int32> Cancelling;
	{
		std::lock_guard Guard(Lock);
		if (bEnd)
		{
			return false;
		}
		Starting.swap(ToStart);
		Cancelling.swap(ToCancel);
	}
	for (FHttpExchange& Exchange : Starting)
	{
		StartTransfer(MoveTemp(Exchange));
	}
	for (const int32 Id : Cancelling)
	{
		std::erase_if(Transfers,
			[this, Id](const auto& Each)
			{ return Each.second->GetId() == Id && ::curl_multi_remove_handle(Multi, Each.first) == CURLM_OK; });
	}
	return true;
}

void FCurlTransport::StartTransfer(FHttpExchange Exchange)
{
	auto Transfer = std::make_unique<FCurlTransfer>(MoveTemp(Exchange));
	CURL* const Handle = Transfer->GetHandle();
	::curl_multi_add_handle(Multi, Handle);
	Transfers.emplace(Handle, std::move(Transfer));
}

void FCurlTransport::FinishTransfers()
{
	int Left = 0;
	while (const CURLMsg* Message = ::curl_multi_info_read(Multi, &Left))
	{
		// The message is gone once the handle is removed.
		CURL* const Handle = Message->easy_handle;
		const CURLcode Result = Message->data.result;
		::curl_multi_remove_handle(Multi, Handle);
		const std::unique_ptr<FCurlTransfer> Transfer = std::move(Transfers.extract(Handle).mapped());
		OnFinished(Transfer->GetId(), Transfer->TakeOutcome(Result));
	}
}
