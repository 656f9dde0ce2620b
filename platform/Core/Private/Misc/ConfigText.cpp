#include "Misc/ConfigText.h"

#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/ConfigLine.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <string_view>

namespace
{
std::u16string Widen(std::string_view Bytes)
{
	std::u16string Text;
	Text.reserve(Bytes.size());
	for (const char Byte : Bytes)
	{
		Text += static_cast<uint8>(Byte);
	}
	return Text;
}

bool IsSame(const std::u16string& A, const std::u16string& B)
{
	return FString::EqualsIgnoringCase(A, B);
}

std::u16string DecodeUtf16(std::string_view Bytes, bool bBig)
{
	std::u16string Text;
	Text.reserve(Bytes.size() / 2);
	for (SIZE_T Index = 0; Index + 1 < Bytes.size(); Index += 2)
	{
		const auto First = static_cast<uint8>(Bytes[Index]);
		const auto Second = static_cast<uint8>(Bytes[Index + 1]);
		Text += static_cast<TCHAR>(bBig ? First << 8 | Second : Second << 8 | First);
	}
	return Text;
}
}

bool FConfigText::Load(const FString& Filename)
{
	TArray<uint8> Bytes;
	if (IFileManager::Get().FileExists(*Filename) && !FFileHelper::LoadFileToArray(Bytes, *Filename))
	{
		return false;
	}
	SetBytes(Bytes);
	return true;
}

void FConfigText::SetBytes(const TArray<uint8>& InBytes)
{
	std::string_view Bytes(reinterpret_cast<const char*>(InBytes.GetData()), static_cast<SIZE_T>(InBytes.Num()));
	const bool bLittle = Bytes.starts_with("\xFF\xFE");
	const bool bBig = Bytes.starts_with("\xFE\xFF");
	const bool bUtf8Mark = Bytes.starts_with("\xEF\xBB\xBF");
	bByteOrderMark = bLittle || bBig || bUtf8Mark;
	if (bLittle || bBig)
	{
		Units = bBig ? EUnits::Utf16Big : EUnits::Utf16Little;
		OddByte = Bytes.size() % 2 ? Bytes.substr(Bytes.size() - 1) : std::string_view();
		SplitLines(DecodeUtf16(Bytes.substr(2), bBig));
		return;
	}
	Bytes.remove_prefix(bUtf8Mark ? 3 : 0);
	FString Ignored;
	Units = FUtf8::TryDecode(Bytes, Ignored) || bUtf8Mark ? EUnits::Utf8 : EUnits::Latin1;
	SplitLines(Widen(Bytes));
}

void FConfigText::SplitLines(std::u16string_view Text)
{
	const SIZE_T FirstEnd = Text.find_first_of(u"\r\n");
	if (FirstEnd != std::u16string_view::npos)
	{
		LineEnd = Text.substr(FirstEnd, Text.substr(FirstEnd).starts_with(u"\r\n") ? 2 : 1);
	}
	std::u16string Section;
	while (!Text.empty())
	{
		FLine& Line = Lines.AddDefaulted_GetRef();
		Line.Text = TakeConfigLine(Text);
		const FConfigLine Parsed = ParseConfigLine(Line.Text);
		Line.bHeader = Parsed.Kind == EConfigLine::Section;
		if (Line.bHeader)
		{
			Section = Parsed.Name;
		}
		Line.Section = Section;
		Line.Key = Parsed.Kind == EConfigLine::Value ? Parsed.Name : std::u16string_view();
	}
}

/** A Latin-1 file that gets characters which Latin-1 has not becomes UTF-8. */
void FConfigText::MakeRoomFor(const FString& Text)
{
	if (Units != EUnits::Latin1 || std::all_of(Text.begin(), Text.end(), [](TCHAR Char) { return Char <= 0xFF; }))
	{
		return;
	}
	for (FLine& Line : Lines)
	{
		for (std::u16string* const Part : { &Line.Text, &Line.Section, &Line.Key })
		{
			*Part = Widen(FUtf8::Encode(*Part));
		}
	}
	Units = EUnits::Utf8;
}

std::u16string FConfigText::ToUnits(const FString& Text) const
{
	return Units == EUnits::Utf8 ? Widen(FUtf8::Encode(Text)) : Text.Native();
}

void FConfigText::SetKey(const FString& InSection, const FString& InKey, const TArray<FString>& NewLines)
{
	MakeRoomFor(InSection);
	for (const FString& Line : NewLines)
	{
		MakeRoomFor(Line);
	}
	const std::u16string Section = ToUnits(InSection);
	const std::u16string Key = ToUnits(InKey);
	const auto IsOld = [&](const FLine& Line) { return IsSame(Line.Key, Key) && IsSame(Line.Section, Section); };

	bChanged = true;
	int32 Place = Lines.IndexOfByPredicate(IsOld);
	Lines.RemoveAll(IsOld);
	if (Place == INDEX_NONE)
	{
		Place = FindSectionEnd(Section);
	}
	if (Place == INDEX_NONE)
	{
		if (!Lines.IsEmpty())
		{
			InsertLine(Lines.Num(), u"", Lines.Last().Section, u"");
		}
		InsertLine(Lines.Num(), u"[" + Section + u"]", Section, u"");
		Place = Lines.Num();
	}
	for (const FString& Line : NewLines)
	{
		InsertLine(Place++, ToUnits(Line), Section, Key);
	}
}

int32 FConfigText::FindSectionEnd(const std::u16string& Section) const
{
	int32 End = Lines.IndexOfByPredicate([&](const FLine& Line) { return Line.bHeader && IsSame(Line.Section, Section); });
	if (End == INDEX_NONE)
	{
		return INDEX_NONE;
	}
	for (int32 Index = ++End; Index < Lines.Num() && !Lines[Index].bHeader; ++Index)
	{
		if (Lines[Index].Text.find_first_not_of(u" \t\r\n") != std::u16string::npos)
		{
			End = Index + 1;
		}
	}
	return End;
}

void FConfigText::InsertLine(int32 Index, const std::u16string& Text, const std::u16string& Section, const std::u16string& Key)
{
	if (Index > 0 && Lines[Index - 1].Text.find_last_of(u"\r\n") == std::u16string::npos)
	{
		Lines[Index - 1].Text += LineEnd;
	}
	Lines.Insert({ Text + LineEnd, Section, Key, Text.starts_with(u'[') }, Index);
}

TArray<uint8> FConfigText::GetBytes() const
{
	static constexpr std::string_view Marks[] = { "\xEF\xBB\xBF", "", "\xFF\xFE", "\xFE\xFF" };
	std::string Bytes(bByteOrderMark ? Marks[static_cast<SIZE_T>(Units)] : "");
	for (const FLine& Line : Lines)
	{
		for (const TCHAR Unit : Line.Text)
		{
			const auto Low = static_cast<char>(Unit);
			const auto High = static_cast<char>(Unit >> 8);
			switch (Units)
			{
			case EUnits::Utf16Little: Bytes += { Low, High }; break;
			case EUnits::Utf16Big: Bytes += { High, Low }; break;
			default: Bytes += Low;
			}
		}
	}
	Bytes += OddByte;
	return TArray<uint8>(reinterpret_cast<const uint8*>(Bytes.data()), static_cast<int32>(Bytes.size()));
}

bool FConfigText::Save(const FString& Filename) const
{
	if (!bChanged)
	{
		return true;
	}
	IFileManager& Files = IFileManager::Get();
	if (FPlatformFileManager::Get().GetPlatformFile().IsReadOnly(*Filename))
	{
		return false;
	}
	const FString Beside = FPaths::CreateTempFilename(*FPaths::GetPath(Filename), *FPaths::GetCleanFilename(Filename), TEXT(".tmp"));
	// A copy of the old file has its permissions; a config file may hold a key.
	const bool bCopied = !Files.FileExists(*Filename) || Files.Copy(*Beside, *Filename) == COPY_OK;
	if (bCopied && FFileHelper::SaveArrayToFile(GetBytes(), *Beside) && Files.Move(*Filename, *Beside))
	{
		return true;
	}
	Files.Delete(*Beside, false, false, true);
	return false;
}
