#pragma once

#include "CoreMinimal.h"

/** What came of a script. */
struct FPythonScriptResult
{
	/** Whether it came to its end. */
	bool bSuccess = false;
	/** What it printed, under a headline; or else an error text. */
	FString Output;
	/** What it printed before it failed, and why it did. */
	FString ErrorMessage;
};

/** Runs Python code in the editor. Game thread, which waits for the code's end. */
class KESTRIN_API FKestrinPythonUtils
{
public:
	/** The code runs at module level, unchanged, in the scope that all such code shares. */
	static FPythonScriptResult CreateAndExecutePythonScript(const FString& PythonCode);

private:
	/** By the local time, to the second. */
	static FString GenerateScriptName();
};
