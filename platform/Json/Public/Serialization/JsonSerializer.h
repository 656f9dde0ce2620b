#pragma once

#include "Dom/JsonObject.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

/** Documents to and from objects in memory. */
class JSON_API FJsonSerializer
{
public:
	/** False, with Out null, when the text is no document whose root is an object. */
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue);

	template <typename WriterType>
	static bool Serialize(const TSharedRef<FJsonObject>& Object, const TSharedRef<WriterType>& Writer)
	{
		WriteObject(*Object, Writer.Get());
		return Writer->Close();
	}
	template <typename WriterType>
	static bool Serialize(const TArray<TSharedPtr<FJsonValue>>& Array, const TSharedRef<WriterType>& Writer)
	{
		Writer->WriteArrayStart();
		WriteItems(Array, Writer.Get());
		Writer->WriteArrayEnd();
		return Writer->Close();
	}

private:
	template <typename WriterType>
	static void WriteObject(const FJsonObject& Object, WriterType& Writer)
	{
		Writer.WriteObjectStart();
		WriteFields(Object, Writer);
		Writer.WriteObjectEnd();
	}

	template <typename WriterType>
	static void WriteFields(const FJsonObject& Object, WriterType& Writer)
	{
		WriteAll(
			Object.Values, Writer, [](const auto& Field) { return Field.Value.Get(); },
			[&Writer](const auto& Field) { WriteValue(Field.Value.Get(), Writer, Field.Key); });
	}

	template <typename WriterType>
	static void WriteItems(const TArray<TSharedPtr<FJsonValue>>& Array, WriterType& Writer)
	{
		WriteAll(
			Array, Writer, [](const TSharedPtr<FJsonValue>& Item) { return Item.Get(); },
			[&Writer](const TSharedPtr<FJsonValue>& Item) { WriteValue(Item.Get(), Writer); });
	}

	/**
	 * A large document is bound by memory: the value after the one being written is fetched ahead, and once a sample of many elements
	 * is written, room is made for the rest, so that the text is not copied again and again as it grows.
	 */
	template <typename WriterType, typename ElementsType, typename GetType, typename WriteType>
	static void WriteAll(const ElementsType& Elements, WriterType& Writer, GetType Get, WriteType Write)
	{
		constexpr int32 Sample = 64;
		const int64 Begin = Writer.GetLength();
		int32 Written = 0;
		auto Next = Elements.begin();
		for (const auto& Element : Elements)
		{
			if (++Next != Elements.end())
			{
				__builtin_prefetch(Get(*Next));
			}
			Write(Element);
			if (++Written == Sample)
			{
				Writer.Reserve((Writer.GetLength() - Begin) * (Elements.Num() - Sample) / Sample);
			}
		}
	}

	/** Identifier: one text inside an object, none inside an array. A null pointer is written as null. */
	template <typename WriterType, typename... IdentifierType>
	static void WriteValue(const FJsonValue* Value, WriterType& Writer, const IdentifierType&... Identifier)
	{
		switch (Value ? Value->Type : EJson::Null)
		{
		case EJson::String: Writer.WriteValue(Identifier..., static_cast<const FJsonValueString*>(Value)->Get()); break;
		case EJson::Number: Writer.WriteValue(Identifier..., Value->AsNumber()); break;
		case EJson::Boolean: Writer.WriteValue(Identifier..., Value->AsBool()); break;
		case EJson::Array:
			Writer.WriteArrayStart(Identifier...);
			WriteItems(static_cast<const FJsonValueArray*>(Value)->Get(), Writer);
			Writer.WriteArrayEnd();
			break;
		case EJson::Object:
			Writer.WriteObjectStart(Identifier...);
			WriteFields(*static_cast<const FJsonValueObject*>(Value)->Get(), Writer);
			Writer.WriteObjectEnd();
			break;
		default: Writer.WriteNull(Identifier...); break;
		}
	}
};
