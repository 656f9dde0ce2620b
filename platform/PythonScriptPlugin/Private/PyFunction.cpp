#include "PyFunction.h"

#include "PyBlock.h"
#include "PyConversion.h"
#include "PyNames.h"
#include "PyObject.h"
#include "PyTypes.h"

namespace
{
FString Describe(const UFunction* Function)
{
	return GetPythonTypeName(Function->GetOwnerClass()) + TEXT(".") + GetPythonName(Function) + TEXT("()");
}

bool IsInput(const FProperty* Parameter)
{
	return !Parameter->HasAnyPropertyFlags(CPF_ReturnParm) &&
		(!Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ReferenceParm | CPF_ConstParm));
}

bool IsOutput(const FProperty* Parameter)
{
	return Parameter->HasAnyPropertyFlags(CPF_OutParm) && !Parameter->HasAnyPropertyFlags(CPF_ConstParm | CPF_ReturnParm);
}

void ReadDefault(const UFunction* Function, const FProperty* Parameter, void* Value, int32 Position)
{
	const FName Key(TEXT("CPP_Default_") + Parameter->GetName());
	if (!Function->HasMetaData(Key))
	{
		RaisePython(PyExc_TypeError,
			FString::Printf(
				TEXT("%s: required argument '%s' (pos %d) not found"), *Describe(Function), *GetPythonName(Parameter), Position));
	}
	const FString& Default = Function->GetMetaData(Key);
	if (!Default.IsEmpty())
	{
		Parameter->ImportText_Direct(*Default, Value, nullptr, PPF_None);
	}
}

/** Fills a function's block with the arguments of a call. */
void ReadArguments(const UFunction* Function, void* Block, const py::tuple& Arguments, const py::dict& Named)
{
	SIZE_T Position = 0;
	SIZE_T NamesUsed = 0;
	for (TFieldIterator<FProperty> Parameter(Function); Parameter; ++Parameter)
	{
		if (!IsInput(*Parameter))
		{
			continue;
		}
		void* const Value = Parameter->ContainerPtrToValuePtr<void>(Block);
		const py::str Name = ToPyString(GetPythonName(*Parameter));
		const bool bNamed = Named.contains(Name);
		if (Position < Arguments.size() && bNamed)
		{
			RaisePython(PyExc_TypeError, FString::Printf(TEXT("%s: argument '%s' given twice"), *Describe(Function), *ToFString(Name)));
		}
		if (Position < Arguments.size() || bNamed)
		{
			PropertyFromPython(*Parameter, Value, bNamed ? py::object(Named[Name]) : py::object(Arguments[Position]));
		}
		else
		{
			ReadDefault(Function, *Parameter, Value, static_cast<int32>(Position) + 1);
		}
		++Position;
		NamesUsed += bNamed ? 1 : 0;
	}
	if (Arguments.size() > Position || Named.size() > NamesUsed)
	{
		RaisePython(PyExc_TypeError,
			FString::Printf(
				TEXT("%s takes at most %d arguments, or has none of such a name"), *Describe(Function), static_cast<int32>(Position)));
	}
}

py::object ReadResults(const UFunction* Function, const void* Block)
{
	const FProperty* const Return = Function->GetReturnProperty();
	py::list Results;
	for (TFieldIterator<FProperty> Parameter(Function); Parameter; ++Parameter)
	{
		if (IsOutput(*Parameter))
		{
			Results.append(PropertyToPython(*Parameter, Parameter->ContainerPtrToValuePtr<void>(Block)));
		}
	}
	if (Return)
	{
		const py::object Value = PropertyToPython(Return, Return->ContainerPtrToValuePtr<void>(Block));
		if (!Return->IsA<FBoolProperty>() || Results.empty())
		{
			Results.insert(0, Value);
		}
		else if (!Value.cast<bool>())
		{
			return py::none();
		}
	}
	return Results.empty() ? py::object(py::none()) : Results.size() == 1 ? py::object(Results[0]) : py::object(py::tuple(Results));
}

py::object Call(UObject& Target, UFunction* Function, const py::tuple& Arguments, const py::dict& Named)
{
	const FPyBlock Block(Function);
	ReadArguments(Function, Block.Get(), Arguments, Named);
	Target.ProcessEvent(Function, Block.Get());
	return ReadResults(Function, Block.Get());
}

/** Not the function itself is kept: a class that is made anew has other ones. */
void BindFunction(const py::object& Type, const UFunction* Function)
{
	const FString Name = GetPythonName(Function);
	const std::string Utf8 = FUtf8::Encode(Name);
	const std::string Doc = FUtf8::Encode(Function->GetToolTipText().ToString());
	if (Function->HasAnyFunctionFlags(FUNC_Static))
	{
		const py::cpp_function Callable(
			[Name, TypeName = GetPythonTypeName(Function->GetOwnerClass())](const py::args& Arguments, const py::kwargs& Named)
			{
			CheckGameThread();
			UClass* const Class = CastChecked<UClass>(FPyTypes::Get().FindNative(TypeName));
			return CallFunction(*Class->GetDefaultObject(), Name, Arguments, Named);
			},
			py::name(Utf8.c_str()), py::doc(Doc.c_str()));
		py::setattr(Type, Utf8.c_str(), py::staticmethod(Callable));
		return;
	}
	py::setattr(Type, Utf8.c_str(),
		py::cpp_function([Name](const py::object& Self, const py::args& Arguments, const py::kwargs& Named)
			{ return CallFunction(*FPyObject::Unwrap(Self), Name, Arguments, Named); },
			py::name(Utf8.c_str()), py::is_method(Type), py::doc(Doc.c_str())));
}
}

py::object CallFunction(UObject& Target, const FString& Name, const py::tuple& Arguments, const py::dict& Named)
{
	UFunction* const Function = FindFunctionByPythonName(Target.GetClass(), Name);
	if (!Function)
	{
		RaisePython(PyExc_Exception,
			FString::Printf(TEXT("%s: Failed to find function '%s' on '%s'"), *Target.GetClass()->GetName(), *Name, *Target.GetName()));
	}
	return Call(Target, Function, Arguments, Named);
}

void BindFunctions(const py::object& Type, const UClass* Class)
{
	TArray<const UClass*> Owners = { Class };
	for (const FImplementedInterface& Interface : Class->Interfaces)
	{
		Owners.Add(Interface.Class);
	}
	for (const UClass* const Owner : Owners)
	{
		for (TFieldIterator<UFunction> Function(Owner, EFieldIterationFlags::None); Function; ++Function)
		{
			if (IsScriptFunction(*Function))
			{
				BindFunction(Type, *Function);
			}
		}
	}
}
