#include "EdGraphSchema_K2.h"

#include "Engine/Blueprint.h"

namespace
{
using FSchema = UEdGraphSchema_K2;

/** Category, sub-category and object of one value. */
struct FTerminal
{
	FName Category;
	FName SubCategory;
	UObject* Object = nullptr;
	FSimpleMemberReference Member;
	bool bIsWeak = false;
};

FSimpleMemberReference ReferTo(const UFunction* Signature)
{
	FSimpleMemberReference Result;
	if (Signature)
	{
		Result.MemberName = Signature->GetFName();
		Result.MemberParent = Signature->GetOwnerClass();
		if (!Result.MemberParent)
		{
			Result.MemberParent = Signature->GetPackage();
		}
	}
	return Result;
}

/** Fills in the type of a property of one kind. @return false for a property of another */
using FConverter = bool (*)(const FProperty* Property, FTerminal& Out);

template <typename PropertyType, typename FillType>
bool ConvertKind(const FProperty* Property, FTerminal& Out, FillType Fill)
{
	const PropertyType* const Typed = CastField<PropertyType>(Property);
	return Typed && (Fill(*Typed, Out), true);
}

#define KIND(PropertyType, ...)                                                                                                            \
	[](const FProperty* Property, FTerminal& Out)                                                                                          \
	{ return ConvertKind<PropertyType>(Property, Out, [](const PropertyType& From, FTerminal& To) { __VA_ARGS__; }); }

// Kinds that derive from others stand before them.
const FConverter Converters[] = {
	KIND(FBoolProperty, To.Category = FSchema::PC_Boolean),
	KIND(FIntProperty, To.Category = FSchema::PC_Int),
	KIND(FInt64Property, To.Category = FSchema::PC_Int64),
	KIND(FFloatProperty, To.Category = FSchema::PC_Real; To.SubCategory = FSchema::PC_Float),
	KIND(FDoubleProperty, To.Category = FSchema::PC_Real; To.SubCategory = FSchema::PC_Double),
	KIND(FByteProperty, To.Category = FSchema::PC_Byte; To.Object = From.Enum),
	KIND(FEnumProperty, To.Category = FSchema::PC_Byte; To.Object = From.GetEnum()),
	KIND(FStrProperty, To.Category = FSchema::PC_String),
	KIND(FNameProperty, To.Category = FSchema::PC_Name),
	KIND(FTextProperty, To.Category = FSchema::PC_Text),
	KIND(FStructProperty, To.Category = FSchema::PC_Struct; To.Object = From.Struct),
	KIND(FClassProperty, To.Category = FSchema::PC_Class; To.Object = From.MetaClass),
	KIND(FSoftClassProperty, To.Category = FSchema::PC_SoftClass; To.Object = From.MetaClass),
	KIND(FSoftObjectProperty, To.Category = FSchema::PC_SoftObject; To.Object = From.PropertyClass),
	KIND(FWeakObjectProperty, To.Category = FSchema::PC_Object; To.Object = From.PropertyClass; To.bIsWeak = true),
	KIND(FObjectPropertyBase, To.Category = FSchema::PC_Object; To.Object = From.PropertyClass),
	KIND(FInterfaceProperty, To.Category = FSchema::PC_Interface; To.Object = From.InterfaceClass),
	KIND(FDelegateProperty, To.Category = FSchema::PC_Delegate; To.Member = ReferTo(From.SignatureFunction)),
	KIND(FMulticastDelegateProperty, To.Category = FSchema::PC_MCDelegate; To.Member = ReferTo(From.SignatureFunction)),
};

#undef KIND

bool ConvertTerminal(const FProperty* Property, FTerminal& Out)
{
	for (const FConverter Convert : Converters)
	{
		if (Convert(Property, Out))
		{
			// Enums of another size are none that a pin can hold.
			const FEnumProperty* const Enum = CastField<FEnumProperty>(Property);
			return !Enum || Enum->GetSize() == 1;
		}
	}
	return false;
}

/** The element, or a map's key, and which container it is in. */
const FProperty* GetElement(const FProperty* Property, EPinContainerType& OutContainer)
{
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		OutContainer = EPinContainerType::Array;
		return Array->Inner;
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		OutContainer = EPinContainerType::Set;
		return Set->ElementProp;
	}
	if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
	{
		OutContainer = EPinContainerType::Map;
		return Map->KeyProp;
	}
	return Property;
}

bool ConvertMapValue(const FMapProperty* Map, FEdGraphTerminalType& Out)
{
	FTerminal Value;
	if (!ConvertTerminal(Map->ValueProp, Value))
	{
		return false;
	}
	Out.TerminalCategory = Value.Category;
	Out.TerminalSubCategory = Value.SubCategory;
	Out.TerminalSubCategoryObject = Value.Object;
	Out.bTerminalIsWeakPointer = Value.bIsWeak;
	Out.bTerminalIsUObjectWrapper = Map->ValueProp->HasAnyPropertyFlags(CPF_UObjectWrapper);
	return true;
}

/** A string by constant reference is one by value to a graph: it can be typed in. */
bool IsByReference(const FProperty* Property)
{
	return Property->HasAllPropertyFlags(CPF_OutParm | CPF_ReferenceParm) &&
		!(Property->HasAnyPropertyFlags(CPF_ConstParm) && Property->IsA<FStrProperty>());
}

FString DescribeTerminal(FName Category, FName SubCategory, const UObject* Object)
{
	struct FRow
	{
		FName Category;
		FName SubCategory;
		/** "%s" is the object's name. */
		const TCHAR* Text;
	};
	static const FRow Rows[] = {
		{ FSchema::PC_Exec, {}, TEXT("Exec") },
		{ FSchema::PC_Boolean, {}, TEXT("Boolean") },
		{ FSchema::PC_Int, {}, TEXT("Integer") },
		{ FSchema::PC_Int64, {}, TEXT("Integer64") },
		{ FSchema::PC_Real, FSchema::PC_Float, TEXT("Float (single-precision)") },
		{ FSchema::PC_Real, {}, TEXT("Float (double-precision)") },
		{ FSchema::PC_Name, {}, TEXT("Name") },
		{ FSchema::PC_String, {}, TEXT("String") },
		{ FSchema::PC_Text, {}, TEXT("Text") },
		{ FSchema::PC_Wildcard, {}, TEXT("Wildcard") },
		{ FSchema::PC_Delegate, {}, TEXT("Delegate") },
		{ FSchema::PC_MCDelegate, {}, TEXT("Event Dispatcher") },
		{ FSchema::PC_Object, FSchema::PSC_Self, TEXT("Self Object Reference") },
		{ FSchema::PC_Struct, {}, TEXT("%s Structure") },
		{ FSchema::PC_Object, {}, TEXT("%s Object Reference") },
		{ FSchema::PC_Class, {}, TEXT("%s Class Reference") },
		{ FSchema::PC_SoftObject, {}, TEXT("%s Soft Object Reference") },
		{ FSchema::PC_SoftClass, {}, TEXT("%s Soft Class Reference") },
		{ FSchema::PC_Interface, {}, TEXT("%s Interface") },
	};
	if (Category == FSchema::PC_Byte)
	{
		return Object ? Object->GetName() + TEXT(" Enum") : FString(TEXT("Byte"));
	}
	for (const FRow& Row : Rows)
	{
		if (Row.Category == Category && (Row.SubCategory.IsNone() || Row.SubCategory == SubCategory))
		{
			const UClass* const Class = Cast<UClass>(Object);
			const FString Name = Class ? FSchema::GetFriendlyClassName(Class).ToString() : GetNameSafe(Object);
			return FString(Row.Text).Replace(TEXT("%s"), *Name);
		}
	}
	return Category.ToString();
}
}

bool UEdGraphSchema_K2::ConvertPropertyToPinType(const FProperty* Property, FEdGraphPinType& TypeOut)
{
	TypeOut.ResetToDefaults();
	if (!Property || !Property->HasType())
	{
		return false;
	}
	FEdGraphPinType Type;
	FTerminal Terminal;
	const FProperty* const Element = GetElement(Property, Type.ContainerType);
	const FMapProperty* const Map = CastField<FMapProperty>(Property);
	if (!ConvertTerminal(Element, Terminal) || (Map && !ConvertMapValue(Map, Type.PinValueType)))
	{
		return false;
	}
	Type.PinCategory = Terminal.Category;
	Type.PinSubCategory = Terminal.SubCategory;
	Type.PinSubCategoryObject = Terminal.Object;
	Type.PinSubCategoryMemberReference = Terminal.Member;
	Type.bIsWeakPointer = Terminal.bIsWeak;
	Type.bIsUObjectWrapper = Element->HasAnyPropertyFlags(CPF_UObjectWrapper);
	Type.bIsReference = IsByReference(Property);
	Type.bIsConst = Property->HasAnyPropertyFlags(CPF_ConstParm) && (Type.bIsReference || !Property->HasAnyPropertyFlags(CPF_OutParm));
	TypeOut = Type;
	return true;
}

FText UEdGraphSchema_K2::TypeToText(const FEdGraphPinType& Type)
{
	const FString Element = DescribeTerminal(Type.PinCategory, Type.PinSubCategory, Type.PinSubCategoryObject.Get());
	const FEdGraphTerminalType& Value = Type.PinValueType;
	switch (Type.ContainerType)
	{
	case EPinContainerType::None: return FText::FromString(Element);
	case EPinContainerType::Array: return FText::FromString(FString::Printf(TEXT("Array of %ss"), *Element));
	case EPinContainerType::Set: return FText::FromString(FString::Printf(TEXT("Set of %ss"), *Element));
	case EPinContainerType::Map: break;
	}
	const FString ValueText = DescribeTerminal(Value.TerminalCategory, Value.TerminalSubCategory, Value.TerminalSubCategoryObject.Get());
	return FText::FromString(FString::Printf(TEXT("Map of %ss to %ss"), *Element, *ValueText));
}

FText UEdGraphSchema_K2::GetFriendlySignatureName(const UFunction* Function)
{
	return Function->GetDisplayNameText();
}

FText UEdGraphSchema_K2::GetFriendlyClassName(const UClass* Class)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	return Blueprint ? FFieldMetaData().GetDisplayName(Blueprint->GetName()) : Class->GetDisplayNameText();
}

UClass* UEdGraphSchema_K2::GetAuthoritativeClass(UClass* Class)
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	return Blueprint && Blueprint->GeneratedClass ? Blueprint->GeneratedClass.Get() : Class;
}

bool UEdGraphSchema_K2::FindFunctionParameterDefaultValue(const UFunction* Function, const FProperty* Parameter, FString& OutString)
{
	for (const FName& Key : { Parameter->GetFName(), FName(TEXT("CPP_Default_") + Parameter->GetName()) })
	{
		// LatentInfo = "LatentInfo" says which parameter it is, not what it has.
		if (Function->HasMetaData(Key) && Function->GetMetaData(Key) != Parameter->GetName())
		{
			OutString = Function->GetMetaData(Key);
			return true;
		}
	}
	return false;
}

UFunction* UEdGraphSchema_K2::FindDelegateSignature(const FEdGraphPinType& Type, UClass* SelfScope)
{
	const FSimpleMemberReference& Member = Type.PinSubCategoryMemberReference;
	if (UPackage* const Package = Cast<UPackage>(Member.MemberParent))
	{
		return FindObject<UFunction>(Package, *Member.MemberName.ToString());
	}
	UClass* const Class = Member.GetMemberParentClass();
	// The own class has the newest functions in its skeleton.
	const bool bOwn = Class && SelfScope && GetAuthoritativeClass(Class) == GetAuthoritativeClass(SelfScope);
	return Class ? (bOwn ? SelfScope : Class)->FindFunctionByName(Member.MemberName) : nullptr;
}
