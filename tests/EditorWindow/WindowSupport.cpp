#include "WindowSupport.h"

#include "SlateQtHost/SlateView.h"

#include <gtest/gtest.h>

namespace
{
class FQtEnvironment final : public testing::Environment
{
public:
	void SetUp() override
	{
		::setenv("QT_QPA_PLATFORM", "offscreen", 1);
		Application = MakeUnique<FQtApplication>();
	}
	void TearDown() override { Application.Reset(); }

private:
	TUniquePtr<FQtApplication> Application;
};

[[maybe_unused]] testing::Environment* const Environment = testing::AddGlobalTestEnvironment(new FQtEnvironment);
}
