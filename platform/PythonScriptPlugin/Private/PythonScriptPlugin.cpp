#include "IPythonScriptPlugin.h"
#include "PyInterpreter.h"

namespace
{
class FPythonScriptPlugin final : public IPythonScriptPlugin
{
public:
	void ShutdownModule() override { FPyInterpreter::Get().Stop(); }

	bool IsPythonAvailable() const override { return !FPyInterpreter::Get().HasFailed(); }

	bool ExecPythonCommand(const TCHAR* InPythonCommand) override
	{
		FPythonCommandEx Command;
		Command.Command = InPythonCommand;
		Command.FileExecutionScope = EPythonFileExecutionScope::Public;
		return ExecPythonCommandEx(Command);
	}

	bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) override { return FPyInterpreter::Get().Run(InOutPythonCommand); }
};
}

IMPLEMENT_MODULE(FPythonScriptPlugin, PythonScriptPlugin)
