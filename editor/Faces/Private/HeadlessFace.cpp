#include "HeadlessFace.h"

#include "Agent/Agent.h"
#include "CoreHost/MainLoop.h"
#include "HeadlessCommands.h"
#include "HeadlessEvents.h"
#include "LineReader.h"

FHeadlessFace::FHeadlessFace()
{
	HearChat();
	StateHandle = FAgent::Get().OnAgentStateChanged.AddStatic(&WriteStateEvent);
}

FHeadlessFace::~FHeadlessFace()
{
	FKestrinInterface::Get().OnAddStatusMessageDelegate.Unbind();
	FKestrinInterface::Get().OnAddDiffMessageDelegate.Unbind();
	FAgent::Get().OnAgentStateChanged.Remove(StateHandle);
}

void FHeadlessFace::HearChat()
{
	FKestrinInterface& Interface = FKestrinInterface::Get();
	if (!Interface.OnAddStatusMessageDelegate.IsBoundToObject(this))
	{
		PanelStatus = Interface.OnAddStatusMessageDelegate;
		Interface.OnAddStatusMessageDelegate.BindRaw(this, &FHeadlessFace::OnStatus);
	}
	if (!Interface.OnAddDiffMessageDelegate.IsBoundToObject(this))
	{
		PanelDiff = Interface.OnAddDiffMessageDelegate;
		Interface.OnAddDiffMessageDelegate.BindRaw(this, &FHeadlessFace::OnDiff);
	}
}

void FHeadlessFace::OnStatus(FString Text, FLinearColor Color, FName FontName, float FontSize)
{
	WriteStatusEvent(Text, Color, FontName, FontSize);
	PanelStatus.ExecuteIfBound(Text, Color, FontName, FontSize);
}

void FHeadlessFace::OnDiff(FString Path, FString OldContent, FString NewContent)
{
	WriteDiffEvent(Path, OldContent, NewContent);
	PanelDiff.ExecuteIfBound(Path, OldContent, NewContent);
}

int32 FHeadlessFace::Run(const FFaceOptions& Options)
{
	WriteReadyEvent(Options);
	FLineReader Input;
	bool bQuit = false;
	while (!bQuit && !Input.HasEnded() && !IsEngineExitRequested())
	{
		FMainLoop::Tick();
		// In a window the panel may be opened at any time.
		HearChat();
		FString Line;
		while (!bQuit && Input.Take(Line))
		{
			bQuit = RunHeadlessCommand(Line) == EHeadlessCommand::Quit;
			HearChat();
		}
		if (!bQuit && !Input.HasEnded())
		{
			FMainLoop::Wait();
		}
	}
	return 0;
}
