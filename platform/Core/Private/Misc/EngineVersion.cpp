#include "Misc/EngineVersion.h"

#include "Misc/App.h"

const FEngineVersion& FEngineVersion::Current()
{
	static const FEngineVersion Version;
	return Version;
}

FString FEngineVersion::ToString(EVersionComponent LastComponent) const
{
	const FString Components[] = {
		LexToString(GetMajor()),
		FString::Printf(TEXT(".%d"), GetMinor()),
		FString::Printf(TEXT(".%d"), GetPatch()),
		FString::Printf(TEXT("-%u"), GetChangelist()),
		TEXT("+") + GetBranch(),
	};
	FString Result;
	for (int32 Index = 0; Index <= static_cast<int32>(LastComponent); ++Index)
	{
		Result += Components[Index];
	}
	return Result;
}

FString FApp::GetBranchName()
{
	return FEngineVersion::Current().GetBranch();
}
