#pragma once

#include "UObject/SetProperty.h"

// What values of sets and maps have in common. The value's property is null for sets.

/** To becomes a copy. */
void CopyElements(const FScriptHashedHelper& From, FScriptHashedHelper& To, const FProperty* ValueProp);
/** Whether the keys, and what belongs to each, are the same; the order does not count. */
bool HaveIdenticalElements(const FScriptHashedHelper& One, const FScriptHashedHelper& Other, const FProperty& KeyProp,
	const FProperty* ValueProp, uint32 PortFlags);
