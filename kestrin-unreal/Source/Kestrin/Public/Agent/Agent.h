#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "UObject/ObjectMacros.h"
#include "Agent.generated.h"

/** EAgentState defines the possible states of the Agent system. */
UENUM()
enum class EAgentState : uint8
{
	/** Default state */
	None,
	/** Indexing state */
	Indexing,
	/** State when no request is being processed */
	Idle,
	/** Processing the initial user request/prompt */
	InitialRequest,
	/** Processing the regular user request/prompt */
	RegularRequest,
	/** Actively polling the AI system for a response */
	PollRequest,
	/** Processing a received response from the AI system */
	PollResponse,
	/** Waiting for user Approval before proceeding with an action */
	AwaitingApproval,
	/** User has approved the action, proceeding with execution */
	Approved,
	/** User want to update the request */
	Continue,
	/** Waiting for user Update before proceeding with an action */
	AwaitingUpdate,
	/** Request has been Paused */
	Pause,
	/** Request has been cancelled, cleaning up and returning to Idle */
	CancelRequest,
	/** Request processing has completed successfully */
	EndRequest,
};

/** What some states are entered with. It lives for the length of the SetState call that is given it. */
struct FAgentStateData
{
	explicit FAgentStateData(const FString& InMessage)
		: Message(InMessage)
	{
	}
	virtual ~FAgentStateData() = default;

	FString Message;
};

/** For InitialRequest. */
struct FInitialRequestData : FAgentStateData
{
	using FAgentStateData::FAgentStateData;
};

/** For RegularRequest and Continue. */
struct FRegularRequestData : FAgentStateData
{
	using FAgentStateData::FAgentStateData;
};

/** For CancelRequest. */
struct FCancelRequestData : FAgentStateData
{
	using FAgentStateData::FAgentStateData;
};

/** For EndRequest. */
struct FEndRequestData : FAgentStateData
{
	using FAgentStateData::FAgentStateData;
};

DECLARE_MULTICAST_DELEGATE(FOnAgentStateChanged);

/**
 * The one object that knows where a conversation with the service stands: its state, its identifiers, the tool calls that wait
 * for the user and the results that wait to be sent. Game thread only; it moves only when somebody calls it.
 */
class KESTRIN_API FAgent
{
public:
	/** Built on first use, with the service client; lives as long as the process. */
	static FAgent& Get();
	~FAgent();
	UE_NONCOPYABLE(FAgent)

	/** Fired after each change of state. A state that passes on to another fires after that other one did. */
	FOnAgentStateChanged OnAgentStateChanged;

	EAgentState GetState() const { return State; }
	/**
	 * Stores the state, performs its entry action, then tells the listeners. Nothing at all when the state is there already.
	 * Re-entrant: entry actions and the tools that they run call it again.
	 */
	void SetState(EAgentState NewState, const FAgentStateData* Data = nullptr);

	/** A pause takes effect at the next answer of the service. */
	void SetPauseRequested(bool bRequested);
	bool IsPauseRequested() const { return bPauseRequested; }
	/** Whether tool calls run without waiting for the user; goes to the service as "was_confirmed". */
	void SetAutoContinue(bool bInAutoContinue) { bAutoContinue = bInAutoContinue; }
	bool GetAutoContinue() const { return bAutoContinue; }

	/** 32 hexadecimal digits; empty when no conversation runs. */
	const FString& GetConversationId() const { return ConversationId; }
	/** The conversation whose changes can be undone, and the one whose undone changes can be redone. They outlive it. */
	const FString& GetUndoConversationId() const { return UndoConversationId; }
	void SetUndoConversationId(const FString& Id) { UndoConversationId = Id; }
	const FString& GetRedoConversationId() const { return RedoConversationId; }
	void SetRedoConversationId(const FString& Id) { RedoConversationId = Id; }

	/** The "tool_use" blocks that wait for the user, in the order of the answer. */
	const TArray<TSharedPtr<FJsonObject>>& GetPendingTools() const { return PendingTools; }
	/** The "tool_result" objects not yet sent, in the order made. */
	TArray<TSharedPtr<FJsonValue>>& GetToolResults() { return ToolResults; }
	TArray<TSharedPtr<FJsonValue>>& GetConversationMessages() { return ConversationMessages; }
	void AddConversationMessage(TSharedPtr<FJsonValue> Message) { ConversationMessages.Add(MoveTemp(Message)); }
	void AddToolResult(TSharedPtr<FJsonValue> Result) { ToolResults.Add(MoveTemp(Result)); }
	void ClearToolResults() { ToolResults.Empty(); }

	/** Ends the conversation as cancelled; the text, when there is one, says why. */
	void RequestCancel(const FString& Message);
	/** Ends the conversation as the user wished. */
	void RequestEnd(const FString& Message);

	/** Works through a finished answer: {auto_continue, messages, response: [blocks]}. */
	void HandleServiceResponse(TSharedPtr<FJsonObject> Response);
	/** Runs a "tool_use" block {name, id, input} and adds its result {type, tool_use_id, content, is_error}. */
	void ExecuteTool(TSharedPtr<FJsonObject> Block);
	/** Adds the answer for a block that is not run because the user gave new input. */
	void AbortTool(TSharedPtr<FJsonObject> Block);
	/** Runs the tool of that name, ignoring case. @return its text; one that begins with "Error:" is a failure */
	FString RunTool(const FString& ToolName, const FString& ToolId, TSharedPtr<FJsonObject> Input);

	/**
	 * Compiles the project's C++. Its result {type, tool_use_id, content, is_error} joins the others when the compile has ended: before the
	 * call returns or later, and then it waits for the next request.
	 * @param Messages those that are objects go to the compiler's manager
	 */
	void StartCompilation(FString ToolId, const TArray<TSharedPtr<FJsonValue>>& Messages);

private:
	FAgent();

	using FToolHandler = FString (FAgent::*)(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	struct FTool;
	struct FToolTable;

	void EnterState(EAgentState NewState, const FString& Message);
	void EnterIdle();
	void StartConversation(const FString& Message);
	void ContinueConversation(const FString& Message);
	void EnterPassingState(const TCHAR* Headline, const FString& Message, const TCHAR* LineEnd);

	void RecordAnswer(const TArray<TSharedPtr<FJsonValue>>& Blocks);
	void HandleBlock(const TSharedPtr<FJsonObject>& Block);
	/** Whether tool calls run at once, as the mode and the conversation stand now. */
	bool RunsToolsAtOnce() const;
	void SendToolResults();
	EAgentState StateAfterAnswer() const;

	FString RunTool(const FTool& Tool, const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	void OnCompilationFinished(const TArray<TSharedPtr<FJsonObject>>& Messages, FString ToolId, FString Output, bool bSuccess);

	// The tools' handlers. The fields that a tool requires are there when its handler is called.
	FString HandleFinish(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleCompile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleCreateFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleCreateCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleCreateNewCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleUpdateAndReplaceCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleUpdateFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleInsertIntoFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleDeleteFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleDeleteCppFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleReadFile(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleGetFilesystemTree(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleExecutePythonScript(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleCreateBlueprint(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleReadBlueprint(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleModifyBlueprintVariables(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleReadBehaviorTree(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleSaveAndCompileAllDirtyBlueprints(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);
	FString HandleFindReferenceInAllFiles(const FString& ToolId, const TSharedPtr<FJsonObject>& Input);

	/** Replaces the text of a file that is there, with its record and its diff. */
	FString ReplaceRecordedFile(const FString& Path, const FString& Contents);
	/** Makes a new file, with its record and its diff. */
	FString CreateRecordedFile(const FString& Path, const FString& Contents);

	EAgentState State = EAgentState::None;
	FString ConversationId;
	FString UndoConversationId;
	FString RedoConversationId;
	TArray<TSharedPtr<FJsonObject>> PendingTools;
	TArray<TSharedPtr<FJsonValue>> ConversationMessages;
	TArray<TSharedPtr<FJsonValue>> ToolResults;
	TSharedPtr<FJsonObject> LastResponse;
	FDelegateHandle CompilationFinishedHandle;
	bool bPauseRequested = false;
	bool bAutoContinue = false;
};
