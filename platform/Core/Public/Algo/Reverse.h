#pragma once

#include "Containers/Array.h"

#include <algorithm>

namespace Algo
{
template <typename ElementType>
void Reverse(TArray<ElementType>& Range)
{
	std::reverse(Range.begin(), Range.end());
}
}
