#include "Agent/FindUtils/FileSearch.h"

#include "HAL/PlatformFileManager.h"
#include "HAL/UnrealMemory.h"
#include "Math/NumericLimits.h"
#include "Misc/FileHelper.h"
#include "Templates/AlignmentTemplates.h"

namespace
{
constexpr int64 PieceSize = 256 * 1024;
/** Systems copy file contents half as fast to an address that is not at the start of a page. */
constexpr int64 PageSize = 4096;

bool IsAscii(TCHAR Char)
{
	return Char < 0x80;
}

/** All letters beyond ASCII that are letters of ASCII in lower case. None of them is in Latin-1. */
const FString& GetLettersLikeAscii()
{
	static const FString Letters = []
	{
		FString Found;
		for (uint32 Code = 0x100; Code <= 0xFFFF; ++Code)
		{
			if (IsAscii(FChar::ToLower(static_cast<TCHAR>(Code))))
			{
				Found.AppendChar(static_cast<TCHAR>(Code));
			}
		}
		return Found;
	}();
	return Letters;
}

TArray<uint8> ToUtf8(const FString& Text)
{
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	return TArray<uint8>(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
}

bool IsIn(const FString& Part, const FString& Whole)
{
	return Whole.Find(Part, ESearchCase::IgnoreCase, ESearchDir::FromStart) != INDEX_NONE;
}

bool IsUtf16(const uint8* Data, int64 Count)
{
	return Count >= 2 && ((Data[0] == 0xFF && Data[1] == 0xFE) || (Data[0] == 0xFE && Data[1] == 0xFF));
}
}

FFileSearch::FFileSearch(const FString& InText)
	: Text(InText)
{
	for (const TCHAR Char : Text)
	{
		if (!IsAscii(Char))
		{
			return;
		}
	}
	PrepareBytes();
}

void FFileSearch::PrepareBytes()
{
	Bytes = MakeUnique<FByteSearch>(ToUtf8(Text), true);
	Overlap = Bytes->GetLength() - 1;
	for (const TCHAR Letter : GetLettersLikeAscii())
	{
		if (IsIn(FString::Chr(Letter), Text))
		{
			OtherLetters.Emplace(ToUtf8(FString::Chr(Letter)), false);
			Overlap = FMath::Max(Overlap, OtherLetters.Last().GetLength() - 1);
		}
	}
	Buffer.SetNumUninitialized(static_cast<int32>(Overlap + PageSize + PieceSize));
	Piece = Align(Buffer.GetData() + Overlap, PageSize);
}

bool FFileSearch::Finds(const FString& File)
{
	return Bytes.IsValid() ? FindsInBytes(File) : FindsInText(File);
}

bool FFileSearch::FindsInText(const FString& File) const
{
	FString Content;
	return FFileHelper::LoadFileToString(Content, *File) && (IsIn(Text, File) || IsIn(Text, Content));
}

bool FFileSearch::HasOtherLetter(const uint8* Data, int64 Count) const
{
	return !OtherLetters.IsEmpty() && FByteSearch::HasNonAscii(Data, Count) &&
		OtherLetters.ContainsByPredicate([=](const FByteSearch& Letter) { return Letter.IsIn(Data, Count); });
}

bool FFileSearch::FindsInBytes(const FString& File)
{
	const TUniquePtr<IFileHandle> Handle(FPlatformFileManager::Get().GetPlatformFile().OpenRead(*File));
	const int64 Size = Handle ? Handle->Size() : -1;
	if (Size < 0 || Size > MAX_int32) // no text holds more
	{
		return false;
	}
	int64 Kept = 0;
	for (int64 Done = 0;;)
	{
		const int64 Count = FMath::Min(Size - Done, PieceSize);
		if (!Handle->Read(Piece, Count))
		{
			return false;
		}
		if (Done == 0 && IsUtf16(Piece, Count))
		{
			return FindsInText(File);
		}
		if ((Done == 0 && IsIn(Text, File)) || Bytes->IsIn(Piece - Kept, Kept + Count))
		{
			return true;
		}
		if (HasOtherLetter(Piece - Kept, Kept + Count))
		{
			return FindsInText(File);
		}
		Done += Count;
		if (Done == Size)
		{
			return false;
		}
		const uint8* const End = Piece + Count;
		Kept = FMath::Min<int64>(Kept + Count, Overlap);
		FMemory::Memmove(Piece - Kept, End - Kept, static_cast<SIZE_T>(Kept));
	}
}
