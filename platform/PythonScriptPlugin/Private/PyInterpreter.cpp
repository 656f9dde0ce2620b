#include "PyInterpreter.h"

#include "Misc/Paths.h"
#include "PyCommand.h"
#include "PyLog.h"
#include "PyTypes.h"

DEFINE_LOG_CATEGORY_STATIC(LogPythonPlugin, Log, All);

namespace
{
/** Owns what it holds. */
struct FConfig : PyConfig
{
	FConfig() { PyConfig_InitIsolatedConfig(this); }
	~FConfig() { PyConfig_Clear(this); }
	UE_NONCOPYABLE(FConfig)
};

/** Neither the environment nor the user's own folders have a say, files are UTF-8, and signals stay the editor's. */
PyStatus Initialize()
{
	PyPreConfig PreConfig;
	PyPreConfig_InitIsolatedConfig(&PreConfig);
	PreConfig.utf8_mode = 1;
	PyStatus Status = Py_PreInitialize(&PreConfig);
	if (PyStatus_Exception(Status))
	{
		return Status;
	}
	FConfig Config;
	Config.install_signal_handlers = 0;
	Status = PyConfig_SetBytesString(&Config, &Config.program_name, PYTHON_PROGRAM);
	if (!PyStatus_Exception(Status))
	{
		Status = Py_InitializeFromConfig(&Config);
	}
	return Status;
}

/** It stays open: "exit" closes standard input before it raises. */
py::object MakeEmptyInput()
{
	const py::object StringIO = py::module_::import("io").attr("StringIO");
	py::dict Members;
	Members["close"] = py::staticmethod(py::cpp_function([] {}));
	return py::type::of(StringIO)("_EmptyInput", py::make_tuple(StringIO), Members)();
}

/** Scripts print to the log and read nothing: the process's own streams belong to others. */
void ReplaceStandardStreams()
{
	py::module_ Sys = py::module_::import("sys");
	const py::object Nothing = MakeEmptyInput();
	const py::object Out = py::cast(FPyLogStream(EPythonLogOutputType::Info));
	const py::object Err = py::cast(FPyLogStream(EPythonLogOutputType::Error));
	for (const char* const Prefix : { "", "__" })
	{
		const auto Set = [&](const char* Name, const py::object& Stream)
		{ Sys.attr((Prefix + std::string(Name) + Prefix).c_str()) = Stream; };
		Set("stdin", Nothing);
		Set("stdout", Out);
		Set("stderr", Err);
	}
}

/** Modules that the project brings along. */
void AddProjectPath()
{
	const FString Folder = FPaths::ProjectContentDir() / TEXT("Python");
	if (FPaths::DirectoryExists(Folder))
	{
		py::module_::import("sys").attr("path").attr("append")(ToPyString(Folder));
	}
}

/** Whether Python is in the middle of something on any thread, also one that was made without the module threading. */
bool HasThreads()
{
	return py::len(py::module_::import("sys").attr("_current_frames")()) > 0;
}
}

FPyInterpreter& FPyInterpreter::Get()
{
	static FPyInterpreter Interpreter;
	return Interpreter;
}

bool FPyInterpreter::Start()
{
	const PyStatus Status = Initialize();
	if (PyStatus_Exception(Status))
	{
		UE_LOG(LogPythonPlugin, Error, TEXT("Python could not be started: %s"),
			UTF8_TO_TCHAR(Status.err_msg ? Status.err_msg : "no reason given"));
		State = EState::Failed;
		return false;
	}
	State = EState::Running;
	try
	{
		py::module_::import("unreal");
		ReplaceStandardStreams();
		AddProjectPath();
	}
	catch (const py::error_already_set& Error)
	{
		UE_LOG(LogPythonPlugin, Error, TEXT("Python could not be started: %s"), UTF8_TO_TCHAR(Error.what()));
		State = EState::Failed;
	}
	GameThread = PyEval_SaveThread();
	return State == EState::Running;
}

bool FPyInterpreter::Run(FPythonCommandEx& Command)
{
	check(IsInGameThread());
	if (State != EState::Running && (State != EState::Stopped || !Start()))
	{
		Command.CommandResult = TEXT("Python is not available.");
		return false;
	}
	const FPyScopedLock Lock;
	const FPyLogCapture Capture(Command.LogOutput);
	return RunPythonCommand(Command);
}

void FPyInterpreter::Stop()
{
	if (State != EState::Running)
	{
		return;
	}
	PyEval_RestoreThread(GameThread);
	bool bThreads = true;
	try
	{
		FPyTypes::Get().Forget();
		bThreads = HasThreads();
	}
	catch (const py::error_already_set& Error)
	{
		UE_LOG(LogPythonPlugin, Warning, TEXT("Python's threads can't be told: %s"), UTF8_TO_TCHAR(Error.what()));
	}
	if (bThreads)
	{
		UE_LOG(LogPythonPlugin, Warning, TEXT("Scripts have left threads behind; they are stopped where they are."));
		State = EState::Abandoned;
		return;
	}
	py::finalize_interpreter();
	State = EState::Stopped;
}
