#pragma once

#include "Delegates/Delegate.h"
#include "HAL/CriticalSection.h"

#include <limits>
#include <memory>
#include <vector>

/** Gets the seconds of the frame; false ends it. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

/**
 * Calls delegates from frame to frame. An element is called once in a frame at most, in the first one that begins no sooner than its
 * delay after it was added or last called; a delay of 0 means every frame. What is added in a frame waits for the next.
 * Elements may be added and removed on any thread; Tick belongs to the game thread.
 */
class CORE_API FTSTicker
{
	struct FElement;

public:
	/** Does not keep the element: no longer valid once it has ended. */
	using FDelegateHandle = TWeakPtr<FElement>;

	FTSTicker() = default;
	UE_NONCOPYABLE(FTSTicker)

	/** The one that the main loop ticks. */
	static FTSTicker& GetCoreTicker();

	/** @param InDelay seconds of the platform's clock */
	FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);
	/** @param InName tells a reader of the code what it is for */
	FDelegateHandle AddTicker(const TCHAR* InName, float InDelay, TFunction<bool(float)> Function);
	/** After it the element is not called again; waits for a call that runs on another thread. An element may remove itself. */
	static void RemoveTicker(FDelegateHandle Handle);

	void Tick(float DeltaTime);

private:
	friend struct FMainLoop;

	/** Platform seconds from the last Tick until an element with a delay is due: infinite when there is none. */
	double GetSecondsUntilDue() const;
	void Fire(FElement& Element, float DeltaTime);

	mutable FCriticalSection Lock;
	double CurrentTime = 0.0;
	std::vector<TSharedPtr<FElement>> Elements;
};
