#include "PinTypeProperty.h"

#include "EdGraphSchema_K2.h"
#include "Engine/UserDefinedEnum.h"
#include "UObject/UnrealType.h"

namespace
{
using FSchema = UEdGraphSchema_K2;

/** One value's type, without the container around it. */
struct FTerminal
{
	FName Category;
	FName SubCategory;
	UObject* Object;
	bool bWeak;
	bool bWrapper;
	/** Null for the value of a map, which can be no delegate. */
	const FEdGraphPinType* Pin;
	UClass* SelfClass;

	UClass* GetClass() const { return SubCategory == FSchema::PSC_Self ? SelfClass : FSchema::GetAuthoritativeClass(Cast<UClass>(Object)); }
};

FTerminal GetTerminal(const FEdGraphPinType& Type, UClass* SelfClass)
{
	return { Type.PinCategory, Type.PinSubCategory, Type.PinSubCategoryObject.Get(), static_cast<bool>(Type.bIsWeakPointer),
		static_cast<bool>(Type.bIsUObjectWrapper), &Type, SelfClass };
}

FTerminal GetTerminal(const FEdGraphTerminalType& Type, UClass* SelfClass)
{
	return { Type.TerminalCategory, Type.TerminalSubCategory, Type.TerminalSubCategoryObject.Get(), Type.bTerminalIsWeakPointer,
		Type.bTerminalIsUObjectWrapper, nullptr, SelfClass };
}

using FMaker = FProperty* (*)(FFieldVariant Owner, FName Name, const FTerminal& Type);

template <typename T>
FProperty* MakePlain(FFieldVariant Owner, FName Name, const FTerminal&)
{
	return new T(Owner, Name, RF_Public);
}

FProperty* MakeReal(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	return Type.SubCategory == FSchema::PC_Float ? MakePlain<FFloatProperty>(Owner, Name, Type)
												 : MakePlain<FDoubleProperty>(Owner, Name, Type);
}

/** "enum class", whose values are kept by FEnumProperty; enums in a namespace and those made in the editor are bytes. */
bool IsEnumClass(const UEnum* Enum)
{
	return !Enum->IsA<UUserDefinedEnum>() && !Enum->CppType.Contains(TEXT("::")) && Enum->NumEnums() > 0 &&
		Enum->GetNameByIndex(0).ToString().Contains(TEXT("::"));
}

FProperty* MakeByte(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	UEnum* const Enum = Cast<UEnum>(Type.Object);
	if (Enum && IsEnumClass(Enum))
	{
		auto* const Property = new FEnumProperty(Owner, Name, RF_Public);
		Property->SetEnum(Enum);
		Property->AddCppProperty(new FByteProperty(Property, FName(TEXT("UnderlyingType"))));
		return Property;
	}
	auto* const Property = new FByteProperty(Owner, Name, RF_Public);
	Property->Enum = Enum;
	return Property;
}

FProperty* MakeEnum(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	return Cast<UEnum>(Type.Object) ? MakeByte(Owner, Name, Type) : nullptr;
}

FProperty* MakeStruct(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	auto* const Property = new FStructProperty(Owner, Name, RF_Public);
	Property->Struct = Cast<UScriptStruct>(Type.Object);
	return Property;
}

template <typename T>
FProperty* MakeReference(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	UClass* const Class = Type.GetClass();
	if (!Class)
	{
		return nullptr;
	}
	auto* const Property = new T(Owner, Name, RF_Public);
	Property->PropertyClass = Class;
	return Property;
}

FProperty* MakeInterface(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	UClass* const Class = Type.GetClass();
	if (!Class || !Class->HasAnyClassFlags(CLASS_Interface))
	{
		return nullptr;
	}
	auto* const Property = new FInterfaceProperty(Owner, Name, RF_Public);
	Property->InterfaceClass = Class;
	return Property;
}

FProperty* MakeObject(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	const UClass* const Class = Type.GetClass();
	if (Type.bWeak)
	{
		return MakeReference<FWeakObjectProperty>(Owner, Name, Type);
	}
	if (Class && Class->HasAnyClassFlags(CLASS_Interface))
	{
		return MakeInterface(Owner, Name, Type);
	}
	FProperty* const Property = MakeReference<FObjectProperty>(Owner, Name, Type);
	if (Class && Class->HasAnyClassFlags(CLASS_DefaultToInstanced))
	{
		Property->SetPropertyFlags(CPF_InstancedReference);
		Property->SetMetaData(FName(TEXT("EditInline")), TEXT("true"));
	}
	return Property;
}

template <typename T>
FProperty* MakeClass(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	UClass* const MetaClass = Type.GetClass();
	if (!MetaClass)
	{
		return nullptr;
	}
	auto* const Property = new T(Owner, Name, RF_Public);
	Property->SetMetaClass(MetaClass);
	Property->SetPropertyFlags(Type.bWrapper ? CPF_UObjectWrapper : CPF_None);
	return Property;
}

/** A type that names no signature has none; one that is named must be there. */
template <typename T>
FProperty* MakeDelegate(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	const bool bNamed = Type.Pin && !Type.Pin->PinSubCategoryMemberReference.MemberName.IsNone();
	UFunction* const Signature = bNamed ? FSchema::FindDelegateSignature(*Type.Pin, Type.SelfClass) : nullptr;
	if (bNamed && !Signature)
	{
		return nullptr;
	}
	auto* const Property = new T(Owner, Name, RF_Public);
	Property->SignatureFunction = Signature;
	return Property;
}

const TMap<FName, FMaker>& GetMakers()
{
	static const TMap<FName, FMaker> Makers = {
		{ FSchema::PC_Boolean, &MakePlain<FBoolProperty> },
		{ FSchema::PC_Byte, &MakeByte },
		{ FSchema::PC_Enum, &MakeEnum },
		{ FSchema::PC_Int, &MakePlain<FIntProperty> },
		{ FSchema::PC_Int64, &MakePlain<FInt64Property> },
		{ FSchema::PC_Float, &MakePlain<FFloatProperty> },
		{ FSchema::PC_Double, &MakePlain<FDoubleProperty> },
		{ FSchema::PC_Real, &MakeReal },
		{ FSchema::PC_Name, &MakePlain<FNameProperty> },
		{ FSchema::PC_String, &MakePlain<FStrProperty> },
		{ FSchema::PC_Text, &MakePlain<FTextProperty> },
		{ FSchema::PC_Struct, &MakeStruct },
		{ FSchema::PC_Object, &MakeObject },
		{ FSchema::PC_Interface, &MakeInterface },
		{ FSchema::PC_Class, &MakeClass<FClassProperty> },
		{ FSchema::PC_SoftObject, &MakeReference<FSoftObjectProperty> },
		{ FSchema::PC_SoftClass, &MakeClass<FSoftClassProperty> },
		{ FSchema::PC_Delegate, &MakeDelegate<FDelegateProperty> },
		{ FSchema::PC_MCDelegate, &MakeDelegate<FMulticastInlineDelegateProperty> },
	};
	return Makers;
}

FProperty* MakeTerminal(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	const FMaker* const Maker = GetMakers().Find(Type.Category);
	FProperty* const Property = Maker ? (*Maker)(Owner, Name, Type) : nullptr;
	if (Property && !Property->HasType())
	{
		delete Property;
		return nullptr;
	}
	return Property;
}

/** What the container must be told of its elements. */
void TakeOverFromElement(FProperty* Container, const FProperty* Element)
{
	const bool bInstanced = Element && Element->HasAnyPropertyFlags(CPF_InstancedReference);
	Container->SetPropertyFlags(bInstanced ? CPF_ContainsInstancedReference : CPF_None);
}

FProperty* MakeArray(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	auto* const Array = new FArrayProperty(Owner, Name, RF_Public);
	Array->Inner = MakeTerminal(Array, Name, Type);
	TakeOverFromElement(Array, Array->Inner);
	return Array;
}

FProperty* MakeSet(FFieldVariant Owner, FName Name, const FTerminal& Type)
{
	auto* const Set = new FSetProperty(Owner, Name, RF_Public);
	Set->ElementProp = MakeTerminal(Set, Name, Type);
	return Set;
}

FProperty* MakeMap(FFieldVariant Owner, FName Name, const FTerminal& KeyType, const FTerminal& ValueType)
{
	auto* const Map = new FMapProperty(Owner, Name, RF_Public);
	Map->KeyProp = MakeTerminal(Map, FName(Name.ToString() + TEXT("_Key")), KeyType);
	Map->ValueProp = MakeTerminal(Map, Name, ValueType);
	TakeOverFromElement(Map, Map->ValueProp);
	return Map;
}

FProperty* MakeProperty(FFieldVariant Owner, FName Name, const FEdGraphPinType& Type, UClass* SelfClass)
{
	const FTerminal Terminal = GetTerminal(Type, SelfClass);
	switch (Type.ContainerType)
	{
	case EPinContainerType::None: return MakeTerminal(Owner, Name, Terminal);
	case EPinContainerType::Array: return MakeArray(Owner, Name, Terminal);
	case EPinContainerType::Set: return MakeSet(Owner, Name, Terminal);
	case EPinContainerType::Map: return MakeMap(Owner, Name, Terminal, GetTerminal(Type.PinValueType, SelfClass));
	}
	return nullptr;
}
}

FProperty* CreatePropertyFromPinType(UStruct* Owner, FName Name, const FEdGraphPinType& Type, UClass* SelfClass)
{
	FProperty* const Property = MakeProperty(Owner, Name, Type, SelfClass);
	if (Property && !Property->HasType())
	{
		delete Property;
		return nullptr;
	}
	return Property;
}
