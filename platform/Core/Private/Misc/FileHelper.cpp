#include "Misc/FileHelper.h"

#include "HAL/PlatformFileManager.h"
#include "Misc/Paths.h"
#include "Misc/TextEncoding.h"

#include <limits>

namespace
{
IPlatformFile& Files()
{
	return FPlatformFileManager::Get().GetPlatformFile();
}

/** Reads a whole file into a buffer that it sizes once. */
template <typename ResizeType>
bool LoadBytes(const TCHAR* Filename, const ResizeType& Resize)
{
	const TUniquePtr<IFileHandle> File = Files().OpenRead(Filename);
	const int64 Size = File ? File->Size() : -1;
	if (Size < 0 || Size > std::numeric_limits<int32>::max())
	{
		return false;
	}
	return File->Read(Resize(static_cast<int32>(Size)), Size);
}

bool SaveBytes(const uint8* Bytes, SIZE_T Count, const TCHAR* Filename, uint32 WriteFlags)
{
	if (!Files().CreateDirectoryTree(*FPaths::GetPath(Filename)))
	{
		return false;
	}
	if ((WriteFlags & FILEWRITE_EvenIfReadOnly) && Files().IsReadOnly(Filename) && !Files().SetReadOnly(Filename, false))
	{
		return false;
	}
	const TUniquePtr<IFileHandle> File = Files().OpenWrite(Filename, (WriteFlags & FILEWRITE_Append) != 0);
	return File && File->Write(Bytes, static_cast<int64>(Count));
}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename)
{
	return LoadBytes(Filename,
		[&Result](int32 Size)
		{
		Result.Reset();
		Result.SetNumUninitialized(Size);
		return Result.GetData();
	});
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename)
{
	std::string Bytes;
	const bool bLoaded = LoadBytes(Filename,
		[&Bytes](int32 Size)
		{
		Bytes.resize(static_cast<SIZE_T>(Size));
		return reinterpret_cast<uint8*>(Bytes.data());
	});
	if (bLoaded)
	{
		Result = DecodeText(Bytes);
	}
	return bLoaded;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	Result.Empty();
	FString Text;
	if (!LoadFileToString(Text, Filename))
	{
		return false;
	}
	Text.ParseIntoArrayLines(Result, false);
	return true;
}

bool FFileHelper::SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename, IFileManager*, uint32 WriteFlags)
{
	return SaveBytes(Array.GetData(), static_cast<SIZE_T>(Array.Num()), Filename, WriteFlags);
}

bool FFileHelper::SaveStringToFile(
	const FString& String, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager*, uint32 WriteFlags)
{
	const bool bAtStart = !(WriteFlags & FILEWRITE_Append) || Files().FileSize(Filename) <= 0;
	const std::string Bytes = EncodeText(String, EncodingOptions, bAtStart && !String.IsEmpty());
	return SaveBytes(reinterpret_cast<const uint8*>(Bytes.data()), Bytes.size(), Filename, WriteFlags);
}

bool FFileHelper::SaveStringArrayToFile(
	const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions, IFileManager* FileManager, uint32 WriteFlags)
{
	SIZE_T Length = 0;
	for (const FString& Line : Lines)
	{
		Length += Line.View().size() + 1;
	}
	std::u16string Text;
	Text.reserve(Length);
	for (const FString& Line : Lines)
	{
		Text.append(Line.View()).append(LINE_TERMINATOR);
	}
	return SaveStringToFile(FString(std::move(Text)), Filename, EncodingOptions, FileManager, WriteFlags);
}
