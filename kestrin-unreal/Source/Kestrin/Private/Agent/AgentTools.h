#pragma once

#include "Agent/Agent.h"

/** The one tool whose result takes a way of its own, see FAgent::StartCompilation. */
inline const TCHAR* const CompileToolName = TEXT("compile");

/** A tool as the service calls it. */
struct FAgent::FTool
{
	struct FRequiredField
	{
		const TCHAR* Name;
		/** The tool's result when the field is missing. */
		const TCHAR* ErrorText;
	};

	const TCHAR* Name;
	/** Shown before anything else, also when a field turns out to be missing; null for none. */
	const TCHAR* ProgressLine;
	/** Texts (or what reads as one), looked at in this order. */
	TArray<FRequiredField> RequiredFields;
	FToolHandler Handler;
};

/** Every tool that there is. */
struct FAgent::FToolTable
{
	static const FTool CreateNewCppFile;
	static const FTool UpdateAndReplaceCppFile;
	static const FTool DeleteFile;

	/** In the order of comparison. */
	static const TArray<FTool>& Get();
};
