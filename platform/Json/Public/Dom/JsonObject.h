#pragma once

#include "Dom/JsonValue.h"

/**
 * Fields by name. Get... of a field that is missing or of another type logs (LogJson) and gives an empty value;
 * TryGet... answers false for it and leaves the out argument alone.
 */
class JSON_API FJsonObject
{
public:
	TMap<FString, TSharedPtr<FJsonValue>> Values;

	bool HasField(const FString& Name) const { return Values.Contains(Name); }
	template <EJson JsonType>
	bool HasTypedField(const FString& Name) const
	{
		const TSharedPtr<FJsonValue> Field = TryGetField(Name);
		return Field.IsValid() && Field->Type == JsonType;
	}
	/** Null when there is none. */
	TSharedPtr<FJsonValue> TryGetField(const FString& Name) const;

	/** Replaces a field of that name, whatever its case: it keeps its place and takes the new spelling. */
	void SetField(const FString& Name, const TSharedPtr<FJsonValue>& Value);
	void RemoveField(const FString& Name) { Values.Remove(Name); }
	void SetStringField(const FString& Name, const FString& Value);
	void SetNumberField(const FString& Name, double Value);
	void SetBoolField(const FString& Name, bool bValue);
	void SetArrayField(const FString& Name, const TArray<TSharedPtr<FJsonValue>>& Value);
	void SetObjectField(const FString& Name, const TSharedPtr<FJsonObject>& Value);

	FString GetStringField(const FString& Name) const;
	double GetNumberField(const FString& Name) const;
	int32 GetIntegerField(const FString& Name) const;
	bool GetBoolField(const FString& Name) const;
	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(const FString& Name) const;
	TSharedPtr<FJsonObject> GetObjectField(const FString& Name) const;

	bool TryGetStringField(const FString& Name, FString& Out) const;
	bool TryGetNumberField(const FString& Name, double& Out) const;
	bool TryGetNumberField(const FString& Name, int32& Out) const;
	bool TryGetBoolField(const FString& Name, bool& Out) const;
	bool TryGetArrayField(const FString& Name, const TArray<TSharedPtr<FJsonValue>>*& Out) const;
	bool TryGetObjectField(const FString& Name, const TSharedPtr<FJsonObject>*& Out) const;

private:
	/** The field, or a null value after a line in the log. */
	TSharedPtr<FJsonValue> GetField(const FString& Name) const;
};
