#include "Dom/JsonValue.h"

#include "Dom/JsonObject.h"

#include <cmath>
#include <limits>

DEFINE_LOG_CATEGORY(LogJson);

namespace
{
const TCHAR* const TypeNames[] = { TEXT("None"), TEXT("Null"), TEXT("String"), TEXT("Number"), TEXT("Boolean"), TEXT("Array"),
	TEXT("Object") };

template <typename IntegerType>
bool ToInteger(const FJsonValue& Value, IntegerType& OutNumber)
{
	double Number;
	if (!Value.TryGetNumber(Number))
	{
		return false;
	}
	// The upper limit of 64 bits is no double; the next one above it is.
	const double Low = static_cast<double>(std::numeric_limits<IntegerType>::min());
	const double Beyond = -Low;
	if (!(std::trunc(Number) >= Low && std::trunc(Number) < Beyond))
	{
		return false;
	}
	OutNumber = static_cast<IntegerType>(Number);
	return true;
}
}

double FJsonValue::AsNumber() const
{
	double Number = 0.0;
	if (!TryGetNumber(Number))
	{
		LogWrongType(TEXT("Number"));
	}
	return Number;
}

FString FJsonValue::AsString() const
{
	FString String;
	if (!TryGetString(String))
	{
		LogWrongType(TEXT("String"));
	}
	return String;
}

bool FJsonValue::AsBool() const
{
	bool bValue = false;
	if (!TryGetBool(bValue))
	{
		LogWrongType(TEXT("Boolean"));
	}
	return bValue;
}

const TArray<TSharedPtr<FJsonValue>>& FJsonValue::AsArray() const
{
	static const TArray<TSharedPtr<FJsonValue>> Empty;
	const TArray<TSharedPtr<FJsonValue>>* Array = &Empty;
	if (!TryGetArray(Array))
	{
		LogWrongType(TEXT("Array"));
	}
	return *Array;
}

TSharedPtr<FJsonObject> FJsonValue::AsObject() const
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!TryGetObject(Object) || !Object->IsValid())
	{
		LogWrongType(TEXT("Object"));
		return MakeShared<FJsonObject>();
	}
	return *Object;
}

bool FJsonValue::TryGetNumber(int32& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

bool FJsonValue::TryGetNumber(int64& OutNumber) const
{
	return ToInteger(*this, OutNumber);
}

void FJsonValue::LogWrongType(const TCHAR* Wanted) const
{
	UE_LOG(LogJson, Error, TEXT("Json Value of type '%s' used as a '%s'."), TypeNames[static_cast<int32>(Type)], Wanted);
}

bool FJsonValueString::TryGetString(FString& OutString) const
{
	OutString = Value;
	return true;
}

bool FJsonValueString::TryGetNumber(double& OutNumber) const
{
	if (!Value.IsNumeric())
	{
		return false;
	}
	OutNumber = FCString::Atod(*Value);
	return true;
}

bool FJsonValueString::TryGetBool(bool& OutBool) const
{
	OutBool = Value.ToBool();
	return true;
}

bool FJsonValueNumber::TryGetNumber(double& OutNumber) const
{
	OutNumber = Value;
	return true;
}

bool FJsonValueNumber::TryGetString(FString& OutString) const
{
	OutString = FString::SanitizeFloat(Value, 0);
	return true;
}

bool FJsonValueNumber::TryGetBool(bool& OutBool) const
{
	OutBool = Value != 0.0;
	return true;
}

bool FJsonValueBoolean::TryGetBool(bool& OutBool) const
{
	OutBool = bValue;
	return true;
}

bool FJsonValueBoolean::TryGetNumber(double& OutNumber) const
{
	OutNumber = bValue ? 1.0 : 0.0;
	return true;
}

bool FJsonValueBoolean::TryGetString(FString& OutString) const
{
	OutString = bValue ? TEXT("true") : TEXT("false");
	return true;
}

bool FJsonValueArray::TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const
{
	OutArray = &Value;
	return true;
}

bool FJsonValueObject::TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const
{
	OutObject = &Value;
	return true;
}
