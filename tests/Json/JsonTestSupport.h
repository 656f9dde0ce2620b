#pragma once

// What the tests of this folder share.

#include "Serialization/JsonSerializer.h"
#include "TestSupport.h"

#include <string>

/** The root, or null, with the error's text in OutError. */
inline TSharedPtr<FJsonValue> ReadJson(FString Text, FString* OutError = nullptr)
{
	const auto Reader = TJsonReaderFactory<>::Create(MoveTemp(Text));
	TSharedPtr<FJsonValue> Root;
	FJsonSerializer::Deserialize(Reader, Root);
	if (OutError)
	{
		*OutError = Reader->GetErrorMessage();
	}
	return Root;
}

/** The root must be an object or an array. */
template <typename PolicyType>
FString WriteJson(const FJsonValue& Root)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, PolicyType>::Create(&Text);
	const bool bWritten = Root.Type == EJson::Array ? FJsonSerializer::Serialize(Root.AsArray(), Writer)
													: FJsonSerializer::Serialize(Root.AsObject().ToSharedRef(), Writer);
	return bWritten ? Text : FString();
}
inline FString WriteCondensed(const FJsonValue& Root)
{
	return WriteJson<TCondensedJsonPrintPolicy<TCHAR>>(Root);
}
inline FString WritePretty(const FJsonValue& Root)
{
	return WriteJson<TPrettyJsonPrintPolicy<TCHAR>>(Root);
}
