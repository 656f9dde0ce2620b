#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Function.h"

#include <atomic>

/** A program that runs beside the editor, with what it writes as lines. */
class FChildProcess
{
public:
	/** How it ended. */
	struct FEnd
	{
		/** Empty when it ran; otherwise why it could not be started. */
		FString StartError;
		int32 ExitCode = -1;
		/** The signal that ended it, or 0. */
		int32 Signal = 0;
	};

	/**
	 * Runs a program to its end. Its standard input is empty; standard output and error come mixed.
	 * @param Environment "NAME=value", over the editor's own environment
	 */
	FEnd Run(const TArray<FString>& Command, const TArray<FString>& Environment, TFunctionRef<void(const FString& Line)> OnLine);
	/** Asks it to end, as Ctrl-C would; from any thread, at any time. */
	void Interrupt();

private:
	std::atomic<int> Process = 0;
	std::atomic<bool> bInterrupted = false;
};
