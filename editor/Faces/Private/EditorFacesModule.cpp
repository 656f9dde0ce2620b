#include "EditorFaces.h"

#include "CallFace.h"
#include "HeadlessFace.h"
#include "JsonLine.h"
#include "Modules/ModuleManager.h"
#include "TerminalFace.h"
#include "WindowFace.h"

namespace
{
class FEditorFacesModule final : public IEditorFaces
{
public:
	int32 Run(const FFaceOptions& Options) override
	{
		if (Options.Face != EEditorFace::Terminal)
		{
			TakeStandardOutput();
		}
		switch (Options.Face)
		{
		case EEditorFace::Headless:
		{
			const int32 ExitCode = RunHeadless(Options);
			return Options.Screenshot.IsEmpty() ? ExitCode : SavePanelPicture(Options.Screenshot);
		}
		case EEditorFace::Call: return RunToolCalls(Options.Calls);
		case EEditorFace::Terminal: return FTerminalFace().Run();
		case EEditorFace::Window:
			return Options.Screenshot.IsEmpty() ? RunInWindow(&RunUntilExit, FString())
												: RunInWindow([&] { return RunHeadless(Options); }, Options.Screenshot);
		}
		return 1;
	}

private:
	int32 RunHeadless(const FFaceOptions& Options)
	{
		// Kept until the module goes, so that what the plug-in says when it is shut down is heard as well.
		Headless = MakeUnique<FHeadlessFace>();
		return Headless->Run(Options);
	}

	TUniquePtr<FHeadlessFace> Headless;
};
}

IMPLEMENT_MODULE(FEditorFacesModule, EditorFaces)
