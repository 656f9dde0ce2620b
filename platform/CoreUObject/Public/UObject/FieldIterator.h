#pragma once

#include "UObject/Property.h"

/** Which fields an iterator visits. */
enum class EFieldIterationFlags : uint8
{
	None = 0,
	/** Those of the super structs, too. */
	IncludeSuper = 1,
	Default = IncludeSuper,
};

/** The engine's other name for them. */
namespace EFieldIteratorFlags
{
inline constexpr EFieldIterationFlags IncludeSuper = EFieldIterationFlags::IncludeSuper;
inline constexpr EFieldIterationFlags ExcludeSuper = EFieldIterationFlags::None;
}

/** Visits the properties (T a FProperty) or functions (T a UFunction) of a type: its own in order, then each super type's. */
template <typename T>
class TFieldIterator
{
	static constexpr bool bFunctions = std::is_base_of_v<UField, T>;
	using BaseType = std::conditional_t<bFunctions, UField, FField>;

public:
	explicit TFieldIterator(const UStruct* InStruct, EFieldIterationFlags Flags = EFieldIterationFlags::Default)
		: Struct(InStruct)
		, bSuper(Flags == EFieldIterationFlags::IncludeSuper)
	{
		Field = Struct ? First() : nullptr;
		Settle();
	}

	explicit operator bool() const { return Field != nullptr; }
	T* operator*() const { return static_cast<T*>(Field); }
	T* operator->() const { return static_cast<T*>(Field); }
	TFieldIterator& operator++()
	{
		Field = Field->Next;
		Settle();
		return *this;
	}

private:
	BaseType* First() const
	{
		if constexpr (bFunctions)
		{
			return Struct->Children;
		}
		else
		{
			return Struct->ChildProperties;
		}
	}

	static bool IsKind(const BaseType* Candidate)
	{
		if constexpr (bFunctions)
		{
			return Candidate->IsA(T::StaticClass());
		}
		else
		{
			return Candidate->template IsA<T>();
		}
	}

	/** Goes on from a field of another kind, and from the end of one type to its super type. */
	void Settle()
	{
		while (Struct && !(Field && IsKind(Field)))
		{
			if (Field)
			{
				Field = Field->Next;
				continue;
			}
			Struct = bSuper ? Struct->GetSuperStruct() : nullptr;
			Field = Struct ? First() : nullptr;
		}
	}

	const UStruct* Struct;
	BaseType* Field = nullptr;
	bool bSuper;
};

/** The property of that name and kind, of the type or its super types, or null. */
template <typename T>
T* FindFProperty(const UStruct* Owner, FName PropertyName)
{
	return CastField<T>(Owner->FindPropertyByName(PropertyName));
}

template <typename T>
T* FindFProperty(const UStruct* Owner, const TCHAR* PropertyName)
{
	return FindFProperty<T>(Owner, FName(PropertyName));
}
