#pragma once

#include "CoreMinimal.h"

/**
 * The flicker of the first prototype: a saw-tooth between 0.8 and 1.0. ULantern::GetBrightness took its place, and nothing
 * includes this any more.
 */
inline float GetOldFlicker(float Seconds)
{
	const float Whole = static_cast<float>(static_cast<int32>(Seconds));
	return 0.8f + 0.2f * (Seconds - Whole);
}
