#pragma once

#include "Templates/UnrealTemplate.h"

#include <functional>
#include <memory>

/** A copyable callable. Unbound until it is given one; calling an unbound one is an error of the program. */
template <typename FuncType>
class TFunction;

template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)> : public std::function<Ret(ParamTypes...)>
{
public:
	using std::function<Ret(ParamTypes...)>::function;
	bool IsSet() const { return static_cast<bool>(*this); }
	void Reset() { *this = nullptr; }
};

/** A callable that is not stored: only for parameters. */
template <typename FuncType>
class TFunctionRef;

template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename F>
	requires(!std::is_same_v<std::decay_t<F>, TFunctionRef> && std::is_invocable_r_v<Ret, F&, ParamTypes...>) TFunctionRef(F&& Function)
		: Callable(const_cast<void*>(reinterpret_cast<const void*>(std::addressof(Function))))
		, Caller([](void* Object, ParamTypes... Params) -> Ret
			  { return (*reinterpret_cast<std::remove_reference_t<F>*>(Object))(Forward<ParamTypes>(Params)...); })
	{
	}

	Ret operator()(ParamTypes... Params) const { return Caller(Callable, Forward<ParamTypes>(Params)...); }

private:
	void* Callable;
	Ret (*Caller)(void*, ParamTypes...);
};

/** A callable with one owner, so that it may hold what can't be copied. */
template <typename FuncType>
class TUniqueFunction;

template <typename Ret, typename... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)>
{
public:
	TUniqueFunction() = default;
	TUniqueFunction(std::nullptr_t) {}
	template <typename F>
	requires(!std::is_same_v<std::decay_t<F>, TUniqueFunction> && std::is_invocable_r_v<Ret, std::decay_t<F>&, ParamTypes...>)
		TUniqueFunction(F&& Function)
		: Held(std::make_unique<THeld<std::decay_t<F>>>(std::forward<F>(Function)))
	{
	}

	Ret operator()(ParamTypes... Params) const { return Held->Call(Forward<ParamTypes>(Params)...); }
	explicit operator bool() const { return Held != nullptr; }
	bool IsSet() const { return Held != nullptr; }

private:
	struct IHeld
	{
		virtual ~IHeld() = default;
		virtual Ret Call(ParamTypes... Params) = 0;
	};
	template <typename F>
	struct THeld final : IHeld
	{
		template <typename G>
		explicit THeld(G&& InFunction)
			: Function(std::forward<G>(InFunction))
		{
		}
		Ret Call(ParamTypes... Params) override { return Function(Forward<ParamTypes>(Params)...); }
		F Function;
	};
	std::unique_ptr<IHeld> Held;
};
