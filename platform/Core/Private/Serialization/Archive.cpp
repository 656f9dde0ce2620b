#include "Serialization/Archive.h"

#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

FArchive& FArchive::operator<<(FName& Value)
{
	FString Text = IsLoading() ? FString() : Value.ToString();
	*this << Text;
	if (IsLoading())
	{
		Value = FName(Text);
	}
	return *this;
}

FArchive& FArchive::operator<<(UObject*& Value)
{
	if (IsLoading())
	{
		Value = nullptr;
	}
	return *this;
}

FArchive& SerializeCount(FArchive& Ar, int32& Count)
{
	Ar << Count;
	if (Ar.IsLoading() && (Count < 0 || Count > Ar.TotalSize() - Ar.Tell()))
	{
		Ar.SetError();
		Count = 0;
	}
	return Ar;
}

namespace
{
void SaveString(FArchive& Ar, std::u16string_view Text)
{
	int32 Length = static_cast<int32>(Text.size());
	if (std::any_of(Text.begin(), Text.end(), [](TCHAR Char) { return Char > 0x7F; }))
	{
		int32 Wide = -Length;
		Ar << Wide;
		Ar.Serialize(const_cast<TCHAR*>(Text.data()), static_cast<int64>(Text.size() * sizeof(TCHAR)));
		return;
	}
	std::string Narrow(Text.begin(), Text.end());
	Ar << Length;
	Ar.Serialize(Narrow.data(), Length);
}

FString LoadString(FArchive& Ar)
{
	int32 Length = 0;
	Ar << Length;
	const bool bWide = Length < 0;
	const int64 Count = bWide ? -static_cast<int64>(Length) : Length;
	const int64 Bytes = Count * (bWide ? 2 : 1);
	if (Bytes > Ar.TotalSize() - Ar.Tell())
	{
		Ar.SetError();
		return FString();
	}
	FString Result;
	std::u16string& Text = Result.Native();
	Text.resize(static_cast<SIZE_T>(Count));
	if (bWide)
	{
		Ar.Serialize(Text.data(), Bytes);
		return Result;
	}
	// Into the second half of the room, and widened from there: each character is read before its place is written.
	auto* const Narrow = reinterpret_cast<uint8*>(Text.data()) + Count;
	Ar.Serialize(Narrow, Bytes);
	std::copy(Narrow, Narrow + Count, Text.begin());
	return Result;
}
}

FArchive& operator<<(FArchive& Ar, FString& Value)
{
	if (Ar.IsLoading())
	{
		Value = LoadString(Ar);
	}
	else if (!Ar.IsObjectReferenceCollector())
	{
		SaveString(Ar, std::u16string_view(*Value, static_cast<SIZE_T>(Value.Len())));
	}
	return Ar;
}

FArchive& operator<<(FArchive& Ar, FText& Value)
{
	enum class EKind : uint8
	{
		Plain,
		Invariant,
		Localized
	};
	FString Namespace;
	FString Key;
	FString Source = Ar.IsLoading() ? FString() : Value.ToString();
	EKind Kind = EKind::Plain;
	if (!Ar.IsLoading())
	{
		Kind = Value.GetNamespaceAndKey(Namespace, Key) ? EKind::Localized : Value.IsCultureInvariant() ? EKind::Invariant : EKind::Plain;
	}
	Ar << Kind << Source;
	if (Kind == EKind::Localized)
	{
		Ar << Namespace << Key;
	}
	if (Ar.IsLoading())
	{
		Value = Kind == EKind::Localized ? FText::Localized(*Namespace, *Key, *Source)
			: Kind == EKind::Invariant   ? FText::AsCultureInvariant(Source)
										 : FText::FromString(Source);
	}
	return Ar;
}

FArchive& operator<<(FArchive& Ar, FDateTime& Value)
{
	int64 Ticks = Value.GetTicks();
	Ar << Ticks;
	Value = FDateTime(Ticks);
	return Ar;
}

FArchive& operator<<(FArchive& Ar, FTimespan& Value)
{
	int64 Ticks = Value.GetTicks();
	Ar << Ticks;
	Value = FTimespan(Ticks);
	return Ar;
}

void FMemoryWriter::Serialize(void* Data, int64 Length)
{
	const int64 End = Offset + Length;
	if (End > Bytes.Num())
	{
		Bytes.SetNum(static_cast<int32>(End));
	}
	if (Length > 0)
	{
		std::memcpy(Bytes.GetData() + Offset, Data, static_cast<SIZE_T>(Length));
	}
	Offset = End;
}

void FMemoryReader::Serialize(void* Data, int64 Length)
{
	if (Length > Size - Offset)
	{
		SetError();
		return;
	}
	// Nearly all that is read are numbers, whose copies need no call.
	switch (Length)
	{
	case 1: std::memcpy(Data, Bytes + Offset, 1); break;
	case 4: std::memcpy(Data, Bytes + Offset, 4); break;
	case 8: std::memcpy(Data, Bytes + Offset, 8); break;
	default:
		if (Length > 0)
		{
			std::memcpy(Data, Bytes + Offset, static_cast<SIZE_T>(Length));
		}
	}
	Offset += Length;
}

void FMemoryReader::Seek(int64 Position)
{
	if (Position < 0 || Position > Size)
	{
		SetError();
		return;
	}
	Offset = Position;
}
