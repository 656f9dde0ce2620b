#pragma once

// LiveCoding: compiles the project's C++ modules and puts them in place while the editor runs. What the compiler says goes to the log
// under LogCompile and to the build log file, how it ended under LogLiveCoding.
//
// Left out: patching of single functions (whole modules are replaced), the console window, sessions with other processes.

#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Internationalization/Text.h"
#include "Misc/EnumClassFlags.h"
#include "Modules/ModuleInterface.h"

#define LIVE_CODING_MODULE_NAME "LiveCoding"

enum class ELiveCodingCompileFlags : uint8
{
	None = 0,
	WaitForCompletion = 1 << 0,
};
ENUM_CLASS_FLAGS(ELiveCodingCompileFlags)

enum class ELiveCodingCompileResult : uint8
{
	/** New modules are in place. */
	Success,
	/** What is loaded is what the sources say. */
	NoChanges,
	/** The compile goes on; it was not to be waited for. */
	InProgress,
	/** Another one is at work. */
	CompileStillActive,
	/** Live Coding is off, or there is nothing to compile with. */
	NotStarted,
	/** The log tells why; the old modules stay. */
	Failure,
	/** It was interrupted. */
	Cancelled,
};

/** Game thread. */
class ILiveCodingModule : public IModuleInterface
{
public:
	DECLARE_MULTICAST_DELEGATE(FOnPatchCompleteDelegate);

	/** bEnabled of [/Script/LiveCoding.LiveCodingSettings] in the project's EditorPerProjectUserSettings. Saved with the next line's call.
	 */
	virtual void EnableByDefault(bool bInEnabled) = 0;
	virtual bool IsEnabledByDefault() const = 0;

	/** For this run of the editor; it begins as the settings say. */
	virtual void EnableForSession(bool bInEnabled) = 0;
	virtual bool IsEnabledForSession() const = 0;
	/** Why it can't be enabled; empty when it can. */
	virtual const FText& GetEnableErrorText() const = 0;
	virtual bool CanEnableForSession() const = 0;
	/** Whether something was compiled in this run of the editor. */
	virtual bool HasStarted() const = 0;

	/** Starts a compile that goes on while the editor does. */
	virtual void Compile() = 0;
	/** @return whether Result is Success, NoChanges or InProgress. Result may be null */
	virtual bool Compile(ELiveCodingCompileFlags CompileFlags, ELiveCodingCompileResult* Result) = 0;
	virtual bool IsCompiling() const = 0;
	/** New modules are in place. */
	virtual FOnPatchCompleteDelegate& GetOnPatchCompleteDelegate() = 0;
};
