#include "HeadlessFace.h"

#include "Agent/Agent.h"
#include "Agent/KestrinInterface.h"
#include "CoreHost/MainLoop.h"
#include "HeadlessCommands.h"
#include "HeadlessEvents.h"
#include "LineReader.h"

FHeadlessFace::FHeadlessFace()
{
	FKestrinInterface& Interface = FKestrinInterface::Get();
	Interface.OnAddStatusMessageDelegate.BindLambda(
		[](FString Text, FLinearColor Color, FName FontName, float FontSize) { WriteStatusEvent(Text, Color, FontName, FontSize); });
	Interface.OnAddDiffMessageDelegate.BindLambda(
		[](FString Path, FString OldContent, FString NewContent) { WriteDiffEvent(Path, OldContent, NewContent); });
	StateHandle = FAgent::Get().OnAgentStateChanged.AddStatic(&WriteStateEvent);
}

FHeadlessFace::~FHeadlessFace()
{
	FKestrinInterface::Get().OnAddStatusMessageDelegate.Unbind();
	FKestrinInterface::Get().OnAddDiffMessageDelegate.Unbind();
	FAgent::Get().OnAgentStateChanged.Remove(StateHandle);
}

int32 FHeadlessFace::Run(const FFaceOptions& Options)
{
	WriteReadyEvent(Options);
	FLineReader Input;
	bool bQuit = false;
	while (!bQuit && !Input.HasEnded() && !IsEngineExitRequested())
	{
		FMainLoop::Tick();
		FString Line;
		while (!bQuit && Input.Take(Line))
		{
			bQuit = RunHeadlessCommand(Line) == EHeadlessCommand::Quit;
		}
		if (!bQuit && !Input.HasEnded())
		{
			FMainLoop::Wait();
		}
	}
	return 0;
}
