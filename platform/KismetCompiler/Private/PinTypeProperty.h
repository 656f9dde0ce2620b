#pragma once

#include "EdGraph/EdGraphPin.h"

/**
 * A new property of the type of a pin, which the caller gives to Owner.
 * @param SelfClass what "self" is
 * @return null when the type is none that a value can have, or what it refers to is gone
 */
FProperty* CreatePropertyFromPinType(UStruct* Owner, FName Name, const FEdGraphPinType& Type, UClass* SelfClass);
