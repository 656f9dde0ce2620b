#include "Agent/AgentTools.h"

#include "Agent/ChatLines.h"

namespace
{
const TCHAR* const MissingFields = TEXT("Error: Missing required fields");
const TCHAR* const MissingPath = TEXT("Error: Missing required path field");
const TCHAR* const MissingForUpdate = TEXT("Error: Missing required fields. Need path, old_string, and new_string.");
const TCHAR* const MissingForInsert = TEXT("Error: Missing required fields. Need path, insert_line, and new_string.");
}

// What create_cpp_file does for a file that is not there; the service has no name for it.
const FAgent::FTool FAgent::FToolTable::CreateNewCppFile = { TEXT(""), TEXT("Creating File ..."),
	{ { TEXT("filepath"), MissingFields }, { TEXT("filename"), MissingFields }, { TEXT("contents"), MissingFields } },
	&FAgent::HandleCreateNewCppFile };

const FAgent::FTool FAgent::FToolTable::UpdateAndReplaceCppFile = { TEXT("update_and_replace_cpp_file"),
	TEXT("Updating/Replacing File ..."),
	{ { TEXT("filepath"), MissingFields }, { TEXT("filename"), MissingFields }, { TEXT("contents"), MissingFields } },
	&FAgent::HandleUpdateAndReplaceCppFile };

const FAgent::FTool FAgent::FToolTable::DeleteFile = { TEXT("delete_file"), TEXT("Deleting File..."), { { TEXT("path"), MissingPath } },
	&FAgent::HandleDeleteFile };

const TArray<FAgent::FTool>& FAgent::FToolTable::Get()
{
	static const TArray<FTool> Table = {
		{ TEXT("finish"), nullptr, {}, &FAgent::HandleFinish },
		{ CompileToolName, TEXT("Compiling..."), {}, &FAgent::HandleCompile },
		{ TEXT("execute_unreal_engine_api_python_script"), TEXT("Executing Unreal Engine Api Python Script ..."),
			{ { TEXT("code"), TEXT("Error: Missing code field") } }, &FAgent::HandleExecutePythonScript },
		{ TEXT("create_file"), TEXT("Creating File..."), { { TEXT("path"), MissingFields }, { TEXT("file_text"), MissingFields } },
			&FAgent::HandleCreateFile },
		{ TEXT("create_cpp_file"), nullptr, { { TEXT("filepath"), MissingFields }, { TEXT("filename"), MissingFields } },
			&FAgent::HandleCreateCppFile },
		UpdateAndReplaceCppFile,
		{ TEXT("update_file"), TEXT("Updating File Content..."),
			{ { TEXT("path"), MissingForUpdate }, { TEXT("old_string"), MissingForUpdate }, { TEXT("new_string"), MissingForUpdate } },
			&FAgent::HandleUpdateFile },
		{ TEXT("insert_into_file"), TEXT("Inserting content into file..."),
			{ { TEXT("path"), MissingForInsert }, { TEXT("insert_line"), MissingForInsert }, { TEXT("new_string"), MissingForInsert } },
			&FAgent::HandleInsertIntoFile },
		DeleteFile,
		{ TEXT("delete_cpp_file"), TEXT("Deleting File..."), { { TEXT("filepath"), MissingFields }, { TEXT("filename"), MissingFields } },
			&FAgent::HandleDeleteCppFile },
		{ TEXT("read_file"), TEXT("Reading File..."), { { TEXT("path"), MissingPath } }, &FAgent::HandleReadFile },
		{ TEXT("get_filesystem_tree"), nullptr, { { TEXT("dir_path"), TEXT("Error: Missing dir_path field") } },
			&FAgent::HandleGetFilesystemTree },
		{ TEXT("create_blueprint"), TEXT("Creating Blueprint File ..."),
			{ { TEXT("BPPath"), MissingFields }, { TEXT("BPName"), MissingFields }, { TEXT("BPParentClassName"), MissingFields } },
			&FAgent::HandleCreateBlueprint },
		{ TEXT("read_blueprint"), TEXT("Reading Blueprint Asset ..."),
			{ { TEXT("blueprint_name"), TEXT("Error: Missing required fields: blueprint_name") },
				{ TEXT("data_subset"), TEXT("Error: Missing required fields: data_subset") } },
			&FAgent::HandleReadBlueprint },
		{ TEXT("modify_blueprint_variables"), TEXT("Modifying Blueprint File ..."),
			{ { TEXT("blueprint_name"), TEXT("Error: Missing required fields - blueprint_name") },
				{ TEXT("updates"), TEXT("Error: Missing required fields: updates") } },
			&FAgent::HandleModifyBlueprintVariables },
		{ TEXT("read_behavior_tree"), TEXT("Reading Behavior Tree File ..."), { { TEXT("behavior_tree_name"), MissingFields } },
			&FAgent::HandleReadBehaviorTree },
		{ TEXT("save_and_compile_all_dirty_blueprints"), TEXT("Saving and compiling all dirty blueprints ..."), {},
			&FAgent::HandleSaveAndCompileAllDirtyBlueprints },
		{ TEXT("find_reference_in_all_files"), TEXT("Finding Reference In All Files ..."), { { TEXT("reference_string"), MissingFields } },
			&FAgent::HandleFindReferenceInAllFiles },
	};
	return Table;
}

FString FAgent::RunTool(const FString& ToolName, const FString& ToolId, TSharedPtr<FJsonObject> Input)
{
	if (!Input.IsValid())
	{
		return TEXT("Error: Invalid input");
	}
	const FTool* const Tool =
		FToolTable::Get().FindByPredicate([&ToolName](const FTool& Each) { return ToolName.Equals(Each.Name, ESearchCase::IgnoreCase); });
	return Tool ? RunTool(*Tool, ToolId, Input) : FString::Printf(TEXT("Error: Unknown tool '%s'"), *ToolName);
}

FString FAgent::RunTool(const FTool& Tool, const FString& ToolId, const TSharedPtr<FJsonObject>& Input)
{
	if (Tool.ProgressLine)
	{
		ShowProgressLine(Tool.ProgressLine);
	}
	for (const FTool::FRequiredField& Field : Tool.RequiredFields)
	{
		FString Value;
		if (!Input->TryGetStringField(Field.Name, Value))
		{
			return Field.ErrorText;
		}
	}
	return (this->*Tool.Handler)(ToolId, Input);
}
