#include "DefaultValues.h"

#include "Kismet2/CompilerResultsLog.h"
#include "UObject/UnrealType.h"

namespace
{
/** A value of a property, on its own. */
class FValue
{
public:
	explicit FValue(const FProperty& InProperty)
		: Property(InProperty)
		, Memory(::operator new(static_cast<SIZE_T>(Property.GetSize()), Alignment()))
	{
		Property.InitializeValue(Memory);
	}
	~FValue()
	{
		Property.DestroyValue(Memory);
		::operator delete(Memory, Alignment());
	}
	UE_NONCOPYABLE(FValue)

	void* Get() { return Memory; }

private:
	std::align_val_t Alignment() const { return static_cast<std::align_val_t>(Property.GetMinAlignment()); }

	const FProperty& Property;
	void* const Memory;
};

/** "1, 2, 3" is a short form of some structs, by the names of their members. */
FString ExpandShortForm(const FProperty& Property, const FString& Text)
{
	static const TMap<FName, TArray<const TCHAR*>> Members = {
		{ FName(TEXT("Vector")), { TEXT("X"), TEXT("Y"), TEXT("Z") } },
		{ FName(TEXT("Vector2D")), { TEXT("X"), TEXT("Y") } },
		{ FName(TEXT("Rotator")), { TEXT("Pitch"), TEXT("Yaw"), TEXT("Roll") } },
		{ FName(TEXT("LinearColor")), { TEXT("R"), TEXT("G"), TEXT("B"), TEXT("A") } },
	};
	const auto* const Struct = CastField<FStructProperty>(&Property);
	const TArray<const TCHAR*>* const Names = Struct && !Text.Contains(TEXT("(")) ? Members.Find(Struct->Struct->GetFName()) : nullptr;
	TArray<FString> Parts;
	if (!Names || Text.ParseIntoArray(Parts, TEXT(","), false) != Names->Num())
	{
		return Text;
	}
	TArray<FString> Named;
	for (int32 Index = 0; Index < Parts.Num(); ++Index)
	{
		Named.Add(FString((*Names)[Index]) + TEXT("=") + Parts[Index].TrimStartAndEnd());
	}
	return TEXT("(") + FString::Join(Named, TEXT(",")) + TEXT(")");
}

/** @return whether all of the text was a value of the type; otherwise the object keeps what it has */
bool Import(const FProperty& Property, UObject& Object, const FString& Text)
{
	FValue Value(Property);
	const FString Expanded = ExpandShortForm(Property, Text);
	if (!Expanded.IsEmpty())
	{
		const TCHAR* const End = Property.ImportText_Direct(*Expanded, Value.Get(), &Object, PPF_None, nullptr);
		if (!End || !FString(End).TrimStartAndEnd().IsEmpty())
		{
			return false;
		}
	}
	Property.CopyCompleteValue(Property.ContainerPtrToValuePtr<void>(&Object), Value.Get());
	return true;
}

bool HadVariable(const UClass* Previous, const FProperty& Property)
{
	const FProperty* const Old = Previous ? Previous->FindPropertyByName(Property.GetFName()) : nullptr;
	return Old && Old->GetTypeTag() == Property.GetTypeTag();
}
}

void SeedDefaultValues(UBlueprint& Blueprint, const UClass* Previous, FCompilerResultsLog& Log)
{
	UObject* const Defaults = Blueprint.GeneratedClass->GetDefaultObject();
	TMap<FName, const FProperty*> Properties;
	for (TFieldIterator<FProperty> Own(Blueprint.GeneratedClass, EFieldIterationFlags::None); Own; ++Own)
	{
		Properties.Add(Own->GetFName(), *Own);
	}
	for (FBPVariableDescription& Variable : Blueprint.NewVariables)
	{
		const FProperty* const Property = Properties.FindRef(Variable.VarName);
		const bool bSame = Variable.DefaultValue.Equals(Variable.CompiledDefaultValue);
		if (!Property || (bSame && (Variable.DefaultValue.IsEmpty() || HadVariable(Previous, *Property))))
		{
			continue;
		}
		if (Import(*Property, *Defaults, Variable.DefaultValue))
		{
			Variable.CompiledDefaultValue = Variable.DefaultValue;
		}
		else
		{
			Log.Error(TEXT("The default of the variable @@ is none of its type @@: @@"), Variable.VarName.ToString(),
				Property->GetCPPType(), Variable.DefaultValue.Left(80));
		}
	}
}
