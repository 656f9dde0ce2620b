#include "Containers/Ticker.h"

#include "CoreHost/MainLoop.h"
#include "Misc/ScopeLock.h"

#include <algorithm>
#include <atomic>

struct FTSTicker::FElement
{
	FTickerDelegate Delegate;
	float Delay;
	/** By the ticker's CurrentTime; under the ticker's lock. */
	double FireTime;
	std::atomic<bool> bRemoved = false;
	/** Held while the delegate is called. */
	FCriticalSection Calling;
	std::atomic<bool> bIsCalled = false;
};

FTSTicker& FTSTicker::GetCoreTicker()
{
	// Never destroyed: static objects remove their elements while the process ends.
	static FTSTicker* const Ticker = new FTSTicker;
	return *Ticker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	const TSharedPtr<FElement> Element = MakeShared<FElement>();
	Element->Delegate = InDelegate;
	Element->Delay = InDelay;
	{
		FScopeLock Guard(&Lock);
		Element->FireTime = CurrentTime + InDelay;
		Elements.push_back(Element);
	}
	FMainLoop::Wake();
	return Element;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const TCHAR*, float InDelay, TFunction<bool(float)> Function)
{
	return AddTicker(FTickerDelegate::CreateLambda(MoveTemp(Function)), InDelay);
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const TSharedPtr<FElement> Element = Handle.Pin())
	{
		FScopeLock Guard(&Element->Calling);
		Element->bRemoved = true;
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	std::vector<TSharedPtr<FElement>> Due;
	{
		FScopeLock Guard(&Lock);
		CurrentTime += DeltaTime;
		std::copy_if(Elements.begin(), Elements.end(), std::back_inserter(Due),
			[this](const TSharedPtr<FElement>& Element) { return Element->bRemoved || Element->FireTime <= CurrentTime; });
	}
	if (Due.empty())
	{
		return;
	}
	for (const TSharedPtr<FElement>& Element : Due)
	{
		Fire(*Element, DeltaTime);
	}
	FScopeLock Guard(&Lock);
	std::erase_if(Elements, [](const TSharedPtr<FElement>& Element) { return Element->bRemoved.load(); });
}

void FTSTicker::Fire(FElement& Element, float DeltaTime)
{
	FScopeLock Calling(&Element.Calling);
	// A delegate that runs the main loop is not called again from inside.
	if (Element.bRemoved || Element.bIsCalled)
	{
		return;
	}
	Element.bIsCalled = true;
	const bool bGoesOn = Element.Delegate.IsBound() && Element.Delegate.Execute(DeltaTime);
	Element.bIsCalled = false;
	if (!bGoesOn)
	{
		Element.bRemoved = true;
		return;
	}
	FScopeLock Guard(&Lock);
	Element.FireTime = CurrentTime + Element.Delay;
}

double FTSTicker::GetSecondsUntilDue() const
{
	FScopeLock Guard(&Lock);
	double Earliest = std::numeric_limits<double>::infinity();
	for (const TSharedPtr<FElement>& Element : Elements)
	{
		if (Element->Delay > 0.0f && !Element->bRemoved && !Element->bIsCalled)
		{
			Earliest = std::min(Earliest, Element->FireTime - CurrentTime);
		}
	}
	return Earliest;
}
