#include "ServiceProcess.h"

#include <gtest/gtest.h>

namespace
{
/** Runs the demonstration's scenario as the plug-in would when every call works, and notes the tools that it asks for. */
class DemoTalk
{
public:
	explicit DemoTalk(const ServiceProcess& Service)
		: Mine(Service)
	{
	}

	/** Sends the body; "+" in front when the answer's calls run without the user's word. */
	std::string Send(const Json& Body)
	{
		const std::string Id = Mine.Post(Body);
		Json Status;
		do
		{
			Status = Mine.Poll(Id);
		} while (Status["status"] == "PROCESSING");
		const Json& Response = Status["response"];
		Calls.clear();
		std::string Tools = Response.value("auto_continue", false) ? "+" : "";
		for (const Json& Block : Response["response"])
		{
			if (Block["type"] == "tool_use")
			{
				Calls.push_back(Block);
				Tools += " " + Block["name"].get<std::string>();
			}
		}
		return Tools;
	}

	/** Sends a result for each call of the last answer. */
	std::string SendResults(const std::string& Content, const char* Flag = "is_error", bool bFlag = false)
	{
		Json Results = Json::array();
		for (const Json& Call : Calls)
		{
			Results.push_back({ { "type", "tool_result" }, { "tool_use_id", Call["id"] }, { "content", Content }, { Flag, bFlag } });
		}
		return Send({ { "message", "" }, { "tool_results", Results }, { "was_confirmed", true } });
	}

private:
	Talk Mine;
	std::vector<Json> Calls;
};

TEST(DemoScenario, LeadsFromTheFirstPromptToTheEnd)
{
	const ServiceProcess Service(nullptr, { "--scenario", DEMO_SCENARIO });
	DemoTalk Demo(Service);
	EXPECT_EQ(Demo.Send({ { "message", "Hello" } }), " get_filesystem_tree");
	EXPECT_EQ(Demo.SendResults(R"({"LanternHollow":{"Private":{"Lantern.cpp":"#"}}})"), "+ read_file read_file");
	EXPECT_EQ(Demo.SendResults("float ShadePerMoth; int32 MothsAtGlass = 0;"), "");
	EXPECT_EQ(Demo.Send({ { "message", "Yes" } }), " create_cpp_file");
	EXPECT_EQ(Demo.SendResults("Abort: User added new input", "is_abort", true), " create_cpp_file create_cpp_file");
	EXPECT_EQ(Demo.SendResults("File created successfully"), " insert_into_file update_file update_file");
	EXPECT_EQ(Demo.SendResults("Successfully updated file"), "+ compile");
	EXPECT_EQ(Demo.SendResults("Firefly.cpp:7:34: error: no member named MothsAtGlas", "is_error", true), "+ update_file compile");
	EXPECT_EQ(Demo.SendResults(""), " delete_file");
	EXPECT_EQ(Demo.SendResults("Successfully deleted file"), "+ finish");
	EXPECT_EQ(Demo.SendResults("Finished"), "+");
	EXPECT_EQ(Demo.Send({ { "message", "More" } }), " insert_into_file update_file");
	EXPECT_EQ(Demo.SendResults("Successfully updated file"), " create_blueprint");
	EXPECT_EQ(Demo.SendResults("Success: Blueprint"), " execute_unreal_engine_api_python_script");
	EXPECT_EQ(Demo.SendResults("A firefly bears 2 moths now"), " find_reference_in_all_files");
	EXPECT_EQ(Demo.SendResults("Lantern.h,\nBP_Firefly"), " execute_unreal_engine_api_python_script");
	EXPECT_EQ(Demo.SendResults("removed: True"), " read_blueprint");
	EXPECT_EQ(Demo.SendResults(R"({"Variables":{"OilLeft":{}}})"), " modify_blueprint_variables");
	EXPECT_EQ(Demo.SendResults("Blueprint modified, compiled, and saved successfully."), " read_blueprint");
	EXPECT_EQ(Demo.SendResults(R"({"Functions":[{"Name":"Welcome"}]})"), "+ finish");
	EXPECT_EQ(Demo.SendResults("Finished"), "+");
}
}
