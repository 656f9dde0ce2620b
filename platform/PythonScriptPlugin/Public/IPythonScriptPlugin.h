#pragma once

// PythonScriptPlugin: CPython inside the editor, with the module "unreal" for what an editor script does.
//
// The interpreter starts with the first command. What scripts print goes to the log category LogPython; the process's own standard
// streams are out of their reach. "unreal" shows the native classes, structs and enums by reflection: objects with their properties and
// functions, structs, enums, and a few functions of its own. Left out: classes, structs and enums made in Python, delegates, latent
// functions, containers that Python and C++ share (lists, sets, dicts and structs are copies), remote execution, start-up scripts.

#include "Modules/ModuleManager.h"
#include "PythonScriptTypes.h"

/** Game thread. */
class IPythonScriptPlugin : public IModuleInterface
{
public:
	/** Null when the module is not loaded. */
	static IPythonScriptPlugin* Get() { return FModuleManager::GetModulePtr<IPythonScriptPlugin>("PythonScriptPlugin"); }

	/** False when the interpreter could not be started. */
	virtual bool IsPythonAvailable() const = 0;
	/** Runs a file, or a script given as text, in the public scope. @return whether it came to its end */
	virtual bool ExecPythonCommand(const TCHAR* InPythonCommand) = 0;
	/**
	 * Runs a command to its end. Threads that it leaves behind run on while nothing else runs Python.
	 * @return false for an exception that nobody caught, SystemExit and KeyboardInterrupt among them, and for what is no Python
	 */
	virtual bool ExecPythonCommandEx(FPythonCommandEx& InOutPythonCommand) = 0;
};
