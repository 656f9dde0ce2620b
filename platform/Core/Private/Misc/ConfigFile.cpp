#include "Misc/ConfigCacheIni.h"

#include "Misc/ConfigLine.h"
#include "Misc/ConfigText.h"
#include "Misc/FileHelper.h"

DEFINE_LOG_CATEGORY(LogConfig);

namespace
{
void ApplyLine(TArray<FString>& Values, TCHAR Operation, FString Value)
{
	switch (Operation)
	{
	case '!': Values.Empty(); break;
	case '-': Values.RemoveAll([&Value](const FString& Each) { return Each.Equals(Value); }); break;
	case '+':
		if (!Values.ContainsByPredicate([&Value](const FString& Each) { return Each.Equals(Value); }))
		{
			Values.Add(MoveTemp(Value));
		}
		break;
	case '.': Values.Add(MoveTemp(Value)); break;
	default: Values = { Value };
	}
}

/** A key's values as lines. A value that is there twice needs the operation that does not look. */
TArray<FString> MakeLines(const FString& Key, const TArray<FString>& Values, bool bArray)
{
	if (!bArray)
	{
		return { Key + TEXT("=") + QuoteConfigValue(Values[0]) };
	}
	TArray<FString> Lines{ TEXT("!") + Key + TEXT("=ClearArray") };
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		const auto IsSame = [&](const FString& Each) { return Each.Equals(Values[Index]); };
		const bool bRepeated = Values.IndexOfByPredicate(IsSame) < Index;
		Lines.Add((bRepeated ? TEXT(".") : TEXT("+")) + Key + TEXT("=") + QuoteConfigValue(Values[Index]));
	}
	return Lines;
}
}

void FConfigFile::Read(const FString& Filename)
{
	Sections.Empty();
	Combine(Filename);
}

bool FConfigFile::Combine(const FString& Filename)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *Filename))
	{
		return false;
	}
	CombineFromBuffer(Text, Filename);
	return true;
}

void FConfigFile::CombineFromBuffer(const FString& Buffer, const FString& Filename)
{
	std::u16string_view Rest = Buffer.View();
	FSection* Section = nullptr;
	for (int32 Number = 1; !Rest.empty(); ++Number)
	{
		const FConfigLine Line = ParseConfigLine(TakeConfigLine(Rest));
		if (Line.Kind == EConfigLine::Section)
		{
			Section = &Sections.FindOrAdd(FString(Line.Name));
		}
		else if (Line.Kind == EConfigLine::Bad || (Line.Kind == EConfigLine::Value && !Section))
		{
			const TCHAR* const Reason = Line.Kind == EConfigLine::Bad ? TEXT("is no section, key or comment") : TEXT("is in no section");
			UE_LOG(LogConfig, Warning, TEXT("%s(%d): the line %s and is passed over"), *Filename, Number, Reason);
		}
		else if (Line.Kind == EConfigLine::Value)
		{
			ApplyLine(Section->FindOrAdd(FString(Line.Name)).Values, Line.Operation, UnquoteConfigValue(Line.Value));
		}
	}
}

bool FConfigFile::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const
{
	const TArray<FString>* const Values = FindValues(Section, Key);
	if (!Values || Values->IsEmpty())
	{
		return false;
	}
	Value = Values->Last();
	return true;
}

int32 FConfigFile::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const
{
	const TArray<FString>* const Values = FindValues(Section, Key);
	Value = Values ? *Values : TArray<FString>();
	return Value.Num();
}

const TArray<FString>* FConfigFile::FindValues(const FString& Section, const FString& Key) const
{
	const FSection* const FoundSection = Sections.Find(Section);
	const FKey* const Found = FoundSection ? FoundSection->Find(Key) : nullptr;
	return Found ? &Found->Values : nullptr;
}

void FConfigFile::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value)
{
	Set(Section, Key, { FString(Value) }, false);
}

void FConfigFile::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value)
{
	Set(Section, Key, Value, true);
}

void FConfigFile::Set(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, bool bArray)
{
	const TArray<FString>* const Old = FindValues(Section, Key);
	const auto IsSame = [](const FString& A, const FString& B) { return A.Equals(B); };
	if (Old && std::equal(Old->begin(), Old->end(), Values.begin(), Values.end(), IsSame))
	{
		return;
	}
	FKey& Entry = Sections.FindOrAdd(Section).FindOrAdd(Key);
	Entry.Values = Values;
	Entry.bArray = bArray;
	Entry.bChanged = true;
}

bool FConfigFile::Write(const FString& Filename)
{
	FConfigText Text;
	if (!Text.Load(Filename))
	{
		UE_LOG(LogConfig, Warning, TEXT("%s can't be read, so it is not changed"), *Filename);
		return false;
	}
	for (const TPair<FString, FSection>& Section : Sections)
	{
		for (const TPair<FString, FKey>& Key : Section.Value)
		{
			if (Key.Value.bChanged)
			{
				Text.SetKey(Section.Key, Key.Key, MakeLines(Key.Key, Key.Value.Values, Key.Value.bArray));
			}
		}
	}
	if (!Text.Save(Filename))
	{
		UE_LOG(LogConfig, Warning, TEXT("%s can't be written"), *Filename);
		return false;
	}
	for (TPair<FString, FSection>& Section : Sections)
	{
		for (TPair<FString, FKey>& Key : Section.Value)
		{
			Key.Value.bChanged = false;
		}
	}
	return true;
}
