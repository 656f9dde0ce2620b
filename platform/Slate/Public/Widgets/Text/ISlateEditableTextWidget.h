#pragma once

#include "CoreTypes.h"

enum class ETextLocation : uint8
{
	BeginningOfDocument,
	EndOfDocument
};
