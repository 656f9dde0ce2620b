#include "Misc/App.h"
#include "Misc/EngineVersion.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

namespace
{
TEST(EngineVersion, IsCutBehindAComponent)
{
	const struct
	{
		EVersionComponent Last;
		const TCHAR* Text;
	} Cases[] = {
		{ EVersionComponent::Major, u"5" },
		{ EVersionComponent::Minor, u"5.5" },
		{ EVersionComponent::Patch, u"5.5.4" },
		{ EVersionComponent::Changelist, u"5.5.4-0" },
		{ EVersionComponent::Branch, u"5.5.4-0+++UE5+Release-5.5" },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(FEngineVersion::Current().ToString(Case.Last), FString(Case.Text));
	}
	EXPECT_EQ(FApp::GetBranchName(), FString(TEXT("++UE5+Release-5.5")));
}
}
