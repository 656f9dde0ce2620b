#pragma once

#include "UObject/EnumProperty.h"
#include "UObject/FieldIterator.h"
#include "UObject/ObjectProperty.h"
#include "UObject/ScalarProperty.h"
#include "UObject/StructProperty.h"

/** What an editor has changed. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(FProperty* InProperty)
		: Property(InProperty)
	{
	}

	/** NAME_None when the event names no property. */
	FName GetPropertyName() const { return Property ? Property->GetFName() : FName(); }

	FProperty* Property;
};
