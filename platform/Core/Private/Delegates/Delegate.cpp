#include "Delegates/Delegate.h"

std::atomic<uint64>& FDelegateHandle::Last()
{
	static std::atomic<uint64> Id = 0;
	return Id;
}
