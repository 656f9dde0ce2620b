#include "PyNames.h"

namespace
{
const FName ScriptName(TEXT("ScriptName"));
const FName InternalUseOnly(TEXT("BlueprintInternalUseOnly"));

constexpr const TCHAR* Keywords[] = { TEXT("and"), TEXT("as"), TEXT("assert"), TEXT("async"), TEXT("await"), TEXT("break"), TEXT("class"),
	TEXT("continue"), TEXT("def"), TEXT("del"), TEXT("elif"), TEXT("else"), TEXT("except"), TEXT("finally"), TEXT("for"), TEXT("from"),
	TEXT("global"), TEXT("if"), TEXT("import"), TEXT("in"), TEXT("is"), TEXT("lambda"), TEXT("nonlocal"), TEXT("not"), TEXT("or"),
	TEXT("pass"), TEXT("raise"), TEXT("return"), TEXT("try"), TEXT("while"), TEXT("with"), TEXT("yield") };

bool IsUpper(TCHAR Char)
{
	return Char >= 'A' && Char <= 'Z';
}

bool IsLower(TCHAR Char)
{
	return Char >= 'a' && Char <= 'z';
}

/** Whether a word begins at a capital: behind a small letter, or before one as in "HTTPServer". */
bool BeginsWord(const FString& Name, int32 Index)
{
	if (Index == 0 || !IsUpper(Name[Index]) || Name[Index - 1] == '_')
	{
		return false;
	}
	return IsLower(Name[Index - 1]) || (Name.IsValidIndex(Index + 1) && IsLower(Name[Index + 1]));
}

TCHAR ChangeCase(TCHAR Char, bool bToUpper)
{
	constexpr TCHAR Distance = 'a' - 'A';
	if (bToUpper)
	{
		return IsLower(Char) ? static_cast<TCHAR>(Char - Distance) : Char;
	}
	return IsUpper(Char) ? static_cast<TCHAR>(Char + Distance) : Char;
}

template <typename FieldType>
FString GetOwnName(const FieldType* Field, const TCHAR* Prefix)
{
	// Old names follow behind a ";".
	const FString Given = Field->GetMetaData(ScriptName);
	FString First;
	if (!Given.IsEmpty())
	{
		return Given.Split(TEXT(";"), &First, nullptr) ? First : Given;
	}
	FString Name = Field->GetName();
	Name.RemoveFromStart(Prefix, ESearchCase::CaseSensitive);
	return Name;
}

UFunction* FindOwnFunction(const UClass* Class, const FString& Name)
{
	for (TFieldIterator<UFunction> Function(Class); Function; ++Function)
	{
		if (IsScriptFunction(*Function) && (GetPythonName(*Function).Equals(Name) || Function->GetName().Equals(Name)))
		{
			return *Function;
		}
	}
	return nullptr;
}
}

FString MakePythonName(const FString& Name, bool bConstant)
{
	FString Result;
	for (int32 Index = 0; Index < Name.Len(); ++Index)
	{
		if (BeginsWord(Name, Index))
		{
			Result += TEXT("_");
		}
		Result.AppendChar(ChangeCase(Name[Index], bConstant));
	}
	for (const TCHAR* const Keyword : Keywords)
	{
		if (Result.Equals(Keyword))
		{
			return Result + TEXT("_");
		}
	}
	return Result;
}

FString GetPythonName(const FProperty* Property)
{
	const FString Name = Property->GetName();
	const bool bPrefix = Property->IsA<FBoolProperty>() && Name.Len() > 1 && Name[0] == 'b' && IsUpper(Name[1]);
	return MakePythonName(bPrefix ? Name.RightChop(1) : GetOwnName(Property, TEXT("")));
}

FString GetPythonName(const UFunction* Function)
{
	return MakePythonName(GetOwnName(Function, TEXT("K2_")));
}

FString GetPythonTypeName(const UField* Type)
{
	FString Name = GetOwnName(Type, TEXT(""));
	const bool bPrefix = Type->IsA(UEnum::StaticClass()) && Name.Len() > 1 && Name[0] == 'E' && IsUpper(Name[1]);
	return bPrefix ? Name.RightChop(1) : Name;
}

FProperty* FindPropertyByPythonName(const UStruct* Type, const FString& Name)
{
	for (TFieldIterator<FProperty> Property(Type); Property; ++Property)
	{
		if (Property->GetName().Equals(Name) || GetPythonName(*Property).Equals(Name))
		{
			return *Property;
		}
	}
	return nullptr;
}

UFunction* FindFunctionByPythonName(const UClass* Class, const FString& Name)
{
	UFunction* Found = FindOwnFunction(Class, Name);
	for (const UClass* Each = Class; Each && !Found; Each = Each->GetSuperClass())
	{
		for (const FImplementedInterface& Interface : Each->Interfaces)
		{
			Found = Found ? Found : FindOwnFunction(Interface.Class, Name);
		}
	}
	return Found;
}

bool IsScriptFunction(const UFunction* Function)
{
	return Function->HasAnyFunctionFlags(FUNC_BlueprintCallable) && !Function->HasMetaData(InternalUseOnly);
}
