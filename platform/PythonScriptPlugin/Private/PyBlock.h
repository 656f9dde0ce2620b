#pragma once

#include "UObject/UnrealType.h"

#include <new>

/** A block of values of its own: a struct, or a function's arguments and result. */
class FPyBlock
{
public:
	explicit FPyBlock(const UStruct* InType)
		: Type(InType)
		, Alignment(static_cast<std::align_val_t>(std::max(InType->GetMinAlignment(), 1)))
		, Memory(::operator new(static_cast<SIZE_T>(std::max(InType->GetPropertiesSize(), 1)), Alignment))
	{
		Type->InitializeStruct(Memory);
	}
	~FPyBlock()
	{
		Type->DestroyStruct(Memory);
		::operator delete(Memory, Alignment);
	}
	UE_NONCOPYABLE(FPyBlock)

	const UStruct* GetType() const { return Type; }
	void* Get() const { return Memory; }

private:
	const UStruct* Type;
	std::align_val_t Alignment;
	void* Memory;
};

/** All values of one property, outside of any container. */
class FPyScratch
{
public:
	explicit FPyScratch(const FProperty* InProperty)
		: Property(InProperty)
		, Alignment(static_cast<std::align_val_t>(InProperty->GetMinAlignment()))
		, Memory(::operator new(static_cast<SIZE_T>(InProperty->GetSize()), Alignment))
	{
		Property->InitializeValue(Memory);
	}
	~FPyScratch()
	{
		Property->DestroyValue(Memory);
		::operator delete(Memory, Alignment);
	}
	UE_NONCOPYABLE(FPyScratch)

	void* Get() const { return Memory; }

private:
	const FProperty* Property;
	std::align_val_t Alignment;
	void* Memory;
};
