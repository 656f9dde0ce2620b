// What is right as the default of a pin.

#include "EdGraphSchema_K2.h"

#include "Engine/Blueprint.h"
#include "K2Node_CallFunction.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_VariableSet.h"
#include "Parameters.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UnrealType.h"

#include <cerrno>
#include <limits>

namespace
{
using FSchema = UEdGraphSchema_K2;

/** The whole text but for blanks around it, by strtod's grammar without words and hexadecimals. */
bool IsNumber(const FString& Text, bool bFraction)
{
	const FString Trimmed = Text.TrimStartAndEnd();
	const TCHAR* Place = *Trimmed;
	const auto SkipDigits = [&Place]
	{
		const TCHAR* const Begin = Place;
		while (FChar::IsDigit(*Place))
		{
			++Place;
		}
		return Place != Begin;
	};
	const auto SkipSign = [&Place] { Place += *Place == '-' || *Place == '+'; };
	SkipSign();
	bool bDigits = SkipDigits();
	if (bFraction && *Place == '.')
	{
		++Place;
		bDigits |= SkipDigits();
	}
	if (bFraction && bDigits && (*Place == 'e' || *Place == 'E'))
	{
		++Place;
		SkipSign();
		bDigits = SkipDigits();
	}
	Place += bFraction && bDigits && (*Place == 'f' || *Place == 'F');
	return bDigits && *Place == 0;
}

bool IsReal(const FString& Text)
{
	return IsNumber(Text, true);
}

/** Whether the text is a whole number that an IntType can be. */
template <typename IntType>
bool IsInteger(const FString& Text)
{
	const FString Trimmed = Text.TrimStartAndEnd();
	if (!IsNumber(Trimmed, false))
	{
		return false;
	}
	errno = 0;
	const int64 Value = FCString::Atoi64(*Trimmed);
	return errno != ERANGE && Value >= std::numeric_limits<IntType>::min() && Value <= std::numeric_limits<IntType>::max();
}

bool IsBool(const FString& Text)
{
	for (const TCHAR* const Word : { TEXT("true"), TEXT("false"), TEXT("1"), TEXT("0"), TEXT("yes"), TEXT("no") })
	{
		if (Text == Word)
		{
			return true;
		}
	}
	return false;
}

/** "1, 2.5, 3": what a user types for a vector or rotator. */
bool IsNumberTriple(const FString& Text)
{
	TArray<FString> Parts;
	Text.ParseIntoArray(Parts, TEXT(","), false);
	return Parts.Num() == 3 && IsReal(Parts[0]) && IsReal(Parts[1]) && IsReal(Parts[2]);
}

bool IsOfStruct(const FString& Text, UScriptStruct* Struct)
{
	if ((Struct == TBaseStructure<FVector>::Get() || Struct == TBaseStructure<FRotator>::Get()) && IsNumberTriple(Text))
	{
		return true;
	}
	FStructProperty Property(FFieldVariant(), TEXT("Default"));
	Property.Struct = Struct;
	Property.Link();
	void* const Value = ::operator new(static_cast<SIZE_T>(Property.GetSize()), static_cast<std::align_val_t>(Property.GetMinAlignment()));
	Property.InitializeValue(Value);
	const TCHAR* const End = Property.ImportText_Direct(*Text, Value, nullptr, PPF_None, nullptr);
	Property.DestroyValue(Value);
	::operator delete(Value, static_cast<std::align_val_t>(Property.GetMinAlignment()));
	return End && FString(End).TrimStart().IsEmpty();
}

/** What is wrong with an enumerator, or else a struct's text; empty when nothing is. */
FString CheckTextOfType(const UObject* Type, const FString& Text)
{
	const UEnum* const Enum = Cast<UEnum>(Type);
	if (Enum && Enum->GetIndexByNameString(Text) == INDEX_NONE)
	{
		return FString::Printf(TEXT("'%s' is not a valid enumerant of '%s'"), *Text, *Enum->GetName());
	}
	const UScriptStruct* const Struct = Cast<UScriptStruct>(Type);
	return Struct && !IsOfStruct(Text, const_cast<UScriptStruct*>(Struct))
		? FString::Printf(TEXT("Expected a value of %s, not '%s'"), *Struct->GetName(), *Text)
		: FString();
}

/** What is wrong with a text as a default of the type; empty when nothing is. */
FString CheckText(const FEdGraphPinType& Type, FName PinName, const FString& Text)
{
	struct FRow
	{
		FName Category;
		const TCHAR* What;
		bool (*IsRight)(const FString& Text);
	};
	static const FRow Rows[] = {
		{ FSchema::PC_Boolean, TEXT("'true' or 'false' for a boolean property"), IsBool },
		{ FSchema::PC_Byte, TEXT("a valid number for a byte property"), IsInteger<uint8> },
		{ FSchema::PC_Int, TEXT("a valid number for an integer property"), IsInteger<int32> },
		{ FSchema::PC_Int64, TEXT("a valid number for an integer64 property"), IsInteger<int64> },
		{ FSchema::PC_Real, TEXT("a valid number for a float property"), IsReal },
	};
	const FName Category = Type.PinCategory;
	if (Category == FSchema::PC_Object || Category == FSchema::PC_Class || Category == FSchema::PC_Interface)
	{
		return FString::Printf(TEXT("String NewDefaultValue '%s' specified on object pin '%s'"), *Text, *PinName.ToString());
	}
	const UObject* const Object = Type.PinSubCategoryObject.Get();
	if (Object && (Category == FSchema::PC_Byte || Category == FSchema::PC_Struct))
	{
		return CheckTextOfType(Object, Text);
	}
	for (const FRow& Row : Rows)
	{
		if (Row.Category == Category && !Row.IsRight(Text))
		{
			return FString::Printf(TEXT("Expected %s, not '%s'"), Row.What, *Text);
		}
	}
	return FString();
}

FString CheckObject(const FEdGraphPinType& Type, FName PinName, const UObject* Object)
{
	const UClass* const Class = Cast<UClass>(Type.PinSubCategoryObject.Get());
	const UClass* const ObjectAsClass = Cast<UClass>(Object);
	const bool bOfObject = Type.PinCategory == FSchema::PC_Object && (!Class || Object->IsA(Class));
	const bool bOfClass = Type.PinCategory == FSchema::PC_Class && ObjectAsClass && (!Class || ObjectAsClass->IsChildOf(Class));
	return bOfObject || bOfClass ? FString()
								 : FString::Printf(TEXT("%s isn't a %s (specified on pin %s)"), *Object->GetPathName(),
									   *FSchema::TypeToText(Type).ToString(), *PinName.ToString());
}

/** Whether the function's reference refers to an empty value when nothing is linked to the pin. */
bool IsAutoCreateRefTerm(const UEdGraphPin* Pin)
{
	const UK2Node_CallFunction* const Call = Cast<UK2Node_CallFunction>(Pin->GetOwningNode());
	const UFunction* const Function = Call ? Call->GetTargetFunction() : nullptr;
	return Function && NamesParameter(Function, TEXT("AutoCreateRefTerm"), Pin->PinName);
}

/** A container or a value by reference is nothing that could be typed in. */
FString CheckNeedOfLink(const UEdGraphPin* Pin)
{
	// A function's output that nobody sets is empty, and a variable that is set to nothing is, too.
	const UEdGraphNode* const Node = Pin->GetOwningNode();
	if (Node->IsA<UK2Node_FunctionResult>() || Node->IsA<UK2Node_VariableSet>() || IsAutoCreateRefTerm(Pin))
	{
		return FString();
	}
	const FString Name = Pin->GetDisplayName().ToString();
	switch (Pin->PinType.ContainerType)
	{
	case EPinContainerType::None: break;
	case EPinContainerType::Array:
		return FString::Printf(
			TEXT("Array inputs (like '%s') must have an input wired into them (try connecting a MakeArray node)."), *Name);
	case EPinContainerType::Set: return FString::Printf(TEXT("Set inputs (like '%s') must have an input wired into them."), *Name);
	case EPinContainerType::Map: return FString::Printf(TEXT("Map inputs (like '%s') must have an input wired into them."), *Name);
	}
	return !Pin->PinType.bIsReference ? FString()
									  : FString::Printf(TEXT("'%s' in action '%s' must have an input wired into it (\"by ref\" params "
															 "expect a valid input to operate on)."),
											*Name, *Pin->GetOwningNode()->GetNodeTitle(ENodeTitleType::ListView).ToString());
}
}

FString UEdGraphSchema_K2::IsPinDefaultValid(
	const UEdGraphPin* Pin, const FString& NewDefaultValue, UObject* NewDefaultObject, const FText& InNewDefaultText) const
{
	const UBlueprint* const Blueprint = Pin->GetOwningNode()->GetTypedOuter<UBlueprint>();
	// An interface's functions have no code.
	FString Message = Blueprint && Blueprint->BlueprintType == BPTYPE_Interface ? FString() : CheckNeedOfLink(Pin);
	if (Message.IsEmpty())
	{
		DefaultValueSimpleValidation(Pin->PinType, Pin->PinName, NewDefaultValue, NewDefaultObject, InNewDefaultText, &Message);
	}
	return Message;
}

FString UEdGraphSchema_K2::IsCurrentPinDefaultValid(const UEdGraphPin* Pin) const
{
	return IsPinDefaultValid(Pin, Pin->DefaultValue, Pin->DefaultObject, Pin->DefaultTextValue);
}

bool UEdGraphSchema_K2::DefaultValueSimpleValidation(const FEdGraphPinType& PinType, const FName PinName, const FString& NewDefaultValue,
	UObject* NewDefaultObject, const FText& InText, FString* OutMsg) const
{
	FString Message;
	if (PinType.IsContainer())
	{
		Message = NewDefaultValue.IsEmpty() ? FString() : TEXT("Literal values are not allowed for containers");
	}
	else if (!NewDefaultValue.IsEmpty())
	{
		Message = CheckText(PinType, PinName, NewDefaultValue);
	}
	else if (NewDefaultObject)
	{
		Message = CheckObject(PinType, PinName, NewDefaultObject);
	}
	else if (!InText.IsEmpty() && PinType.PinCategory != PC_Text)
	{
		Message = FString::Printf(TEXT("Text specified on pin '%s', which is none of texts"), *PinName.ToString());
	}
	if (OutMsg)
	{
		*OutMsg = Message;
	}
	return Message.IsEmpty();
}
