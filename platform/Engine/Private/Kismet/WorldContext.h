#pragma once

#include "Engine/World.h"

/** The world that an object is in, itself for a world; null when it is in none. */
inline UWorld* GetWorldFromContextObject(const UObject* Object)
{
	if (const UWorld* const World = Cast<UWorld>(Object))
	{
		return const_cast<UWorld*>(World);
	}
	return Object ? Object->GetTypedOuter<UWorld>() : nullptr;
}
