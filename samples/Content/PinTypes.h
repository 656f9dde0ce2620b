#pragma once

#include "EdGraphSchema_K2.h"
#include "UObject/NoExportTypes.h"

/** The types of variables and parameters. */
namespace PinTypes
{
inline FEdGraphPinType Of(FName Category, UObject* Object = nullptr, FName SubCategory = NAME_None)
{
	return FEdGraphPinType(Category, SubCategory, Object, EPinContainerType::None, false, FEdGraphTerminalType());
}

inline FEdGraphPinType Bool()
{
	return Of(UEdGraphSchema_K2::PC_Boolean);
}

inline FEdGraphPinType Int()
{
	return Of(UEdGraphSchema_K2::PC_Int);
}

inline FEdGraphPinType Real()
{
	return Of(UEdGraphSchema_K2::PC_Real, nullptr, UEdGraphSchema_K2::PC_Double);
}

inline FEdGraphPinType String()
{
	return Of(UEdGraphSchema_K2::PC_String);
}

inline FEdGraphPinType Name()
{
	return Of(UEdGraphSchema_K2::PC_Name);
}

inline FEdGraphPinType Struct(UScriptStruct* Type)
{
	return Of(UEdGraphSchema_K2::PC_Struct, Type);
}

inline FEdGraphPinType Enum(UEnum* Type)
{
	return Of(UEdGraphSchema_K2::PC_Byte, Type);
}

inline FEdGraphPinType Object(UClass* Class)
{
	return Of(UEdGraphSchema_K2::PC_Object, Class);
}

inline FEdGraphPinType In(EPinContainerType Container, FEdGraphPinType Element)
{
	Element.ContainerType = Container;
	return Element;
}

inline FEdGraphPinType Map(FEdGraphPinType Key, const FEdGraphPinType& Value)
{
	Key.ContainerType = EPinContainerType::Map;
	Key.PinValueType = FEdGraphTerminalType::FromPinType(Value);
	return Key;
}
}
