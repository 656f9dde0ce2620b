// Any bytes as a JSON document: they are read or refused with a place, and what is read is written and read again as the same.

#include "Serialization/JsonSerializer.h"

#include <cmath>
#include <cstdlib>

namespace
{
void Check(bool bHolds)
{
	if (!bHolds)
	{
		std::abort();
	}
}

TSharedPtr<FJsonValue> Read(const FString& Text)
{
	TSharedPtr<FJsonValue> Root;
	const auto Reader = TJsonReaderFactory<>::Create(Text);
	const bool bRead = FJsonSerializer::Deserialize(Reader, Root);
	Check(bRead == Root.IsValid() && bRead == Reader->GetErrorMessage().IsEmpty());
	return Root;
}

template <typename PolicyType>
FString Write(const FJsonValue& Root)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, PolicyType>::Create(&Text);
	Check(Root.Type == EJson::Array ? FJsonSerializer::Serialize(Root.AsArray(), Writer)
									: FJsonSerializer::Serialize(Root.AsObject().ToSharedRef(), Writer));
	return Text;
}

bool AreSame(const FJsonValue& A, const FJsonValue& B);

bool AreSame(const TArray<TSharedPtr<FJsonValue>>& A, const TArray<TSharedPtr<FJsonValue>>& B)
{
	return std::equal(A.begin(), A.end(), B.begin(), B.end(), [](const auto& ItemA, const auto& ItemB) { return AreSame(*ItemA, *ItemB); });
}

bool AreSame(const FJsonObject& A, const FJsonObject& B)
{
	bool bSame = A.Values.Num() == B.Values.Num();
	auto Other = B.Values.begin();
	for (const auto& Field : A.Values)
	{
		bSame = bSame && Field.Key.Equals(Other->Key) && AreSame(*Field.Value, *Other->Value);
		++Other;
	}
	return bSame;
}

bool AreSame(const FJsonValue& A, const FJsonValue& B)
{
	if (A.Type == EJson::Number && !std::isfinite(A.AsNumber()))
	{
		return B.IsNull(); // JSON has no form for it
	}
	if (A.Type != B.Type)
	{
		return false;
	}
	switch (A.Type)
	{
	case EJson::Null: return true;
	case EJson::Boolean: return A.AsBool() == B.AsBool();
	case EJson::Number: return A.AsNumber() == B.AsNumber() && std::signbit(A.AsNumber()) == std::signbit(B.AsNumber());
	case EJson::String: return A.AsString().Equals(B.AsString());
	case EJson::Array: return AreSame(A.AsArray(), B.AsArray());
	default: return AreSame(*A.AsObject(), *B.AsObject());
	}
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, SIZE_T Size)
{
	const TSharedPtr<FJsonValue> Root = Read(FUtf8::Decode({ reinterpret_cast<const char*>(Data), Size }));
	if (Root.IsValid())
	{
		for (const FString& Text : { Write<TCondensedJsonPrintPolicy<TCHAR>>(*Root), Write<TPrettyJsonPrintPolicy<TCHAR>>(*Root) })
		{
			const TSharedPtr<FJsonValue> Again = Read(Text);
			Check(Again.IsValid() && AreSame(*Root, *Again));
		}
	}
	return 0;
}
