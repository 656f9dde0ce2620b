#pragma once

#include "UObject/ArrayProperty.h"
#include "UObject/DelegateProperty.h"
#include "UObject/EnumProperty.h"
#include "UObject/FieldIterator.h"
#include "UObject/MapProperty.h"
#include "UObject/NumericProperty.h"
#include "UObject/ObjectProperty.h"
#include "UObject/ScalarProperty.h"
#include "UObject/SetProperty.h"
#include "UObject/StructProperty.h"

/** In which way an editor has changed a property. */
namespace EPropertyChangeType
{
using Type = uint32;
inline constexpr Type Unspecified = 1 << 0;
inline constexpr Type ValueSet = 1 << 5;
}

/** What an editor has changed. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, ChangeType(InChangeType)
	{
	}

	/** NAME_None when the event names no property. */
	FName GetPropertyName() const { return Property ? Property->GetFName() : FName(); }

	FProperty* Property;
	EPropertyChangeType::Type ChangeType;
};
