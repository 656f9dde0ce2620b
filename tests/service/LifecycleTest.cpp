#include "ServiceProcess.h"

#include <future>

#include <gtest/gtest.h>

namespace
{
using namespace std::chrono_literals;

TEST(Lifecycle, BadOptionsEndWithAMessage)
{
	struct
	{
		std::vector<std::string> Arguments;
		const char* Message;
	} const Cases[] = {
		{ { "--prot", "1" }, "unknown option '--prot'" },
		{ { "--port" }, "--port: a value is missing" },
		{ { "--port", "65536" }, "--port: expected a number" },
		{ { "--port", "80x" }, "--port: expected a number" },
		{ { "--scenario", "/nowhere/s.json" }, "/nowhere/s.json: cannot be read" },
		{ { "--cert-dir", "/dev/null/x" }, "cannot make the directory /dev/null/x" },
		{ { "--log", "/nowhere/log" }, "cannot write /nowhere/log" },
	};
	for (const auto& Case : Cases)
	{
		const Ending Result = RunToEnd(Case.Arguments);
		EXPECT_EQ(Result.Code, 2) << Case.Message;
		EXPECT_NE(Result.Error.find(Case.Message), std::string::npos) << Result.Error;
	}
	EXPECT_EQ(RunToEnd({ "--help" }).Code, 0);
}

TEST(Lifecycle, APortInUseIsSaid)
{
	const ServiceProcess Service;
	const TemporaryDirectory Files;
	const Ending Result = RunToEnd({ "--port", std::to_string(Service.GetPort()), "--cert-dir", (Files / "").string() });
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Error.find("is the port in use?"), std::string::npos) << Result.Error;
}

TEST(Lifecycle, ASignalEndsItAlsoWhileClientsHang)
{
	ServiceProcess Service(Json::parse(R"([ { "command_fault": { "delay": 600 } } ])"));
	auto Idle = Service.Connect();
	ASSERT_TRUE(Idle->Get("/status"));
	auto Held =
		std::async(std::launch::async, [&] { return static_cast<bool>(Service.Connect()->Post("/command", "{}", "application/json")); });
	while (Held.wait_for(50ms) == std::future_status::timeout && !Service.Connect()->Get("/status"))
	{
	}
	const auto Start = std::chrono::steady_clock::now();
	EXPECT_EQ(Service.Stop(), 0);
	EXPECT_LT(std::chrono::steady_clock::now() - Start, 5s);
}

TEST(Lifecycle, TheCertificateOutlivesARestartAndDamageIsRepaired)
{
	const TemporaryDirectory Files;
	const auto Use = [&]
	{
		const ServiceProcess Service(Files, {});
		EXPECT_TRUE(Service.Connect()->Get("/status"));
		return ReadText(Service.GetCertificate());
	};
	const std::string First = Use();
	const std::string Own = ReadText(Files / "service.pem");
	EXPECT_NE(Own.find("PRIVATE KEY"), std::string::npos);
	EXPECT_EQ(First.find("PRIVATE KEY"), std::string::npos);
	EXPECT_EQ(std::filesystem::status(Files / "service.pem").permissions(), std::filesystem::perms(0600));

	EXPECT_EQ(Use(), First);
	std::filesystem::remove(Files / "cacert.pem");
	EXPECT_EQ(Use(), First);

	for (const std::string& Damaged : { std::string(), std::string("nonsense"), First, Own.substr(0, Own.size() - 60) })
	{
		WriteText(Files / "service.pem", Damaged);
		const std::string Renewed = Use();
		EXPECT_NE(Renewed, First);
		EXPECT_EQ(Use(), Renewed);
	}
}
}
