#include "TerminalFace.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "ChatLook.h"
#include "CoreHost/MainLoop.h"
#include "LineReader.h"
#include "TerminalCommands.h"

#include <csignal>
#include <unistd.h>

namespace
{
/** Counted by the signal's handler, looked at once a frame. */
volatile std::sig_atomic_t Interrupts = 0;

void CountInterrupt(int)
{
	Interrupts = Interrupts + 1;
}
}

FTerminalFace::FTerminalFace()
	: bInteractive(isatty(STDIN_FILENO))
{
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.OnAddStatusMessageDelegate.BindLambda(
		[this](FString Text, FLinearColor, FName FontName, float)
		{
		bPromptShown = false;
		bCommandOnItsWay |= Text == TEXT("Sending request...");
		Style.PrintLine(Text, GetChatLook(FontName));
	});
	Interface.OnAddDiffMessageDelegate.BindLambda(
		[this](FString Path, FString OldContent, FString NewContent)
		{
		bPromptShown = false;
		Style.PrintDiff(Path, OldContent, NewContent);
	});
	StateHandle = FAgent::Get().OnAgentStateChanged.AddLambda(
		[this]
		{
		const EAgentState State = FAgent::Get().GetState();
		bCommandOnItsWay &= State != EAgentState::PollRequest && State != EAgentState::Idle;
	});
	std::signal(SIGINT, &CountInterrupt);
}

FTerminalFace::~FTerminalFace()
{
	std::signal(SIGINT, SIG_DFL);
	FAgent::Get().OnAgentStateChanged.Remove(StateHandle);
	FKestrinInterface::Get().OnAddStatusMessageDelegate.Unbind();
	FKestrinInterface::Get().OnAddDiffMessageDelegate.Unbind();
}

int32 FTerminalFace::Run()
{
	if (bInteractive)
	{
		Style.PrintNote(TEXT("Type what you want done; /help lists the commands."));
	}
	FLineReader Input;
	while (!bQuit && !IsEngineExitRequested())
	{
		FMainLoop::Tick();
		HandleInterrupt();
		TakeLines(Input);
		if (Input.HasEnded() && !bHasNextLine && (bInteractive || IsUsersTurn()))
		{
			break;
		}
		ShowPrompt();
		FMainLoop::Wait();
	}
	return 0;
}

void FTerminalFace::TakeLines(FLineReader& Input)
{
	while (!bQuit)
	{
		bHasNextLine = bHasNextLine || Input.Take(NextLine);
		if (!bHasNextLine || !IsLineDue(NextLine))
		{
			return;
		}
		bHasNextLine = false;
		bPromptShown = false;
		bQuit = RunTerminalLine(NextLine.TrimStartAndEnd(), Style) == ETerminalCommand::Quit;
	}
}

bool FTerminalFace::IsUsersTurn() const
{
	// The agent is in AwaitingUpdate already while the result of a "finish" is still being sent.
	return WaitsForUser() && !bCommandOnItsWay;
}

bool FTerminalFace::IsLineDue(const FString& Line) const
{
	return bInteractive || IsUsersTurn() || IsForRunningRequest(Line.TrimStartAndEnd());
}

void FTerminalFace::HandleInterrupt()
{
	if (Interrupts == 0)
	{
		return;
	}
	const bool bTwice = Interrupts > 1 || FAgent::Get().IsPauseRequested();
	Interrupts = 0;
	if (FAgent::Get().GetState() == EAgentState::Idle)
	{
		bQuit = true;
	}
	else if (bTwice || IsUsersTurn())
	{
		FKestrinInterface::Get().EndRequest(FString());
	}
	else
	{
		FKestrinInterface::Get().PauseRequest();
	}
}

void FTerminalFace::ShowPrompt()
{
	if (bInteractive && !bPromptShown && IsUsersTurn())
	{
		bPromptShown = true;
		Style.PrintPrompt(TEXT("> "));
	}
}
