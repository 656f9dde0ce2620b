#include "PyStruct.h"

#include "PyConversion.h"
#include "PyNames.h"
#include "PyObject.h"
#include "PyTypes.h"

namespace
{
/** By position, base structs' members first. */
void AssignSequence(const UScriptStruct* Struct, void* Value, const py::sequence& Items)
{
	TArray<const UStruct*> Types;
	for (const UStruct* Each = Struct; Each; Each = Each->GetSuperStruct())
	{
		Types.Insert(Each, 0);
	}
	SIZE_T Index = 0;
	for (const UStruct* const Each : Types)
	{
		for (TFieldIterator<FProperty> Member(Each, EFieldIterationFlags::None); Member && Index < Items.size(); ++Member, ++Index)
		{
			PropertyFromPython(*Member, Member->ContainerPtrToValuePtr<void>(Value), py::object(Items[Index]));
		}
	}
	if (Index < Items.size())
	{
		RaisePython(
			PyExc_TypeError, FString::Printf(TEXT("%s: it has no more than %d members"), *Struct->GetName(), static_cast<int32>(Index)));
	}
}

void AssignNamed(const UScriptStruct* Struct, void* Value, const py::dict& Items)
{
	for (const auto& [Name, Item] : Items)
	{
		const FProperty* const Member = FindPropertyChecked(Struct, ToFString(py::str(Name)));
		PropertyFromPython(Member, Member->ContainerPtrToValuePtr<void>(Value), Item);
	}
}

/** The value is assigned whole or not at all. */
void SetMember(const UScriptStruct* Struct, void* Value, const FString& Name, const py::object& Source)
{
	const FProperty* const Member = FindPropertyChecked(Struct, Name);
	const FPyScratch Scratch(Member);
	PropertyFromPython(Member, Scratch.Get(), Source);
	Member->CopyCompleteValue_InContainer(Value, static_cast<uint8*>(Scratch.Get()) - Member->GetOffset_ForInternal());
}

py::object GetMember(const UScriptStruct* Struct, const void* Value, const FString& Name)
{
	const FProperty* const Member = FindPropertyChecked(Struct, Name);
	return PropertyToPython(Member, Member->ContainerPtrToValuePtr<void>(Value));
}
}

py::object FPyStruct::Wrap(UScriptStruct* Struct, const void* Value)
{
	const py::object Type = FPyTypes::Get().GetType(Struct);
	py::object Wrapper = Type();
	Struct->CopyScriptStruct(Wrapper.cast<FPyStruct&>().Block->Get(), Value);
	return Wrapper;
}

bool FPyStruct::Assign(UScriptStruct* Struct, void* Value, py::handle Source)
{
	if (py::isinstance(Source, FPyTypes::Get().GetStructBase()))
	{
		const FPyStruct& Other = Source.cast<FPyStruct&>();
		const void* const OtherValue = Other.GetChecked();
		const bool bFits = Other.GetStruct()->IsChildOf(Struct);
		if (bFits)
		{
			Struct->CopyScriptStruct(Value, OtherValue);
		}
		return bFits;
	}
	if (PyDict_Check(Source.ptr()))
	{
		AssignNamed(Struct, Value, py::reinterpret_borrow<py::dict>(Source));
		return true;
	}
	if (PyList_Check(Source.ptr()) || PyTuple_Check(Source.ptr()))
	{
		AssignSequence(Struct, Value, py::reinterpret_borrow<py::sequence>(Source));
		return true;
	}
	return false;
}

void FPyStruct::Init(const py::object& Self)
{
	CheckGameThread();
	Type.Set(CastChecked<UScriptStruct>(FindTypeOfPython(py::type::of(Self))));
	Block = MakeUnique<FPyBlock>(GetStruct());
}

UScriptStruct* FPyStruct::GetStruct() const
{
	return static_cast<UScriptStruct*>(Type.Get());
}

void* FPyStruct::GetChecked() const
{
	CheckGameThread();
	if (!GetStruct() || !Block)
	{
		RaisePython(PyExc_Exception, TEXT("The struct is gone: its type was deleted."));
	}
	return Block->Get();
}

void FPyStruct::AddReferences(FArchive& Ar)
{
	if (Block && GetStruct())
	{
		GetStruct()->SerializeReferences(Ar, Block->Get());
	}
}

FString FPyStruct::ToText() const
{
	void* const Value = GetChecked();
	FStructProperty Property(FFieldVariant(), NAME_None);
	Property.Struct = GetStruct();
	Property.Link();
	FString Text;
	Property.ExportTextItem_Direct(Text, Value, nullptr, nullptr, PPF_None);
	return Text;
}

void FPyStruct::Bind(py::module_& Module)
{
	py::class_<FPyStruct>(Module, "_StructBase")
		.def(py::init<>())
		.def(
			"get_editor_property",
			[](const FPyStruct& This, const py::str& Name) { return GetMember(This.GetStruct(), This.GetChecked(), ToFString(Name)); },
			py::arg("name"))
		.def(
			"set_editor_property",
			[](const FPyStruct& This, const py::str& Name, const py::object& Value)
			{ SetMember(This.GetStruct(), This.GetChecked(), ToFString(Name), Value); },
			py::arg("name"), py::arg("value"))
		.def("copy", [](const FPyStruct& This) { return Wrap(This.GetStruct(), This.GetChecked()); })
		.def("__copy__", [](const FPyStruct& This) { return Wrap(This.GetStruct(), This.GetChecked()); })
		.def("__deepcopy__", [](const FPyStruct& This, const py::object&) { return Wrap(This.GetStruct(), This.GetChecked()); })
		.def("export_text", [](const FPyStruct& This) { return ToPyString(This.ToText()); })
		.def("to_tuple",
			[](const FPyStruct& This)
			{
		const void* const Value = This.GetChecked();
		py::list Members;
		for (TFieldIterator<FProperty> Member(This.GetStruct()); Member; ++Member)
		{
			Members.append(PropertyToPython(*Member, Member->ContainerPtrToValuePtr<void>(Value)));
		}
		return py::tuple(Members);
		})
		.def("__eq__",
			[](const FPyStruct& This, const py::object& Other)
			{
		if (!py::isinstance(Other, FPyTypes::Get().GetStructBase()))
		{
			return false;
		}
		const FPyStruct& That = Other.cast<FPyStruct&>();
		const void* const Value = This.GetChecked();
		const void* const OtherValue = That.GetChecked();
		return This.GetStruct() == That.GetStruct() && This.GetStruct()->CompareScriptStruct(Value, OtherValue);
		})
		.def("__hash__", [](const FPyStruct& This) { return py::hash(ToPyString(This.ToText())); })
		.def("__repr__",
			[](const FPyStruct& This)
			{
		const FString Text = This.ToText();
		return ToPyString(FString::Printf(TEXT("<Struct '%s' %s>"), *This.GetStruct()->GetName(), *Text));
		});
}

void FPyStruct::BindProperties(const py::object& PythonType, const UScriptStruct* Struct)
{
	py::setattr(PythonType, "__init__",
		py::cpp_function(
			[](const py::object& Self, const py::args& Arguments, const py::kwargs& Named)
			{
		FPyTypes::Get().GetStructBase().attr("__init__")(Self);
		FPyStruct& This = Self.cast<FPyStruct&>();
		This.Init(Self);
		AssignSequence(This.GetStruct(), This.Block->Get(), Arguments);
		AssignNamed(This.GetStruct(), This.Block->Get(), Named);
			},
			py::name("__init__"), py::is_method(PythonType)));
	for (TFieldIterator<FProperty> Member(Struct, EFieldIterationFlags::None); Member; ++Member)
	{
		const FString Name = GetPythonName(*Member);
		const py::cpp_function Get(
			[Name](const FPyStruct& This)
			{
			const void* const Value = This.GetChecked();
			return GetMember(This.GetStruct(), Value, Name);
		});
		const py::cpp_function Set(
			[Name](const FPyStruct& This, const py::object& Value)
			{
			void* const Target = This.GetChecked();
			SetMember(This.GetStruct(), Target, Name, Value);
		});
		FPyTypes::AddProperty(PythonType, Name, Get, Set, Member->GetToolTipText().ToString());
	}
}
