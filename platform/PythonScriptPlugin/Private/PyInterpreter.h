#pragma once

#include "PyText.h"
#include "PythonScriptTypes.h"

/** The process's interpreter, which starts with the first command. Game thread. */
class FPyInterpreter
{
public:
	static FPyInterpreter& Get();

	bool HasFailed() const { return State == EState::Failed; }
	/** As IPythonScriptPlugin::ExecPythonCommandEx tells it. */
	bool Run(FPythonCommandEx& Command);
	/**
	 * Ends the interpreter. When threads of scripts are left it stays and its lock is kept: they stand still until the process ends,
	 * since neither can they be waited for nor do they survive the end of the interpreter.
	 */
	void Stop();

private:
	enum class EState : uint8
	{
		Stopped,
		Running,
		/** Threads were left; the lock is held for good. */
		Abandoned,
		Failed,
	};

	bool Start();

	EState State = EState::Stopped;
	/** Of the game thread, while it does not hold the lock. */
	PyThreadState* GameThread = nullptr;
};
