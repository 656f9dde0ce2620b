#include "JsonUtils.h"

#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

namespace
{
template <typename RootType>
FString SerializeCondensed(const RootType& Root)
{
	FString Text;
	FJsonSerializer::Serialize(Root, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	return Text;
}
}

TSharedPtr<FJsonObject> ParseJsonObject(const FString& Text)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(Text), Object);
	return Object;
}

FString ToCondensedJson(const TSharedRef<FJsonObject>& Object)
{
	return SerializeCondensed(Object);
}

FString ToCondensedJson(const TArray<TSharedPtr<FJsonValue>>& Array)
{
	return SerializeCondensed(Array);
}

FString ToJsonString(const FString& Text)
{
	// A document's root is an object or an array: the string is written as the one item of an array, without the brackets.
	const FString Document = ToCondensedJson({ MakeShared<FJsonValueString>(Text) });
	return Document.Mid(1, Document.Len() - 2);
}

void SetArrayUnlessEmpty(FJsonObject& Object, const TCHAR* Key, const TArray<TSharedPtr<FJsonValue>>& Values)
{
	if (!Values.IsEmpty())
	{
		Object.SetArrayField(Key, Values);
	}
}
