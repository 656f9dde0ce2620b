#pragma once

// Delegates: one bound function (TDelegate) or many (TMulticastDelegate), with arguments stored at binding behind those of the call.
// A function bound with SP lives as long as its object: after that the delegate counts as unbound.

#include "Containers/Array.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <atomic>
#include <optional>
#include <tuple>

/** Names one binding. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType)
		: Id(++Last())
	{
	}
	bool IsValid() const { return Id != 0; }
	void Reset() { Id = 0; }
	bool operator==(const FDelegateHandle&) const = default;
	friend uint32 GetTypeHash(const FDelegateHandle& Handle) { return GetTypeHash(Handle.Id); }

private:
	CORE_API static std::atomic<uint64>& Last();

	uint64 Id = 0;
};

template <typename FuncType>
class TDelegate;

template <typename RetType, typename... ParamTypes>
class TDelegate<RetType(ParamTypes...)>
{
public:
	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(nullptr, std::nullopt,
			[Functor = std::decay_t<FunctorType>(std::forward<FunctorType>(Functor)),
				Stored = std::tuple<std::decay_t<VarTypes>...>(std::forward<VarTypes>(Vars)...)](ParamTypes... Params) mutable -> RetType {
				return std::apply([&](auto&... Each) -> RetType { return Functor(std::forward<ParamTypes>(Params)..., Each...); }, Stored);
			});
	}
	template <typename... FuncParamTypes, typename... VarTypes>
	static TDelegate CreateStatic(RetType (*Function)(FuncParamTypes...), VarTypes&&... Vars)
	{
		return CreateLambda(Function, std::forward<VarTypes>(Vars)...);
	}
	/** The object must outlive the binding. */
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	static TDelegate CreateRaw(ObjectType* Object, MethodType Method, VarTypes&&... Vars)
	{
		return CreateMember(Object, std::nullopt, Method, std::forward<VarTypes>(Vars)...);
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<ObjectType>& Object, MethodType Method, VarTypes&&... Vars)
	{
		return CreateMember(&Object.Get(), FOwner(Object), Method, std::forward<VarTypes>(Vars)...);
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(ObjectType* Object, MethodType Method, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<ObjectType>(Object->AsShared()), Method, std::forward<VarTypes>(Vars)...);
	}

	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(std::forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(std::forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindRaw(ArgTypes&&... Args)
	{
		*this = CreateRaw(std::forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindSP(ArgTypes&&... Args)
	{
		*this = CreateSP(std::forward<ArgTypes>(Args)...);
	}
	void Unbind() { Binding.reset(); }

	bool IsBound() const { return Binding && (!Binding->Owner || Binding->Owner->IsValid()); }
	bool IsBoundToObject(const void* Object) const { return Binding && Binding->Object == Object; }
	FDelegateHandle GetHandle() const { return Binding ? Binding->Handle : FDelegateHandle(); }

	/** The delegate must be bound. Inside the call it may be rebound or unbound, and its shared object may lose its last other owner. */
	RetType Execute(ParamTypes... Params) const
	{
		check(IsBound());
		const std::shared_ptr<FBinding> Kept = Binding;
		const TSharedPtr<const void> KeptOwner = Kept->Owner ? Kept->Owner->Pin() : nullptr;
		return Kept->Function(std::forward<ParamTypes>(Params)...);
	}
	/** @return whether there was something to call */
	bool ExecuteIfBound(ParamTypes... Params) const requires std::is_void_v<RetType>
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(std::forward<ParamTypes>(Params)...);
		return true;
	}

private:
	/** The shared object that the function is called on; none for a function that no object's life bounds. */
	using FOwner = std::optional<TWeakPtr<const void>>;

	struct FBinding
	{
		const void* Object;
		FOwner Owner;
		std::function<RetType(ParamTypes...)> Function;
		FDelegateHandle Handle{ FDelegateHandle::GenerateNewHandle };
	};

	template <typename ObjectType, typename MethodType, typename... VarTypes>
	static TDelegate CreateMember(ObjectType* Object, FOwner Owner, MethodType Method, VarTypes&&... Vars)
	{
		return Make(Object, std::move(Owner),
			[Object, Method, Stored = std::tuple<std::decay_t<VarTypes>...>(std::forward<VarTypes>(Vars)...)](
				ParamTypes... Params) mutable -> RetType {
				return std::apply(
					[&](auto&... Each) -> RetType { return (Object->*Method)(std::forward<ParamTypes>(Params)..., Each...); }, Stored);
			});
	}

	static TDelegate Make(const void* Object, FOwner Owner, std::function<RetType(ParamTypes...)> Function)
	{
		TDelegate Result;
		Result.Binding = std::make_shared<FBinding>(FBinding{ Object, std::move(Owner), std::move(Function) });
		return Result;
	}

	std::shared_ptr<FBinding> Binding;
};

/** Calls its functions in the order they were added. What is added during a broadcast is called from the next one on. */
template <typename... ParamTypes>
class TMulticastDelegate
{
public:
	using FDelegate = TDelegate<void(ParamTypes...)>;

	FDelegateHandle Add(FDelegate Delegate)
	{
		Functions.RemoveAll([](const FDelegate& Each) { return !Each.IsBound(); });
		return Functions.Emplace_GetRef(MoveTemp(Delegate)).GetHandle();
	}
	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateRaw(std::forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(std::forward<ArgTypes>(Args)...));
	}

	bool Remove(FDelegateHandle Handle)
	{
		return Functions.RemoveAll([Handle](const FDelegate& Each) { return Each.GetHandle() == Handle; }) > 0;
	}
	int32 RemoveAll(const void* Object)
	{
		return Functions.RemoveAll([Object](const FDelegate& Each) { return Each.IsBoundToObject(Object); });
	}
	void Clear() { Functions.Reset(); }
	bool IsBound() const
	{
		return Functions.ContainsByPredicate([](const FDelegate& Each) { return Each.IsBound(); });
	}

	void Broadcast(ParamTypes... Params) const
	{
		const TArray<FDelegate> Called = Functions;
		for (const FDelegate& Each : Called)
		{
			// A function that an earlier one removed is not called any more.
			const bool bStays =
				Functions.ContainsByPredicate([&Each](const FDelegate& Kept) { return Kept.GetHandle() == Each.GetHandle(); });
			if (bStays)
			{
				Each.ExecuteIfBound(Params...);
			}
		}
	}

private:
	TArray<FDelegate> Functions;
};

/** A delegate with no arguments and no result. */
using FSimpleDelegate = TDelegate<void()>;
using FSimpleMulticastDelegate = TMulticastDelegate<>;

#define DECLARE_DELEGATE(Name) using Name = TDelegate<void()>
#define DECLARE_DELEGATE_OneParam(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_TwoParams(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_ThreeParams(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_FourParams(Name, ...) using Name = TDelegate<void(__VA_ARGS__)>
#define DECLARE_DELEGATE_RetVal(RetType, Name) using Name = TDelegate<RetType()>
#define DECLARE_DELEGATE_RetVal_OneParam(RetType, Name, ...) using Name = TDelegate<RetType(__VA_ARGS__)>
#define DECLARE_DELEGATE_RetVal_TwoParams(RetType, Name, ...) using Name = TDelegate<RetType(__VA_ARGS__)>
#define DECLARE_MULTICAST_DELEGATE(Name) using Name = TMulticastDelegate<>
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, ...) using Name = TMulticastDelegate<__VA_ARGS__>
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, ...) using Name = TMulticastDelegate<__VA_ARGS__>
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(Name, ...) using Name = TMulticastDelegate<__VA_ARGS__>
#define DECLARE_MULTICAST_DELEGATE_FourParams(Name, ...) using Name = TMulticastDelegate<__VA_ARGS__>
