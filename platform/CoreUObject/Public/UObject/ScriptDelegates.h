#pragma once

#include "Serialization/Archive.h"
#include "UObject/WeakObjectPtr.h"

#include <array>
#include <tuple>

// Dynamic delegates: bound to a reflected function by object and name, so that they can be properties, be saved and be bound by
// Blueprints. A binding does not keep its object. Game thread.

/** One object and one of its functions. */
class COREUOBJECT_API FScriptDelegate
{
public:
	void BindUFunction(UObject* InObject, const FName& InFunctionName)
	{
		Object = InObject;
		FunctionName = InFunctionName;
	}
	void Unbind() { *this = FScriptDelegate(); }
	/** Whether the object is there and has the function. */
	bool IsBound() const;
	bool IsBoundToObject(const UObject* InObject) const { return InObject && Object.Get() == InObject; }
	UObject* GetUObject() const { return Object.Get(); }
	FName GetFunctionName() const { return FunctionName; }
	/** Calls the function, which must be bound. @param Parms laid out as the arguments and result of the delegate's signature */
	void ProcessDelegate(void* Parms) const;
	/** Passes the reference through an archive; bytes get the function's name, too. */
	void Serialize(FArchive& Ar);

	bool operator==(const FScriptDelegate& Other) const = default;
	friend uint32 GetTypeHash(const FScriptDelegate& Delegate)
	{
		return HashCombine(GetTypeHash(Delegate.Object), GetTypeHash(Delegate.FunctionName));
	}

private:
	FWeakObjectPtr Object;
	FName FunctionName;
};

/** Any number of them, called in the order they were added. */
class COREUOBJECT_API FMulticastScriptDelegate
{
public:
	void Add(const FScriptDelegate& Delegate);
	void AddUnique(const FScriptDelegate& Delegate);
	void Remove(const FScriptDelegate& Delegate) { InvocationList.Remove(Delegate); }
	void RemoveAll(const UObject* Object);
	void Clear() { InvocationList.Empty(); }
	bool Contains(const FScriptDelegate& Delegate) const { return InvocationList.Contains(Delegate); }
	bool IsBound() const;
	const TArray<FScriptDelegate>& GetInvocationList() const { return InvocationList; }
	/** Calls all that are bound when it begins. */
	void ProcessMulticastDelegate(void* Parms) const;
	void Serialize(FArchive& Ar);

	bool operator==(const FMulticastScriptDelegate& Other) const = default;

private:
	TArray<FScriptDelegate> InvocationList;
};

/** Arguments in one block, laid out as a struct of them would be. */
template <typename... ParamTypes>
class TScriptParms
{
public:
	explicit TScriptParms(std::add_lvalue_reference_t<ParamTypes>... Params)
	{
		SIZE_T Index = 0;
		(new (At(Index++)) std::decay_t<ParamTypes>(Params), ...);
	}
	~TScriptParms()
	{
		SIZE_T Index = 0;
		(std::destroy_at(static_cast<std::decay_t<ParamTypes>*>(At(Index++))), ...);
	}
	UE_NONCOPYABLE(TScriptParms)

	void* Get() { return Memory; }

	/** Hands what the call has written back to the arguments given by reference. */
	void CopyBack(std::add_lvalue_reference_t<ParamTypes>... Params)
	{
		SIZE_T Index = 0;
		(CopyBackOne<ParamTypes>(Params, At(Index++)), ...);
	}

private:
	template <typename T>
	static void CopyBackOne(T& Param, void* Value)
	{
		if constexpr (std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>)
		{
			Param = MoveTemp(*static_cast<std::decay_t<T>*>(Value));
		}
	}

	static constexpr std::array<SIZE_T, sizeof...(ParamTypes) + 1> MakeOffsets()
	{
		std::array<SIZE_T, sizeof...(ParamTypes) + 1> Result{};
		SIZE_T End = 0;
		SIZE_T Index = 0;
		((End = (End + alignof(std::decay_t<ParamTypes>) - 1) & ~(alignof(std::decay_t<ParamTypes>) - 1), Result[Index++] = End,
			 End += sizeof(std::decay_t<ParamTypes>)),
			...);
		Result[Index] = End;
		return Result;
	}

	void* At(SIZE_T Index) { return Memory + Offsets[Index]; }

	static constexpr std::array<SIZE_T, sizeof...(ParamTypes) + 1> Offsets = MakeOffsets();
	alignas(std::max_align_t) uint8 Memory[Offsets.back() + 1];
};

/** What DECLARE_DYNAMIC_DELEGATE declares. Same layout as FScriptDelegate. */
template <typename RetType, typename... ParamTypes>
class TBaseDynamicDelegate : public FScriptDelegate
{
public:
	/** Through the macro BindDynamic, which gives the name. */
	template <typename ObjectType>
	void __Internal_BindDynamic(ObjectType* InObject, RetType (ObjectType::*)(ParamTypes...), const FName& InFunctionName)
	{
		BindUFunction(InObject, InFunctionName);
	}
	/** Must be bound. */
	RetType Execute(ParamTypes... Params) const
	{
		check(IsBound());
		if constexpr (std::is_void_v<RetType>)
		{
			TScriptParms<ParamTypes...> Parms(Params...);
			ProcessDelegate(Parms.Get());
			Parms.CopyBack(Params...);
		}
		else
		{
			RetType Result{};
			TScriptParms<ParamTypes..., RetType&> Parms(Params..., Result);
			ProcessDelegate(Parms.Get());
			Parms.CopyBack(Params..., Result);
			return Result;
		}
	}
	/** @return whether there was something to call */
	bool ExecuteIfBound(ParamTypes... Params) const
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(Params...);
		return true;
	}
};

/** What DECLARE_DYNAMIC_MULTICAST_DELEGATE declares. Same layout as FMulticastScriptDelegate. */
template <typename... ParamTypes>
class TBaseDynamicMulticastDelegate : public FMulticastScriptDelegate
{
public:
	/** Through the macros AddDynamic and RemoveDynamic, which give the name. */
	template <typename ObjectType>
	void __Internal_AddDynamic(ObjectType* InObject, void (ObjectType::*)(ParamTypes...), const FName& InFunctionName)
	{
		Add(MakeDelegate(InObject, InFunctionName));
	}
	template <typename ObjectType>
	void __Internal_AddUniqueDynamic(ObjectType* InObject, void (ObjectType::*)(ParamTypes...), const FName& InFunctionName)
	{
		AddUnique(MakeDelegate(InObject, InFunctionName));
	}
	template <typename ObjectType>
	void __Internal_RemoveDynamic(ObjectType* InObject, void (ObjectType::*)(ParamTypes...), const FName& InFunctionName)
	{
		Remove(MakeDelegate(InObject, InFunctionName));
	}
	void Broadcast(ParamTypes... Params) const
	{
		TScriptParms<ParamTypes...> Parms(Params...);
		ProcessMulticastDelegate(Parms.Get());
	}

private:
	static FScriptDelegate MakeDelegate(UObject* InObject, const FName& InFunctionName)
	{
		FScriptDelegate Delegate;
		Delegate.BindUFunction(InObject, InFunctionName);
		return Delegate;
	}
};

/** "Name" of "&Class::Name". */
COREUOBJECT_API FName GetTrimmedMemberFunctionName(const TCHAR* Text);

#define BindDynamic(Object, Function) __Internal_BindDynamic(Object, Function, GetTrimmedMemberFunctionName(TEXT(#Function)))
#define AddDynamic(Object, Function) __Internal_AddDynamic(Object, Function, GetTrimmedMemberFunctionName(TEXT(#Function)))
#define AddUniqueDynamic(Object, Function) __Internal_AddUniqueDynamic(Object, Function, GetTrimmedMemberFunctionName(TEXT(#Function)))
#define RemoveDynamic(Object, Function) __Internal_RemoveDynamic(Object, Function, GetTrimmedMemberFunctionName(TEXT(#Function)))

// The header tool reads these for the delegate's signature, so they stand in a header that it reads. Types and names of the parameters
// stand by turns. Within a module each name must be there once only.
#define UE_DYNAMIC_DELEGATE(Name, ...)                                                                                                     \
	class Name : public TBaseDynamicDelegate<__VA_ARGS__>                                                                                  \
	{                                                                                                                                      \
	public:                                                                                                                                \
		static UFunction* GetSignature() { return Z_Construct_UDelegateFunction_##Name(); }                                                \
	}
#define UE_DYNAMIC_MULTICAST_DELEGATE(Name, ...)                                                                                           \
	class Name : public TBaseDynamicMulticastDelegate<__VA_ARGS__>                                                                         \
	{                                                                                                                                      \
	public:                                                                                                                                \
		static UFunction* GetSignature() { return Z_Construct_UDelegateFunction_##Name(); }                                                \
	}
#define DECLARE_DYNAMIC_DELEGATE(Name) UE_DYNAMIC_DELEGATE(Name, void)
#define DECLARE_DYNAMIC_DELEGATE_OneParam(Name, T1, N1) UE_DYNAMIC_DELEGATE(Name, void, T1)
#define DECLARE_DYNAMIC_DELEGATE_TwoParams(Name, T1, N1, T2, N2) UE_DYNAMIC_DELEGATE(Name, void, T1, T2)
#define DECLARE_DYNAMIC_DELEGATE_ThreeParams(Name, T1, N1, T2, N2, T3, N3) UE_DYNAMIC_DELEGATE(Name, void, T1, T2, T3)
#define DECLARE_DYNAMIC_DELEGATE_FourParams(Name, T1, N1, T2, N2, T3, N3, T4, N4) UE_DYNAMIC_DELEGATE(Name, void, T1, T2, T3, T4)
#define DECLARE_DYNAMIC_DELEGATE_RetVal(R, Name) UE_DYNAMIC_DELEGATE(Name, R)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(R, Name, T1, N1) UE_DYNAMIC_DELEGATE(Name, R, T1)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(R, Name, T1, N1, T2, N2) UE_DYNAMIC_DELEGATE(Name, R, T1, T2)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE(Name) UE_DYNAMIC_MULTICAST_DELEGATE(Name)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(Name, T1, N1) UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(Name, T1, N1, T2, N2) UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1, T2)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(Name, T1, N1, T2, N2, T3, N3) UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1, T2, T3)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(Name, T1, N1, T2, N2, T3, N3, T4, N4)                                                \
	UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1, T2, T3, T4)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(Name, T1, N1, T2, N2, T3, N3, T4, N4, T5, N5)                                        \
	UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1, T2, T3, T4, T5)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(Name, T1, N1, T2, N2, T3, N3, T4, N4, T5, N5, T6, N6)                                 \
	UE_DYNAMIC_MULTICAST_DELEGATE(Name, T1, T2, T3, T4, T5, T6)
