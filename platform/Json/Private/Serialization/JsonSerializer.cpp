#include "Serialization/JsonSerializer.h"

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject)
{
	const TSharedPtr<FJsonValue> Root = Reader->Read();
	const TSharedPtr<FJsonObject>* Object = nullptr;
	OutObject = Root.IsValid() && Root->TryGetObject(Object) ? *Object : nullptr;
	return OutObject.IsValid();
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray)
{
	OutArray.Reset();
	const TSharedPtr<FJsonValue> Root = Reader->Read();
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (!Root.IsValid() || !Root->TryGetArray(Array))
	{
		return false;
	}
	OutArray = *Array;
	return true;
}

bool FJsonSerializer::Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue)
{
	OutValue = Reader->Read();
	return OutValue.IsValid();
}
