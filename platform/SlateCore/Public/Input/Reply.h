#pragma once

#include "CoreTypes.h"

/** Whether an event was dealt with; an unhandled one goes on to the next who may. */
class FReply
{
public:
	static FReply Handled() { return FReply(true); }
	static FReply Unhandled() { return FReply(false); }
	bool IsEventHandled() const { return bIsHandled; }

private:
	explicit FReply(bool bHandled)
		: bIsHandled(bHandled)
	{
	}

	bool bIsHandled;
};
