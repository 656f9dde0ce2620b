#pragma once

#include "CurlTransfer.h"

#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/** Carries exchanges over the wire, all on one thread of its own, which begins with the first. */
class FCurlTransport final : public IHttpTransport
{
public:
	/** Called on the transport's thread, once for each exchange that is not cancelled. */
	using FOnFinished = TFunction<void(int32 Id, FHttpOutcome Outcome)>;

	explicit FCurlTransport(FOnFinished InOnFinished);
	/** Ends the transfers in flight without an outcome. */
	~FCurlTransport() override;
	UE_NONCOPYABLE(FCurlTransport)

	void Start(FHttpExchange Exchange) override;
	void Cancel(int32 Id) override;

private:
	void Run();
	/** Does what the game thread has asked for; false when the thread is to end. */
	bool TakeOrders();
	void StartTransfer(FHttpExchange Exchange);
	void FinishTransfers();

	const FOnFinished OnFinished;
	CURLM* const Multi;

	std::mutex Lock;
	std::vector<FHttpExchange> ToStart;
	std::vector<int32> ToCancel;
	bool bEnd = false;

	/** Of the thread alone. */
	std::map<CURL*, std::unique_ptr<FCurlTransfer>> Transfers;
	std::thread Thread;
};
