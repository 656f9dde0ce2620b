#pragma once

#include "UObject/Property.h"

#include <new>

/** A value of a property's type that belongs to nobody. */
class FScratchValue
{
public:
	explicit FScratchValue(const FProperty* InProperty)
		: Property(InProperty)
		, Alignment(std::align_val_t(static_cast<SIZE_T>(InProperty->GetMinAlignment())))
		, Memory(::operator new(static_cast<SIZE_T>(InProperty->GetSize()), Alignment))
	{
		Property->InitializeValue(Memory);
	}
	~FScratchValue()
	{
		Property->DestroyValue(Memory);
		::operator delete(Memory, Alignment);
	}
	UE_NONCOPYABLE(FScratchValue)

	void* Get() const { return Memory; }

private:
	const FProperty* Property;
	std::align_val_t Alignment;
	void* Memory;
};
