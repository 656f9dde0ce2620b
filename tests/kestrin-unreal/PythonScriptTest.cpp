#include "Agent/KestrinPythonUtils.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/FileFaults.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Modules/ModuleManager.h"
#include "Support/Conversation.h"
#include "Support/TestBlueprint.h"

namespace
{
const std::string Completed = "Python script completed: \n";
const std::string Failed = "Error: Python script execution failed.";

class PythonScripts : public testing::Test
{
protected:
	explicit PythonScripts(std::string_view ProjectName = "Project")
		: Talk(ProjectName)
	{
		for (const TCHAR* const Module : { TEXT("EditorScriptingUtilities"), TEXT("PythonScriptPlugin") })
		{
			FModuleManager::Get().LoadModule(Module);
		}
		std::filesystem::create_directories(Logs());
	}
	~PythonScripts() override { FFileFaults::SetHook({}); }

	std::filesystem::path Logs() const { return Talk.Project.Folder() / "Saved/Logs"; }
	static bool IsEmptyFolder(const std::filesystem::path& Folder)
	{
		return !std::filesystem::exists(Folder) || std::filesystem::is_empty(Folder);
	}
	/** Neither a script nor a log is left. */
	bool IsTidy() const { return IsEmptyFolder(Talk.Project.Folder() / "Plugins/kestrin-unreal/Python") && IsEmptyFolder(Logs()); }

	FConversation Talk;
	FCleanEditor Editor;
};

class PythonScriptsBelowQuotes : public PythonScripts
{
protected:
	PythonScriptsBelowQuotes()
		: PythonScripts("Kid's Game")
	{
	}
};

class PythonScriptsBelowBlanks : public PythonScripts
{
protected:
	PythonScriptsBelowBlanks()
		: PythonScripts("My Own Game")
	{
	}
};

FPythonScriptResult RunScript(const char* Code)
{
	return FKestrinPythonUtils::CreateAndExecutePythonScript(FUtf8::Decode(Code));
}
}

TEST_F(PythonScripts, WhatTheyPrintIsTheResult)
{
	const struct
	{
		const char* Code;
		std::string Output;
	} Cases[] = {
		{ "", Completed },
		{ "x = 1\nprint(x)\nimport sys\nprint('to err', file=sys.stderr)", Completed + "1\nto err\n" },
		{ "print(x + 1) # scripts share their variables", Completed + "2\n" },
		{ "print('\xc3\x96l')", Completed + "\xc3\x96l\n" },
		{ "if __name__ == '__main__':\n\tprint('main')", Completed + "main\n" },
		{ "import sys\nprint('lost')\nsys.stdout.close()\nsys.stdout = open('/dev/null', 'w')", Completed + "lost\n" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Code);
		const FPythonScriptResult Result = RunScript(Case.Code);
		EXPECT_TRUE(Result.bSuccess);
		EXPECT_EQ(ToUtf8(Result.Output), Case.Output);
		EXPECT_EQ(ToUtf8(Result.ErrorMessage), "");
		EXPECT_TRUE(IsTidy());
	}
}

TEST_F(PythonScripts, AFailureTellsWhatWasPrintedAndWhatHappened)
{
	const struct
	{
		const char* Code;
		std::string Begin;
		std::string End;
	} Cases[] = {
		{ "print('before')\nraise ValueError('no oil')", "before\n Traceback (most recent call last):\n", "ValueError: no oil\n" },
		{ "raise ValueError", " Traceback (most recent call last):\n", "ValueError\n" },
		{ "import sys\nprint('bye')\nsys.exit(0)", "bye\n Traceback", "SystemExit: 0\n" },
		// Nothing of it ran, so there is no log.
		{ "print('a'", "Error: Failed to read Python script log file.   File \"", "SyntaxError: '(' was never closed\n" },
		{ "import os, glob, unreal\n[os.remove(f) for f in glob.glob(unreal.Paths.project_log_dir() + '*')]\n1 / 0",
			"Error: Failed to read Python script log file. Traceback", "ZeroDivisionError: division by zero\n" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Code);
		const FPythonScriptResult Result = RunScript(Case.Code);
		EXPECT_FALSE(Result.bSuccess);
		EXPECT_EQ(ToUtf8(Result.Output), Failed);
		EXPECT_TRUE(Result.ErrorMessage.StartsWith(FUtf8::Decode(Case.Begin), ESearchCase::CaseSensitive)) << ToUtf8(Result.ErrorMessage);
		EXPECT_TRUE(Result.ErrorMessage.EndsWith(FUtf8::Decode(Case.End), ESearchCase::CaseSensitive)) << ToUtf8(Result.ErrorMessage);
		EXPECT_TRUE(IsTidy());
		EXPECT_EQ(ToUtf8(RunScript("print('well')").Output), Completed + "well\n");
	}
}

TEST_F(PythonScripts, TheLogThatIsGoneStandsForItsTextInSuccessToo)
{
	const FPythonScriptResult Result = RunScript("import os\nos.remove(sys.stdout.name)");
	EXPECT_TRUE(Result.bSuccess);
	EXPECT_EQ(ToUtf8(Result.Output), Completed + "Error: Failed to read Python script log file.");
}

TEST_F(PythonScripts, AScriptThatCanNotBeWrittenDoesNotRun)
{
	FFileFaults::SetHook([](EFileOperation Operation, const FString& Path)
		{ return Operation != EFileOperation::OpenWrite || !Path.Contains(TEXT("generated_script_")); });
	const FPythonScriptResult Result = RunScript("open('ran', 'w')");
	EXPECT_FALSE(Result.bSuccess);
	EXPECT_TRUE(Result.Output.StartsWith(TEXT("Error: Failed to create file: Plugins/kestrin-unreal/Python/generated_script_2")))
		<< ToUtf8(Result.Output);
	EXPECT_EQ(ToUtf8(Result.ErrorMessage), "");
	EXPECT_TRUE(IsTidy());
}

TEST_F(PythonScripts, WithoutThePythonPlugInTheyFail)
{
	FModuleManager::Get().UnloadModule(TEXT("PythonScriptPlugin"));
	const FPythonScriptResult Result = RunScript("print(1)");
	EXPECT_FALSE(Result.bSuccess);
	EXPECT_EQ(ToUtf8(Result.Output + TEXT("|") + Result.ErrorMessage), Failed + "|The Python plug-in is not available.");
	EXPECT_TRUE(IsTidy());
}

TEST_F(PythonScriptsBelowQuotes, TheLogsPathIsNotEscaped)
{
	const FPythonScriptResult Result = RunScript("print(1)");
	EXPECT_EQ(ToUtf8(Result.Output), Failed);
	EXPECT_TRUE(Result.ErrorMessage.Contains(TEXT("SyntaxError: "))) << ToUtf8(Result.ErrorMessage);
	EXPECT_TRUE(IsTidy());
}

TEST_F(PythonScriptsBelowBlanks, BlanksDoNoHarm)
{
	EXPECT_EQ(ToUtf8(RunScript("print(1)").Output), Completed + "1\n");
}

TEST_F(PythonScripts, TheToolAnswersInOneLineAndItsChangesAreOneTransaction)
{
	const auto RunTool = [this](const std::string& Code)
	{ return Talk.RunTool("execute_unreal_engine_api_python_script", R"({"code":")" + Code + "\"}"); };
	EXPECT_EQ(Talk.RunTool("execute_unreal_engine_api_python_script", "{}"), "Error: Missing code field");
	EXPECT_EQ(Talk.Chat, std::vector<std::string>{ "progress|Executing Unreal Engine Api Python Script ..." });
	EXPECT_EQ(RunTool("print(1)"), Completed + "1\n: ");
	EXPECT_EQ(GEditor->Trans->GetQueueLength(), 0) << "what changes nothing leaves no transaction";
	EXPECT_TRUE(RunTool("1/0").starts_with(Failed + ":  Traceback"));

	const FTestBlueprint Blueprint(TEXT("/Game/BP_Post"), UObject::StaticClass());
	Blueprint.AddVariable(TEXT("Height"), PinType(UEdGraphSchema_K2::PC_Int), TEXT("3"));
	Blueprint.Save();
	GEditor->ResetTransaction(FText::GetEmpty());
	Talk.StartAndFinishWith("", false);
	const std::string Defaults =
		"import unreal\\nd = unreal.get_default_object(unreal.EditorAssetLibrary.load_blueprint_class('/Game/BP_Post'))\\n";
	EXPECT_EQ(RunTool(Defaults + "d.set_editor_property('height', 5)\\nd.set_editor_property('Height', 6)"), Completed + ": ");
	ASSERT_EQ(GEditor->Trans->GetQueueLength(), 1);
	const FString Title = TEXT("Kestrin Transaction ") + FAgent::Get().GetConversationId();
	EXPECT_EQ(GEditor->Trans->GetTransaction(0)->GetTitle().ToString(), Title);
	EXPECT_TRUE(FKestrinInterface::Get().UndoUntilLastTransactionByName(Title));
	EXPECT_EQ(RunTool(Defaults + "print(d.get_editor_property('height'))"), Completed + "3\n: ");
}
