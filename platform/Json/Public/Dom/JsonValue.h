#pragma once

// Json: values in memory, a reader and a writer.
//
// Objects keep the order of insertion and find keys ignoring case. Conversions follow the engine's rules: numbers and booleans
// read as text, wholly numeric text reads as a number, any text reads as a boolean. Left out: streaming, struct conversion, schemas.

#include "CoreMinimal.h"

class FJsonObject;

enum class EJson
{
	None,
	Null,
	String,
	Number,
	Boolean,
	Array,
	Object
};

/** One value, which never changes. The As... operations log an error (LogJson) and give an empty value where TryGet... answers false. */
class JSON_API FJsonValue
{
public:
	virtual ~FJsonValue() = default;

	double AsNumber() const;
	FString AsString() const;
	bool AsBool() const;
	const TArray<TSharedPtr<FJsonValue>>& AsArray() const;
	/** Never null. */
	TSharedPtr<FJsonObject> AsObject() const;

	virtual bool TryGetNumber(double& OutNumber) const { return false; }
	/** Cuts the fraction off; false when the value does not fit. */
	bool TryGetNumber(int32& OutNumber) const;
	bool TryGetNumber(int64& OutNumber) const;
	virtual bool TryGetString(FString& OutString) const { return false; }
	virtual bool TryGetBool(bool& OutBool) const { return false; }
	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const { return false; }
	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const { return false; }
	bool IsNull() const { return Type == EJson::Null; }

	const EJson Type;

protected:
	explicit FJsonValue(EJson InType)
		: Type(InType)
	{
	}
	FJsonValue(const FJsonValue&) = delete;
	FJsonValue& operator=(const FJsonValue&) = delete;

private:
	void LogWrongType(const TCHAR* Wanted) const;
};

class JSON_API FJsonValueString : public FJsonValue
{
public:
	explicit FJsonValueString(FString InString)
		: FJsonValue(EJson::String)
		, Value(MoveTemp(InString))
	{
	}
	using FJsonValue::TryGetNumber;
	bool TryGetString(FString& OutString) const override;
	bool TryGetNumber(double& OutNumber) const override;
	bool TryGetBool(bool& OutBool) const override;
	/** The text without a copy. */
	const FString& Get() const { return Value; }

private:
	FString Value;
};

class JSON_API FJsonValueNumber : public FJsonValue
{
public:
	explicit FJsonValueNumber(double InNumber)
		: FJsonValue(EJson::Number)
		, Value(InNumber)
	{
	}
	using FJsonValue::TryGetNumber;
	bool TryGetNumber(double& OutNumber) const override;
	bool TryGetString(FString& OutString) const override;
	bool TryGetBool(bool& OutBool) const override;

private:
	double Value;
};

class JSON_API FJsonValueBoolean : public FJsonValue
{
public:
	explicit FJsonValueBoolean(bool bInValue)
		: FJsonValue(EJson::Boolean)
		, bValue(bInValue)
	{
	}
	using FJsonValue::TryGetNumber;
	bool TryGetBool(bool& OutBool) const override;
	bool TryGetNumber(double& OutNumber) const override;
	bool TryGetString(FString& OutString) const override;

private:
	bool bValue;
};

class JSON_API FJsonValueArray : public FJsonValue
{
public:
	explicit FJsonValueArray(TArray<TSharedPtr<FJsonValue>> InArray)
		: FJsonValue(EJson::Array)
		, Value(MoveTemp(InArray))
	{
	}
	bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const override;
	const TArray<TSharedPtr<FJsonValue>>& Get() const { return Value; }

private:
	TArray<TSharedPtr<FJsonValue>> Value;
};

class JSON_API FJsonValueObject : public FJsonValue
{
public:
	explicit FJsonValueObject(TSharedPtr<FJsonObject> InObject)
		: FJsonValue(EJson::Object)
		, Value(MoveTemp(InObject))
	{
	}
	bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const override;
	const TSharedPtr<FJsonObject>& Get() const { return Value; }

private:
	TSharedPtr<FJsonObject> Value;
};

class JSON_API FJsonValueNull : public FJsonValue
{
public:
	FJsonValueNull()
		: FJsonValue(EJson::Null)
	{
	}
};

JSON_API DECLARE_LOG_CATEGORY_EXTERN(LogJson, Log, All);
