#pragma once

#include "Containers/ScriptArray.h"
#include "Misc/FeedbackContext.h"
#include "UObject/Class.h"

/**
 * A member of a struct or class, a parameter, or the element of a container property: where it lies and how its values are handled,
 * for code that does not know the C++ type. Values are given by their own address; "container" is the address of what they lie in.
 * A member that is an array of fixed size is one property with several values, one behind the other.
 *
 * What a property refers to (its class, struct, element ...) is set after it is made; Link() then gives it its size.
 */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField)

	FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: FField(InOwner, InName, InFlags)
	{
	}

	/** In bytes, of all values. */
	int32 GetSize() const { return ElementSize * ArrayDim; }
	/** In bytes, of one value. */
	int32 GetElementSize() const { return ElementSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	template <typename T>
	T* ContainerPtrToValuePtr(void* Container, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<T*>(static_cast<uint8*>(Container) + Offset_Internal + ArrayIndex * ElementSize);
	}
	template <typename T>
	const T* ContainerPtrToValuePtr(const void* Container, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<const T*>(static_cast<const uint8*>(Container) + Offset_Internal + ArrayIndex * ElementSize);
	}

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	bool HasAnyPropertyFlags(uint64 Flags) const { return (PropertyFlags & Flags) != 0; }
	bool HasAllPropertyFlags(uint64 Flags) const { return (PropertyFlags & Flags) == Flags; }
	void SetPropertyFlags(EPropertyFlags Flags) { PropertyFlags |= Flags; }
	void ClearPropertyFlags(EPropertyFlags Flags) { PropertyFlags &= ~Flags; }

	/** Takes size and alignment over from the types referred to. */
	virtual void Link() {}
	/** Whether all that the property needs to handle values is there; not so when the struct it refers to is gone. */
	virtual bool HasType() const { return true; }
	/** The type as C++ spells it, for instance "TArray<FString>". */
	virtual FString GetCPPType() const = 0;
	/** The type as saved values name it, "ArrayProperty<IntProperty>": equal tags have values of one form. Kept once it is made. */
	FName GetTypeTag() const;

	/** Constructs the values in raw memory. */
	void InitializeValue(void* Dest) const;
	void DestroyValue(void* Dest) const;
	/** Assigns all values to constructed ones. */
	void CopyCompleteValue(void* Dest, const void* Src) const;
	/** Sets all values to what they are when constructed. */
	void ClearValue(void* Data) const;
	/** Assigns one value. */
	virtual void CopySingleValue(void* Dest, const void* Src) const = 0;
	/** Compares one value. B may be null: then A is compared with the type's empty value. Strings differ by case, too. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	void CopyCompleteValue_InContainer(void* Dest, const void* Src) const
	{
		CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
	}
	void InitializeValue_InContainer(void* Container) const { InitializeValue(ContainerPtrToValuePtr<void>(Container)); }
	void DestroyValue_InContainer(void* Container) const { DestroyValue(ContainerPtrToValuePtr<void>(Container)); }
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const
	{
		return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), B ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
	}

	/** Whether values can be keys of maps and elements of sets. */
	virtual bool CanBeKey() const { return false; }
	/** Of one value; only for a property whose values can be keys. */
	virtual uint32 GetValueTypeHash(const void* Value) const { checkNoEntry(); }
	/** Whether two keys are the same one: as their type's "==" says, which ignores case. */
	virtual bool IsSameKey(const void* A, const void* B) const { return Identical(A, B); }

	/**
	 * Appends one value in the engine's notation.
	 * @param DefaultValue members of a struct that equal its are left out; null, or the value itself, for none
	 * @param PortFlags of EPropertyPortFlags
	 */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	/** The same, but nothing for a value that equals Delta. @return whether there was something to write */
	bool ExportText_Direct(
		FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	bool ExportText_InContainer(int32 Index, FString& ValueStr, const void* Container, const void* DeltaContainer, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultContainer, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	/**
	 * Reads one value, as far as the text goes; without PPF_Delimited a string takes all of it.
	 * @param ErrorText gets a line when the text is none of this type; null for nobody
	 * @return behind what was read; null, and the value may be half read, when the text is none of this type
	 */
	const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = GWarn) const;
	const TCHAR* ImportText_InContainer(
		const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = GWarn) const
	{
		return ImportText_Direct(Buffer, ContainerPtrToValuePtr<void>(Container), OwnerObject, PortFlags, ErrorText);
	}

	void Serialize(FArchive& Ar) override;
	/**
	 * Writes or reads one value. A collector of references is given the objects that the value refers to and nothing else; weak
	 * references only when it asks for them.
	 * @param Defaults what members of a struct need not be written for when they equal its; may be null
	 */
	virtual void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const = 0;
	/** Whether a collector of references can find something in values, weak references included. */
	bool ContainsObjectReference() const;
	/** @param Encountered the structs that the search is in already, for a struct may hold an array of itself */
	virtual bool ContainsObjectReference(TArray<const UStruct*>& Encountered) const { return false; }

	/** How many values, more than one for an array of fixed size. */
	int32 ArrayDim = 1;
	EPropertyFlags PropertyFlags = CPF_None;
	/** The function to be called when the value comes over the network. */
	FName RepNotifyFunc;
	/** Set by whoever lays out the owner. */
	int32 Offset_Internal = 0;

protected:
	void SetLayout(int32 InElementSize, int32 InMinAlignment)
	{
		ElementSize = InElementSize;
		MinAlignment = InMinAlignment;
	}
	virtual FString MakeTypeTag() const { return GetClass()->GetName(); }
	virtual void InitializeSingleValue(void* Dest) const = 0;
	virtual void DestroySingleValue(void* Dest) const = 0;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const = 0;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags) const = 0;

private:
	int32 ElementSize = 0;
	int32 MinAlignment = 1;
	mutable FName TypeTag;
};

/**
 * Writes or reads a whole property: kind, name and definition. One of a kind that is not known is an error of the archive; one whose
 * type is gone reads as null.
 */
COREUOBJECT_API void SerializeField(FArchive& Ar, FProperty*& Property, FFieldVariant Owner);

/** Passes a reference to a T through the archive; anything else that comes back reads as null. */
template <typename T>
void SerializeObjectReference(FArchive& Ar, T*& Object)
{
	UObject* Raw = Object;
	Ar << Raw;
	Object = Raw && Raw->IsA(T::StaticClass()) ? static_cast<T*>(Raw) : nullptr;
}

/** The parts that follow from the C++ type of the values. */
template <typename T, typename BaseType = FProperty>
class TProperty : public BaseType
{
public:
	using TCppType = T;

	TProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: BaseType(InOwner, InName, InFlags)
	{
		this->SetLayout(sizeof(T), alignof(T));
	}

	static const T& GetPropertyValue(const void* Value) { return *static_cast<const T*>(Value); }
	static void SetPropertyValue(void* Value, const T& NewValue) { *static_cast<T*>(Value) = NewValue; }
	const T& GetPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return *this->template ContainerPtrToValuePtr<T>(Container, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* Container, const T& NewValue, int32 ArrayIndex = 0) const
	{
		*this->template ContainerPtrToValuePtr<T>(Container, ArrayIndex) = NewValue;
	}

	void CopySingleValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return IsSame(GetPropertyValue(A), B ? GetPropertyValue(B) : T());
	}
	bool CanBeKey() const override { return bHasHash; }
	uint32 GetValueTypeHash(const void* Value) const override
	{
		if constexpr (bHasHash)
		{
			return GetTypeHash(GetPropertyValue(Value));
		}
		else
		{
			checkNoEntry();
		}
	}
	bool IsSameKey(const void* A, const void* B) const override
	{
		if constexpr (bHasHash)
		{
			return GetPropertyValue(A) == GetPropertyValue(B);
		}
		else
		{
			return Identical(A, B);
		}
	}
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override
	{
		if constexpr (requires { Ar << *static_cast<T*>(Value); })
		{
			if (!Ar.IsObjectReferenceCollector())
			{
				Ar << *static_cast<T*>(Value);
			}
		}
		else
		{
			checkNoEntry();
		}
	}

protected:
	void InitializeSingleValue(void* Dest) const override { new (Dest) T(); }
	void DestroySingleValue(void* Dest) const override { static_cast<T*>(Dest)->~T(); }

private:
	static constexpr bool bHasHash = requires(const T& Value) { GetTypeHash(Value); };

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
