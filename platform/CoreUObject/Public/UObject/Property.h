#pragma once

#include "Containers/ScriptArray.h"
#include "UObject/Class.h"

/**
 * A member of a struct or class, a parameter, or the element of an array property: where it lies and how its values are handled,
 * for code that does not know the C++ type. Values are given by their own address; "container" is the address of what they lie in.
 */
class COREUOBJECT_API FProperty : public FField
{
public:
	FProperty(UStruct* InOwner, FName InName, int32 InElementSize, int32 InMinAlignment)
		: FField(InOwner, InName)
		, ElementSize(InElementSize)
		, MinAlignment(InMinAlignment)
	{
	}

	/** In bytes. */
	int32 GetSize() const { return ElementSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	template <typename T>
	T* ContainerPtrToValuePtr(void* Container) const
	{
		return reinterpret_cast<T*>(static_cast<uint8*>(Container) + Offset_Internal);
	}
	template <typename T>
	const T* ContainerPtrToValuePtr(const void* Container) const
	{
		return reinterpret_cast<const T*>(static_cast<const uint8*>(Container) + Offset_Internal);
	}

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	bool HasAnyPropertyFlags(uint64 Flags) const { return (PropertyFlags & Flags) != 0; }
	bool HasAllPropertyFlags(uint64 Flags) const { return (PropertyFlags & Flags) == Flags; }
	void SetPropertyFlags(EPropertyFlags Flags) { PropertyFlags |= Flags; }

	/** The type as C++ spells it, for instance "TArray<FString>". */
	virtual FString GetCPPType() const = 0;
	/** Constructs a value in raw memory. */
	virtual void InitializeValue(void* Dest) const = 0;
	virtual void DestroyValue(void* Dest) const = 0;
	/** Assigns to a constructed value. */
	virtual void CopyCompleteValue(void* Dest, const void* Src) const = 0;
	/** B may be null: then A is compared with the type's empty value. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	void CopyCompleteValue_InContainer(void* Dest, const void* Src) const
	{
		CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
	}
	bool Identical_InContainer(const void* A, const void* B, uint32 PortFlags = 0) const
	{
		return Identical(ContainerPtrToValuePtr<void>(A), B ? ContainerPtrToValuePtr<void>(B) : nullptr, PortFlags);
	}

	/**
	 * Appends the value in the engine's notation.
	 * @param DefaultValue members of a struct that equal its are left out; null for none
	 * @param PortFlags of EPropertyPortFlags
	 */
	virtual void ExportTextItem_Direct(
		FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, uint32 PortFlags) const = 0;
	/**
	 * Reads a value, as far as the text goes; without PPF_Delimited a string takes all of it.
	 * @return behind what was read; null, and the value may be half read, when the text is none of this type
	 */
	virtual const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyValue, UObject* Owner, uint32 PortFlags) const = 0;

	/** Calls Visit for each object that the value refers to. */
	virtual void VisitReferences(const void* Value, TFunctionRef<void(UObject*)> Visit) const;
	/** Whether values can refer to objects at all. */
	virtual bool ContainsObjectReference() const { return false; }

	/** Set by whoever lays out the owner. */
	int32 Offset_Internal = 0;

private:
	EPropertyFlags PropertyFlags = CPF_None;
	int32 ElementSize;
	int32 MinAlignment;
};

/** The parts that follow from the C++ type of the values. */
template <typename T>
class TProperty : public FProperty
{
public:
	using TCppType = T;

	TProperty(UStruct* InOwner, FName InName)
		: FProperty(InOwner, InName, sizeof(T), alignof(T))
	{
	}

	static const T& GetPropertyValue(const void* Value) { return *static_cast<const T*>(Value); }
	static void SetPropertyValue(void* Value, const T& NewValue) { *static_cast<T*>(Value) = NewValue; }
	const T& GetPropertyValue_InContainer(const void* Container) const { return *ContainerPtrToValuePtr<T>(Container); }
	void SetPropertyValue_InContainer(void* Container, const T& NewValue) const { *ContainerPtrToValuePtr<T>(Container) = NewValue; }

	void InitializeValue(void* Dest) const override { new (Dest) T(); }
	void DestroyValue(void* Dest) const override { static_cast<T*>(Dest)->~T(); }
	void CopyCompleteValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return IsSame(GetPropertyValue(A), B ? GetPropertyValue(B) : T());
	}

protected:
	/** Strings differ by case, too. */
	static bool IsSame(const T& A, const T& B)
	{
		if constexpr (requires { A.Equals(B); })
		{
			return A.Equals(B);
		}
		else if constexpr (requires { A.EqualTo(B); })
		{
			return A.EqualTo(B);
		}
		else
		{
			return A == B;
		}
	}
};
