#pragma once

#include "UObject/ObjectMacros.h"
#include "PythonScriptTypes.generated.h"

UENUM()
enum class EPythonLogOutputType : uint8
{
	Info,
	Warning,
	Error,
};

UENUM()
enum class EPythonCommandExecutionMode : uint8
{
	/** A file, with arguments or without, or a script of any number of statements given as text. */
	ExecuteFile,
	/** One statement; the value of an expression is printed. */
	ExecuteStatement,
	/** One expression. */
	EvaluateStatement,
};

UENUM()
enum class EPythonFileExecutionScope : uint8
{
	/** The file has variables of its own. */
	Private,
	/** The file shares its variables with the interpreter and with other files that run so. */
	Public,
};

enum class EPythonCommandFlags : uint8
{
	None = 0,
};

/** A line that a script has put out. */
USTRUCT()
struct PYTHONSCRIPTPLUGIN_API FPythonLogOutputEntry
{
	GENERATED_BODY()

	UPROPERTY()
	EPythonLogOutputType Type = EPythonLogOutputType::Info;

	UPROPERTY()
	FString Output;
};

/** What is to be run, and what came of it. */
struct FPythonCommandEx
{
	EPythonCommandFlags Flags = EPythonCommandFlags::None;
	EPythonCommandExecutionMode ExecutionMode = EPythonCommandExecutionMode::ExecuteFile;
	/** Of files; anything else runs in the public scope. */
	EPythonFileExecutionScope FileExecutionScope = EPythonFileExecutionScope::Private;
	FString Command;

	/** Evaluated, the value as Python writes it; otherwise "None". After a failure the traceback. */
	FString CommandResult;
	/** The lines that the command put out on streams that nobody had replaced, and what it logged. */
	TArray<FPythonLogOutputEntry> LogOutput;
};
