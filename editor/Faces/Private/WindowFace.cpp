#include "WindowFace.h"

#include "CoreHost/MainLoop.h"
#include "EditorWindow.h"
#include "HeadlessEvents.h"
#include "Modules/ModuleManager.h"
#include "PanelCommands.h"
#include "Widgets/Docking/SDockTab.h"

#include <csignal>
#include <cstdio>

namespace
{
volatile std::sig_atomic_t bInterrupted = 0;

/** The window closes as its user would close it; a second signal ends the program at once. */
void NoteInterrupt(int Signal)
{
	bInterrupted = 1;
	std::signal(Signal, SIG_DFL);
}

int32 Fail(const FText& Error, int32 ExitCode)
{
	std::fprintf(stderr, "kestrin-editor: %s\n", TCHAR_TO_UTF8(*Error.ToString()));
	return ExitCode;
}

/** Null, with a message on standard error, when it does not load. */
IEditorWindow* LoadEditorWindow()
{
	IEditorWindow* const Window = FModuleManager::LoadModulePtr<IEditorWindow>("EditorWindow");
	if (!Window)
	{
		Fail(FText::FromString(TEXT("the editor's window does not load; the log says why")), 2);
	}
	return Window;
}
}

int32 RunUntilExit()
{
	std::signal(SIGINT, &NoteInterrupt);
	std::signal(SIGTERM, &NoteInterrupt);
	while (!IsEngineExitRequested() && !bInterrupted)
	{
		FMainLoop::Tick();
		FMainLoop::Wait();
	}
	return 0;
}

int32 RunInWindow(TFunctionRef<int32()> Loop, const FString& Screenshot)
{
	IEditorWindow* const Window = LoadEditorWindow();
	FText Error;
	if (!Window || !Window->Open(Error))
	{
		return Window ? Fail(Error, 2) : 2;
	}
	int32 ExitCode = Loop();
	if (!Screenshot.IsEmpty() && !Window->SaveWindowPicture(Screenshot, Error))
	{
		ExitCode = Fail(Error, 1);
	}
	Window->Close();
	return ExitCode;
}

int32 SavePanelPicture(const FString& File)
{
	const TSharedPtr<SDockTab> Panel = FindPanel();
	if (!Panel.IsValid())
	{
		WriteErrorEvent(TEXT("The panel is not open: there is nothing to take a picture of."));
		return 1;
	}
	IEditorWindow* const Window = LoadEditorWindow();
	FText Error;
	if (!Window || !Window->SavePicture(Panel->GetContent(), File, Error))
	{
		return Window ? Fail(Error, 1) : 2;
	}
	return 0;
}
