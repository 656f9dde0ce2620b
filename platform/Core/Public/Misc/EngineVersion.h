#pragma once

#include "Containers/UnrealString.h"

enum class EVersionComponent : uint8
{
	Major,
	Minor,
	Patch,
	Changelist,
	Branch
};

/** A version as "5.5.4-0+++UE5+Release-5.5": major, minor and patch, changelist, branch. */
class CORE_API FEngineVersion
{
public:
	/** The engine that the platform stands in for. */
	static const FEngineVersion& Current();

	uint16 GetMajor() const { return 5; }
	uint16 GetMinor() const { return 5; }
	uint16 GetPatch() const { return 4; }
	uint32 GetChangelist() const { return 0; }
	const FString& GetBranch() const { return Branch; }
	/** The version up to and including one component. */
	FString ToString(EVersionComponent LastComponent = EVersionComponent::Branch) const;

private:
	const FString Branch = TEXT("++UE5+Release-5.5");
};
