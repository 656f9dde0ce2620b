#include "PyTypes.h"

#include "PyFunction.h"
#include "PyNames.h"
#include "PyObject.h"
#include "PyProperty.h"
#include "PyStruct.h"
#include "UObject/UObjectIterator.h"

namespace
{
/** Where a type of Python keeps what it stands for. */
const char* const TypeAttribute = "_reflected_type";

void BindProperties(const py::object& Type, const UClass* Class)
{
	for (TFieldIterator<FProperty> Property(Class, EFieldIterationFlags::None); Property; ++Property)
	{
		if (!Property->HasAnyPropertyFlags(CPF_BlueprintVisible))
		{
			continue;
		}
		const FString Name = GetPythonName(*Property);
		const py::cpp_function Get([Name](const py::object& Self) { return GetEditorProperty(*FPyObject::Unwrap(Self), Name); });
		py::object Set = py::none();
		if (!Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly))
		{
			Set = py::cpp_function(
				[Name](const py::object& Self, const py::object& Value) { SetEditorProperty(*FPyObject::Unwrap(Self), Name, Value); });
		}
		FPyTypes::AddProperty(Type, Name, Get, Set, Property->GetToolTipText().ToString());
	}
}

bool IsShown(const UField* Type)
{
	return Type->HasAnyFlags(RF_MarkAsNative) &&
		(Type->IsA(UClass::StaticClass()) || Type->IsA(UScriptStruct::StaticClass()) || Type->IsA(UEnum::StaticClass()));
}
}

UField* FindTypeOfPython(py::handle Type)
{
	if (!PyType_Check(Type.ptr()) || !py::hasattr(Type, TypeAttribute))
	{
		return nullptr;
	}
	CheckGameThread();
	return static_cast<UField*>(py::object(Type.attr(TypeAttribute)).cast<FPyReference&>().Get());
}

FPyTypes& FPyTypes::Get()
{
	static FPyTypes* const Types = new FPyTypes();
	return *Types;
}

void FPyTypes::Start(const py::module_& Module)
{
	UPyReferenceCollector::Start();
	ObjectBase = Module.attr("_ObjectBase");
	StructBase = Module.attr("_StructBase");
	NameType = Module.attr("Name");
	TextType = Module.attr("Text");
}

void FPyTypes::Forget()
{
	Types.Empty();
	Named.Empty();
	for (py::object* const Each : { &ObjectBase, &StructBase, &NameType, &TextType })
	{
		*Each = py::object();
	}
}

py::object FPyTypes::GetType(UField* Type)
{
	CheckGameThread();
	UClass* Class = Cast<UClass>(Type);
	while (Class && !Class->HasAnyFlags(RF_MarkAsNative))
	{
		Class = Class->GetSuperClass();
		Type = Class;
	}
	const FType* const Known = Types.Find(Type);
	// Another type may lie where one was that is gone.
	if (Known && Known->Reflected->Get() == Type)
	{
		return Known->Python;
	}
	py::object Made = Class               ? MakeClass(Class)
		: Type->IsA(UEnum::StaticClass()) ? MakeEnum(static_cast<UEnum*>(Type))
										  : MakeStruct(CastChecked<UScriptStruct>(Type));
	Types.Add(Type, { MakeUnique<FPyReference>(Type), Made });
	return Made;
}

py::object FPyTypes::Derive(const py::object& Base, UField* Type)
{
	py::dict Members;
	// An instance has no attributes but those of its type: a wrong name is an error.
	Members["__slots__"] = py::tuple();
	Members["__module__"] = "unreal";
	Members["__doc__"] = ToPyString(Type->GetToolTipText().ToString());
	Members[TypeAttribute] = py::cast(new FPyReference(Type), py::return_value_policy::take_ownership);
	return py::type::of(Base)(ToPyString(GetPythonTypeName(Type)), py::make_tuple(Base), Members);
}

py::object FPyTypes::MakeClass(UClass* Class)
{
	UClass* const Super = Class->GetSuperClass();
	py::object Type = Derive(Super ? GetType(Super) : ObjectBase, Class);
	if (!Super)
	{
		FPyObject::BindRoot(Type);
	}
	BindFunctions(Type, Class);
	BindProperties(Type, Class);
	return Type;
}

py::object FPyTypes::MakeStruct(UScriptStruct* Struct)
{
	auto* const Super = static_cast<UScriptStruct*>(Struct->GetSuperStruct());
	py::object Type = Derive(Super ? GetType(Super) : StructBase, Struct);
	FPyStruct::BindProperties(Type, Struct);
	return Type;
}

py::object FPyTypes::MakeEnum(const UEnum* Enum)
{
	py::dict Seen;
	py::list Members;
	for (int32 Index = 0; Index < Enum->NumEnums(); ++Index)
	{
		const FString Name = Enum->GetNameStringByIndex(Index);
		const bool bCount = Index == Enum->NumEnums() - 1 && Name.EndsWith(TEXT("_MAX"));
		const py::str PythonName = ToPyString(MakePythonName(Name, true));
		if (!bCount && !Seen.contains(PythonName))
		{
			Seen[PythonName] = true;
			Members.append(py::make_tuple(PythonName, Enum->GetValueByIndex(Index)));
		}
	}
	using namespace py::literals;
	return py::module_::import("enum").attr("IntEnum")(ToPyString(GetPythonTypeName(Enum)), Members, "module"_a = "unreal");
}

UField* FPyTypes::FindNative(const FString& Name)
{
	CheckGameThread();
	const TUniquePtr<FPyReference>* const Known = Named.Find(Name);
	auto* const Found = Known ? static_cast<UField*>((*Known)->Get()) : nullptr;
	if (Found && IsShown(Found) && GetPythonTypeName(Found).Equals(Name))
	{
		return Found;
	}
	for (TObjectIterator<UField> Type; Type; ++Type)
	{
		if (IsShown(*Type) && GetPythonTypeName(*Type).Equals(Name))
		{
			Named.Add(Name, MakeUnique<FPyReference>(*Type));
			return *Type;
		}
	}
	return nullptr;
}

py::list FPyTypes::GetNames() const
{
	CheckGameThread();
	py::list Names;
	for (TObjectIterator<UField> Type; Type; ++Type)
	{
		if (IsShown(*Type))
		{
			Names.append(ToPyString(GetPythonTypeName(*Type)));
		}
	}
	return Names;
}

void FPyTypes::AddProperty(
	const py::object& Type, const FString& Name, const py::cpp_function& Get, const py::object& Set, const FString& Doc)
{
	const py::object Property = py::module_::import("builtins").attr("property")(Get, Set, py::none(), ToPyString(Doc));
	py::setattr(Type, ToPyString(Name), Property);
}
