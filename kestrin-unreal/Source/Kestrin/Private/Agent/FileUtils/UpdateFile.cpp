#include "Agent/FileUtils.h"

#include "Agent/FileUtils/FileRewrite.h"
#include "HAL/PlatformFileManager.h"
#include "Misc/FileHelper.h"

namespace
{
const TCHAR* const CrLf = TEXT("\r\n");
const TCHAR* const Lf = TEXT("\n");
const TCHAR* const Tab = TEXT("\t");
const TCHAR* const FourSpaces = TEXT("    ");

FString ReplaceAll(const FString& Text, const TCHAR* From, const TCHAR* To)
{
	return Text.Replace(From, To, ESearchCase::CaseSensitive);
}

bool Contains(const FString& Text, const TCHAR* Part)
{
	return Text.Contains(Part, ESearchCase::CaseSensitive);
}

FString Normalize(const FString& Text)
{
	return ReplaceAll(ReplaceAll(Text, CrLf, Lf), Tab, FourSpaces);
}

/** Replaces OldString in Text, as it is or, when it is not there, in the first form that is. @return how often */
int32 ReplaceTolerantly(FString& Text, const FString& OldString, const FString& NewString)
{
	const auto Replace = [&Text, &NewString](const FString& Form)
	{ return Text.ReplaceInline(*Form, *NewString, ESearchCase::CaseSensitive); };
	if (Contains(Text, *OldString))
	{
		return Replace(OldString);
	}
	const bool bHasCrLf = Contains(Text, CrLf);
	const bool bHasTabs = Contains(Text, Tab);
	const auto WithLineEnds = [bHasCrLf](const FString& Form)
	{ return bHasCrLf ? ReplaceAll(Form, Lf, CrLf) : ReplaceAll(Form, CrLf, Lf); };
	const auto WithIndents = [bHasTabs](const FString& Form)
	{ return bHasTabs ? ReplaceAll(Form, FourSpaces, Tab) : ReplaceAll(Form, Tab, FourSpaces); };
	int32 Replacements = Replace(WithIndents(WithLineEnds(OldString)));
	if (Replacements == 0)
	{
		Replacements = Replace(WithLineEnds(OldString));
	}
	if (Replacements == 0)
	{
		Replacements = Replace(WithIndents(OldString));
	}
	return Replacements;
}
}

FString FFileUtils::UpdateFile(
	const FString& FilePath, const FString& OldString, const FString& NewString, FString& OutOldContent, FString& OutNewContent)
{
	const FString FullPath = GetFullPath(FilePath);
	if (!FPlatformFileManager::Get().GetPlatformFile().FileExists(*FullPath))
	{
		return FString::Printf(TEXT("Error: File does not exist: %s"), *FilePath);
	}
	if (!FFileHelper::LoadFileToString(OutOldContent, *FullPath))
	{
		return FString::Printf(TEXT("Error: Failed to read file: %s"), *FilePath);
	}
	if (!Contains(Normalize(OutOldContent), *Normalize(OldString)))
	{
		return FString::Printf(TEXT("Error: String not found in file: %s"), *FilePath);
	}
	CheckoutFileFromSourceControl(FullPath);
	OutNewContent = OutOldContent;
	const int32 Replacements = ReplaceTolerantly(OutNewContent, OldString, NewString);
	if (Replacements == 0)
	{
		return FString::Printf(TEXT("Error: No replacements made in file: %s"), *FilePath);
	}
	const EFileRewrite Rewrite = RewriteFile(
		FullPath, [&] { return FFileHelper::SaveStringToFile(OutNewContent, *FullPath, FFileHelper::EEncodingOptions::ForceUTF8); });
	switch (Rewrite)
	{
	case EFileRewrite::DeleteFailed: return FString::Printf(TEXT("Error: Failed to delete existing file: %s"), *FilePath);
	case EFileRewrite::WriteFailed: return FString::Printf(TEXT("Error: Failed to write new content to file: %s"), *FilePath);
	default: return FString::Printf(TEXT("Successfully updated file: %s with %d replacements"), *FilePath, Replacements);
	}
}
