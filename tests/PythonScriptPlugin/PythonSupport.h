#pragma once

// What the tests of scripts share.

#include "CoreHost/Project.h"
#include "Editor.h"
#include "IPythonScriptPlugin.h"
#include "TestSubject.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

/** A project of its own; no object stays in memory between tests, while the interpreter does. */
class Python : public testing::Test
{
protected:
	Python()
	{
		for (const TCHAR* const Module :
			{ TEXT("UnrealEd"), TEXT("AssetRegistry"), TEXT("AssetTools"), TEXT("EditorScriptingUtilities"), TEXT("PythonScriptPlugin") })
		{
			FModuleManager::Get().LoadModule(Module);
		}
		FHostProject::Set(Folder / "Test.uproject");
		UTestSubject::StaticClass();
		EXPECT_TRUE(Run("import unreal, sys, os, threading, time"));
	}
	~Python() override
	{
		GEditor->ResetTransaction(FText::GetEmpty());
		FHostProject::Set(TEXT(""));
		CollectGarbage(RF_NoFlags);
	}

	/** A script, as a file in the public scope. */
	bool Run(const std::string& Script, const std::string& Name = "script.py")
	{
		Folder.Write(Name, Script);
		Command = FPythonCommandEx();
		Command.Command = Folder / Name;
		Command.FileExecutionScope = EPythonFileExecutionScope::Public;
		return IPythonScriptPlugin::Get()->ExecPythonCommandEx(Command);
	}
	/** An expression's value as Python writes it, or else the last line of its traceback. */
	std::string Evaluate(const std::string& Expression)
	{
		Command = FPythonCommandEx();
		Command.Command = FUtf8::Decode(Expression);
		Command.ExecutionMode = EPythonCommandExecutionMode::EvaluateStatement;
		IPythonScriptPlugin::Get()->ExecPythonCommandEx(Command);
		return GetLastLine();
	}
	std::string GetLastLine() const
	{
		TArray<FString> Lines;
		Command.CommandResult.ParseIntoArrayLines(Lines);
		return Lines.IsEmpty() ? std::string() : FUtf8::Encode(Lines.Last());
	}
	/** What the last command put out, line by line. */
	std::string GetOutput() const
	{
		FString Text;
		for (const FPythonLogOutputEntry& Entry : Command.LogOutput)
		{
			Text += StaticEnum<EPythonLogOutputType>()->GetNameStringByValue(static_cast<int64>(Entry.Type)) + TEXT(":") + Entry.Output +
				TEXT("\n");
		}
		return FUtf8::Encode(Text);
	}

	FTestDirectory Folder;
	FPythonCommandEx Command;
};
