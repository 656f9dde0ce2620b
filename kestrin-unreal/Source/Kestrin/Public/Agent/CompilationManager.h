#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Misc/CompilationResult.h"
#include "Misc/OutputDevice.h"

enum class ELiveCodingCompileResult : uint8;

/** What compiles log, of the categories LogCompile and LogLiveCoding, as "[Category] Message". */
class FCompilationLogOutputDevice final : public FOutputDevice
{
public:
	/** From now on it hears the global log, until its end. */
	FCompilationLogOutputDevice();
	~FCompilationLogOutputDevice() override;

	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override;

	TArray<FString> CapturedLogs;
};

/** The messages and the identifier that the compile was started with, what the compiler said, and whether it succeeded. */
DECLARE_MULTICAST_DELEGATE_FourParams(FOnCompilationFinished, const TArray<TSharedPtr<FJsonObject>>&, FString, FString, bool);

/**
 * Compiles the project's C++ in the running editor: through Live Coding, which has ended when the call returns, or else through Hot
 * Reload, which may end later. Changed packages are saved first. One compile at a time; a second one takes the first one's place, which
 * then has no end of its own. Game thread.
 */
class KESTRIN_API FCompilationManager
{
public:
	/** The only way in which a compile's end is told. */
	static FOnCompilationFinished OnCompilationFinishedDelegate;

	/** @param Messages given back at the end */
	static void CompileGameProject(FString ToolId, const TArray<TSharedPtr<FJsonObject>>& Messages);
	static void CompileGameWithLiveCoding();
	static void CompileGameWithHotReload();

	/** Begins to capture what compiles log, without what there is from earlier ones. */
	static void CaptureCompilationLogs();
	/** The last compile's lines, also after its end. */
	static const TArray<FString>& GetCompilationLogs();
	/** Those that contain the text, ignoring case. */
	static TArray<FString> FilterCompilationErrors(const FString& Filter);

	static void OnLiveCodingCompilationFinished(const FString& Output, ELiveCodingCompileResult Result);
	static void OnHotReloadCompilationFinished(const FString& Output, ECompilationResult::Type Result, bool);

private:
	/** Tells the end and forgets the messages. */
	static void Finish(const FString& Output, bool bSuccess);
	static void UnbindFromHotReload();

	static TArray<TSharedPtr<FJsonObject>> StoredMessages;
	static FString SharedToolId;
	/** Made on first need, and kept until the editor closes. */
	static TSharedPtr<FCompilationLogOutputDevice> LogOutputDevice;
	static FDelegateHandle CompilationManagerDelegateHandle;
};
