#include "Support/BlueprintAccess.h"
#include "Support/Conversation.h"
#include "Support/TestBlueprint.h"

namespace
{
class EngineTools : public testing::Test
{
protected:
	FConversation Talk;
	FCleanEditor Editor;
};
}

TEST_F(EngineTools, ShowTheirLineAndMissTheirFieldsInOrder)
{
	const std::string Fields = "Error: Missing required fields";
	const std::string Creating = "progress|Creating Blueprint File ...";
	const std::string Reading = "progress|Reading Blueprint Asset ...";
	const std::string Modifying = "progress|Modifying Blueprint File ...";
	const std::string Tree = "progress|Reading Behavior Tree File ...";
	const struct
	{
		const char* Tool;
		const char* Input;
		std::string Line;
		std::string Result;
	} Cases[] = {
		{ "create_blueprint", R"({"BPName":"BP_X","BPParentClassName":"Actor"})", Creating, Fields },
		{ "create_blueprint", R"({"BPPath":"/Game","BPParentClassName":"Actor"})", Creating, Fields },
		{ "create_blueprint", R"({"BPPath":"/Game","BPName":"BP_X"})", Creating, Fields },
		{ "create_blueprint", R"({"BPPath":"/Game","BPName":"BP_X","BPParentClassName":null})", Creating, Fields },
		{ "read_blueprint", R"({"data_subset":"All"})", Reading, Fields + ": blueprint_name" },
		{ "read_blueprint", "{}", Reading, Fields + ": blueprint_name" },
		{ "read_blueprint", R"({"blueprint_name":"BP_X"})", Reading, Fields + ": data_subset" },
		{ "READ_Blueprint", R"({"blueprint_name":"BP_X","data_subset":["All"]})", Reading, Fields + ": data_subset" },
		{ "modify_blueprint_variables", R"({"updates":"{}"})", Modifying, Fields + " - blueprint_name" },
		{ "modify_blueprint_variables", R"({"blueprint_name":"BP_X","updates":{}})", Modifying, Fields + ": updates" },
		{ "modify_blueprint_variables", R"({"blueprint_name":"BP_X","updates":"{}"})", Modifying,
			R"({"Error":"Blueprint 'BP_X' not found."})" },
		{ "read_behavior_tree", R"({"blueprint_name":"BT_X"})", Tree, Fields },
		{ "read_blueprint", R"({"blueprint_name":"BP_X","data_subset":"All"})", Reading, R"({"Error":"Blueprint 'BP_X' not found."})" },
		{ "read_behavior_tree", R"({"behavior_tree_name":"BT_X"})", Tree, R"({"Error":"BehaviorTree 'BT_X' not found."})" },
		{ "find_reference_in_all_files", R"({"reference":"X"})", "progress|Finding Reference In All Files ...", Fields },
		{ "find_reference_in_all_files", R"({"reference_string":7})", "progress|Finding Reference In All Files ...",
			"{\n\t\"reference_string\": \"7\",\n\t\"cpp_references\": [],\n\t\"blueprint_references\": []\n}" },
		{ "save_and_compile_all_dirty_blueprints", R"({"anything":1})", "progress|Saving and compiling all dirty blueprints ...",
			R"({"BlueprintResults":[],"Success":"All dirty Blueprints were processed successfully."})" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(std::string(Case.Tool) + Case.Input);
		Talk.Forget();
		EXPECT_EQ(Talk.RunTool(Case.Tool, Case.Input), Case.Result);
		EXPECT_EQ(Talk.Chat, std::vector{ Case.Line });
	}
}

TEST_F(EngineTools, WorkOneAfterAnotherInOneAnswer)
{
	Talk.StartAndFinishWith(
		R"({"type":"tool_use","id":"1","name":"create_blueprint","input":{"BPPath":"/Game","BPName":"BP_Door","BPParentClassName":"Actor"}},)"
		R"({"type":"tool_use","id":"2","name":"create_blueprint","input":{"BPPath":"/Game","BPName":"BP_Door","BPParentClassName":"Actor"}},)"
		R"({"type":"tool_use","id":"3","name":"save_and_compile_all_dirty_blueprints","input":{}},)"
		R"({"type":"tool_use","id":"4","name":"read_blueprint","input":{"blueprint_name":"bp_door","data_subset":"Name"}},)"
		R"({"type":"tool_use","id":"5","name":"read_blueprint","input":{"blueprint_name":"BP_Gate","data_subset":"Name"}})",
		true);
	EXPECT_TRUE(Talk.Project.Has("Content/BP_Door.uasset"));
	const std::string Body = Talk.LastBody();
	const std::string Results[] = {
		R"("tool_use_id":"1","content":"Success: Blueprint 'BP_Door' created at '/Game'.","is_error":false)",
		R"("tool_use_id":"2","content":"Error: Failed to create Blueprint 'BP_Door' at '/Game'. )"
		R"(Check if the path is valid and the name is unique.","is_error":true)",
		R"("tool_use_id":"4","content":"{\"Name\":\"BP_Door\",\"Path\":\"/Game/BP_Door.BP_Door\",\"SuperClass\":\"Actor\"}","is_error":false)",
		// A failure that is told in JSON is no failed call.
		R"("tool_use_id":"5","content":"{\"Error\":\"Blueprint 'BP_Gate' not found.\"}","is_error":false)",
	};
	for (const std::string& Result : Results)
	{
		EXPECT_NE(Body.find(Result), std::string::npos) << Result << "\n" << Body;
	}
}
