#include "PyBlock.h"
#include "PyConverters.h"
#include "PyStruct.h"

py::object ReadStruct(const FProperty* Property, const void* Value)
{
	return FPyStruct::Wrap(As<FStructProperty>(Property)->Struct, Value);
}

void WriteStruct(const FProperty* Property, void* Value, py::handle Source)
{
	UScriptStruct* const Struct = As<FStructProperty>(Property)->Struct;
	if (!FPyStruct::Assign(Struct, Value, Source))
	{
		RefuseValue(Property, Source);
	}
}

py::iterator IterateItems(const FProperty* Property, py::handle Source)
{
	if (PyUnicode_Check(Source.ptr()) || PyBytes_Check(Source.ptr()) || PyDict_Check(Source.ptr()) || !py::hasattr(Source, "__iter__"))
	{
		RefuseValue(Property, Source);
	}
	return py::iter(Source);
}

py::object ReadArray(const FProperty* Property, const void* Value)
{
	const FScriptArrayHelper Array(As<FArrayProperty>(Property), Value);
	py::list Result;
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		Result.append(PropertyToPython(As<FArrayProperty>(Property)->Inner, Array.GetElementPtr(Index)));
	}
	return Result;
}

void WriteArray(const FProperty* Property, void* Value, py::handle Source)
{
	FScriptArrayHelper Array(As<FArrayProperty>(Property), Value);
	Array.EmptyValues();
	for (const py::handle Item : IterateItems(Property, Source))
	{
		const int32 Index = Array.AddValue();
		PropertyFromPython(As<FArrayProperty>(Property)->Inner, Array.GetElementPtr(Index), Item);
	}
}

py::object ReadSet(const FProperty* Property, const void* Value)
{
	const FScriptSetHelper Set(As<FSetProperty>(Property), Value);
	py::set Result;
	for (int32 Index = 0; Index < Set.GetMaxIndex(); ++Index)
	{
		if (Set.IsValidIndex(Index))
		{
			Result.add(PropertyToPython(As<FSetProperty>(Property)->ElementProp, Set.GetElementPtr(Index)));
		}
	}
	return Result;
}

void WriteSet(const FProperty* Property, void* Value, py::handle Source)
{
	const FProperty* const Element = As<FSetProperty>(Property)->ElementProp;
	FScriptSetHelper Set(As<FSetProperty>(Property), Value);
	Set.EmptyElements();
	for (const py::handle Item : IterateItems(Property, Source))
	{
		const FPyScratch Scratch(Element);
		PropertyFromPython(Element, Scratch.Get(), Item);
		Set.AddElement(Scratch.Get());
	}
}

py::object ReadMap(const FProperty* Property, const void* Value)
{
	const FScriptMapHelper Map(As<FMapProperty>(Property), Value);
	py::dict Result;
	for (int32 Index = 0; Index < Map.GetMaxIndex(); ++Index)
	{
		if (Map.IsValidIndex(Index))
		{
			Result[PropertyToPython(As<FMapProperty>(Property)->KeyProp, Map.GetKeyPtr(Index))] =
				PropertyToPython(As<FMapProperty>(Property)->ValueProp, Map.GetValuePtr(Index));
		}
	}
	return Result;
}

void WriteMap(const FProperty* Property, void* Value, py::handle Source)
{
	if (!PyDict_Check(Source.ptr()))
	{
		RefuseValue(Property, Source);
	}
	const auto* const MapProperty = As<FMapProperty>(Property);
	FScriptMapHelper Map(MapProperty, Value);
	Map.EmptyValues();
	for (const auto& [Key, Item] : py::reinterpret_borrow<py::dict>(Source))
	{
		const FPyScratch KeyScratch(MapProperty->KeyProp);
		const FPyScratch ValueScratch(MapProperty->ValueProp);
		PropertyFromPython(MapProperty->KeyProp, KeyScratch.Get(), Key);
		PropertyFromPython(MapProperty->ValueProp, ValueScratch.Get(), Item);
		Map.AddPair(KeyScratch.Get(), ValueScratch.Get());
	}
}
