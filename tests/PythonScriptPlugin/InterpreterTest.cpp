#include "CoreHost/MainLoop.h"
#include "PythonSupport.h"

#include <chrono>
#include <thread>

TEST_F(Python, FilesShareTheirVariablesInThePublicScopeAlone)
{
	ASSERT_TRUE(Run("shared = 1\nassert __name__ == '__main__' and __file__.endswith('script.py')"));
	EXPECT_EQ(Command.CommandResult, TEXT("None"));
	EXPECT_EQ(Evaluate("shared + 1"), "2");
	Folder.Write("own.py", "assert 'shared' not in globals()\nshared = [__name__, *__import__('sys').argv[1:]]\nprint(shared)");
	Command = FPythonCommandEx();
	Command.Command = FString::Printf(TEXT("\"%s\" one \"two three\""), *(Folder / "own.py"));
	ASSERT_TRUE(IPythonScriptPlugin::Get()->ExecPythonCommandEx(Command)) << TCHAR_TO_UTF8(*Command.CommandResult);
	EXPECT_EQ(GetOutput(), "Info:['__main__', 'one', 'two three']\n");
	EXPECT_EQ(Evaluate("shared"), "1");
	EXPECT_TRUE(IPythonScriptPlugin::Get()->ExecPythonCommand(TEXT("first = 1\nsecond = first + 1")));
	EXPECT_EQ(Evaluate("second"), "2");
	EXPECT_FALSE(IPythonScriptPlugin::Get()->ExecPythonCommand(TEXT("/no/such/file.py")));

	Command = FPythonCommandEx();
	Command.Command = TEXT("'as ' + 'printed'");
	Command.ExecutionMode = EPythonCommandExecutionMode::ExecuteStatement;
	EXPECT_TRUE(IPythonScriptPlugin::Get()->ExecPythonCommandEx(Command));
	EXPECT_EQ(GetOutput(), "Info:'as printed'\n");
}

TEST_F(Python, AFailureIsToldByItsTracebackAndEndsTheScriptAlone)
{
	const struct
	{
		std::string Script;
		const char* LastLine;
	} Cases[] = {
		{ "raise ValueError('no oil')", "ValueError: no oil" },
		{ "def f(:\n  pass", "SyntaxError: invalid syntax" },
		{ "import sys\nsys.exit(0)", "SystemExit: 0" },
		{ "import sys\nsys.exit('enough')", "SystemExit: enough" },
		{ "exit()", "SystemExit: None" },
		{ "raise KeyboardInterrupt", "KeyboardInterrupt" },
		{ "def f(): f()\nf()", "RecursionError: maximum recursion depth exceeded" },
		{ "class E(Exception):\n  def __str__(self): raise E()\nraise E()", "E: <exception str() failed>" },
		{ std::string("x = 1\0y", 7), "ValueError: embedded null byte" },
		{ "x = '\xe9'", "SyntaxError: (unicode error) 'utf-8' codec can't decode byte 0xe9 in position 0: unexpected end of data" },
		{ "import nothing_there", "ModuleNotFoundError: No module named 'nothing_there'" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Script);
		EXPECT_FALSE(Run(Case.Script));
		EXPECT_EQ(GetLastLine(), Case.LastLine);
		EXPECT_EQ(Evaluate("1 + 1"), "2");
	}
	EXPECT_FALSE(Run("x = 1\nraise ValueError()", "with 'blanks' and.py"));
	EXPECT_TRUE(Command.CommandResult.Contains(TEXT("and.py\", line 2, in <module>")));
	EXPECT_TRUE(Run("# -*- coding: latin-1 -*-\nx = '\xe9'"));
	EXPECT_EQ(Evaluate("ascii(x)"), "\"'\\\\xe9'\"");
}

TEST_F(Python, WhatIsPrintedIsLoggedAndToldWithTheCommand)
{
	FLogLines Log;
	ASSERT_TRUE(
		Run("print('one\\ntwo', end='')\nprint('err', file=sys.stderr)\nunreal.log_warning('careful')\nunreal.log(3)\nprint('\\ud83d')"));
	EXPECT_EQ(GetOutput(), "Info:one\nError:err\nWarning:careful\nInfo:3\nInfo:two\xef\xbf\xbd\n");
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogPython|Log|one")));
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogPython|Warning|careful")));
	EXPECT_TRUE(Log.HasLineWith(TEXT("LogPython|Error|err")));
	ASSERT_TRUE(Run("for i in range(200): print('x' * 50000)"));
	EXPECT_EQ(Command.LogOutput.Num(), 200);
	EXPECT_FALSE(Run("exit()"));
	EXPECT_EQ(Evaluate("sys.stdin.read()"), "''");
}

TEST_F(Python, ScriptsMayDoAsTheyLikeWithTheirStreamsAndTheirFile)
{
	EXPECT_TRUE(Run("sys.stdout = None\nsys.stderr = 5"));
	EXPECT_FALSE(Run("sys.stdout = open(__file__ + '.log', 'w')\nprint('kept')\nraise ValueError"));
	EXPECT_EQ(Folder.Read("script.py.log"), "kept\n") << "also of a script that failed";
	EXPECT_TRUE(Run("sys.stdout.close()"));
	EXPECT_TRUE(Run("sys.stdout, sys.stderr = sys.__stdout__, sys.__stderr__\nsys.stdout.close()\nprint('open')"));
	EXPECT_EQ(GetOutput(), "Info:open\n");
	EXPECT_TRUE(Run("import os\nos.remove(__file__)\nprint('gone')"));
	EXPECT_FALSE(Run("import builtins, traceback\nkept = builtins.compile, traceback.format_exception\n"
					 "builtins.compile = traceback.format_exception = None\nraise ValueError('still told')"));
	EXPECT_EQ(Command.CommandResult, TEXT("ValueError"));
	EXPECT_TRUE(Run("builtins.compile, traceback.format_exception = kept"));
}

TEST_F(Python, ThreadsRunWhileNothingElseRunsPythonAndKeepAwayFromObjects)
{
	ASSERT_TRUE(Run("done = []\n"
					"def work():\n"
					"  time.sleep(0.05)\n"
					"  try: unreal.TestSubject()\n"
					"  except RuntimeError as error: done.append(str(error))\n"
					"threading.Thread(target=work).start()"));
	for (int Tries = 0; Tries < 1000 && Evaluate("done") == "[]"; ++Tries)
	{
		std::this_thread::sleep_for(std::chrono::milliseconds(5));
	}
	EXPECT_EQ(Evaluate("done"), "['Objects of the editor can be used on its main thread alone.']");
}

TEST_F(Python, TheInterpreterEndsAndStartsAgain)
{
	ASSERT_TRUE(Run("last = open(os.path.dirname(__file__) + '/last', 'w')\nlast.write('flushed')\nkeep = unreal.TestSubject()"));
	FModuleManager::Get().UnloadModule(TEXT("PythonScriptPlugin"));
	EXPECT_EQ(Folder.Read("last"), "flushed");
	FModuleManager::Get().LoadModule(TEXT("PythonScriptPlugin"));
	EXPECT_EQ(Evaluate("1 + 1"), "2");
	EXPECT_EQ(Evaluate("'keep' in globals()"), "False");
	EXPECT_TRUE(Run("import unreal\nassert unreal.TestSubject().get_editor_property('oil_left') == 7"));
}

TEST_F(Python, ThreadsThatAreLeftBehindNeitherHoldUpTheEndNorBreakIt)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	const auto LeaveThreads = [this](const char* Daemon)
	{
		Run(std::string("def spin():\n  while True: time.sleep(0.001)\n"
						"for i in range(4): threading.Thread(target=spin, daemon=") +
			Daemon + ").start()\nimport _thread\n_thread.start_new_thread(spin, ())");
		FModuleManager::Get().UnloadModulesAtShutdown();
		std::exit(0);
	};
	EXPECT_EXIT(LeaveThreads("False"), testing::ExitedWithCode(0), "");
	EXPECT_EXIT(LeaveThreads("True"), testing::ExitedWithCode(0), "");
}
