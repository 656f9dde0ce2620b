#pragma once

#include "Delegates/Delegate.h"

/** A value, or a function that gives it anew whenever it is asked for. */
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	TAttribute() = default;
	template <typename OtherType>
	requires(std::is_convertible_v<OtherType, ObjectType> && !std::is_same_v<std::decay_t<OtherType>, TAttribute>)
		TAttribute(OtherType&& InValue)
		: Value(std::forward<OtherType>(InValue))
		, bIsSet(true)
	{
	}

	static TAttribute Create(FGetter InGetter)
	{
		TAttribute Attribute;
		Attribute.bIsSet = true;
		Attribute.Getter = MoveTemp(InGetter);
		return Attribute;
	}
	template <typename FunctorType>
	static TAttribute CreateLambda(FunctorType&& Functor)
	{
		return Create(FGetter::CreateLambda(std::forward<FunctorType>(Functor)));
	}
	template <typename OwnerType, typename MethodType, typename... VarTypes>
	static TAttribute CreateSP(OwnerType* Owner, MethodType Method, VarTypes&&... Vars)
	{
		return Create(FGetter::CreateSP(Owner, Method, std::forward<VarTypes>(Vars)...));
	}

	/** Whether it was given anything at all. */
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }
	/** Valid until it is asked again. A function whose object is gone leaves its last value. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	ObjectType Get(const ObjectType& Default) const { return bIsSet ? Get() : Default; }

private:
	mutable ObjectType Value{};
	bool bIsSet = false;
	FGetter Getter;
};
