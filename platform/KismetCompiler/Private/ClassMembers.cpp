#include "ClassMembers.h"

#include "Kismet2/CompilerResultsLog.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

FClassMembers::FClassMembers(UClass& InClass, FCompilerResultsLog& InLog)
	: Class(InClass)
	, Log(InLog)
{
	for (TFieldIterator<FProperty> Inherited(Class.GetSuperClass()); Inherited; ++Inherited)
	{
		PropertyNames.Add(Inherited->GetFName());
	}
}

FProperty* FClassMembers::Add(FProperty* Property)
{
	if (PropertyNames.Contains(Property->GetFName()))
	{
		Log.Error(TEXT("The name of the variable @@ is taken by another one, here or in a parent class"), Property->GetName());
		delete Property;
		return nullptr;
	}
	PropertyNames.Add(Property->GetFName());
	Properties.Add(Property);
	return Property;
}

UFunction* FClassMembers::AddFunction(FName Name, EFunctionFlags Flags)
{
	if (Name.IsNone() || StaticFindObjectFast(UObject::StaticClass(), &Class, Name))
	{
		Log.Error(TEXT("The name of the function @@ is taken"), Name.ToString());
		return nullptr;
	}
	UFunction* const Function = NewObject<UFunction>(&Class, Name, RF_Public);
	Function->FunctionFlags = Flags;
	// Straight to the end of the list, for there may be many.
	UField*& End = LastFunction ? LastFunction->Next : Class.Children;
	End = Function;
	LastFunction = Function;
	return Function;
}

void FClassMembers::Finish()
{
	SetProperties(Class, Properties);
}

void SetProperties(UStruct& Struct, const TArray<FProperty*>& Properties)
{
	FField** End = &Struct.ChildProperties;
	for (FProperty* const Property : Properties)
	{
		*End = Property;
		End = &Property->Next;
	}
	Struct.StaticLink();
}
