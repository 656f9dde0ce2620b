#include "EditorFaces.h"

#include "CallFace.h"
#include "HeadlessFace.h"
#include "JsonLine.h"
#include "Modules/ModuleManager.h"
#include "TerminalFace.h"

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
			// Kept until the module goes, so that what the plug-in says when it is shut down is heard as well.
			Headless = MakeUnique<FHeadlessFace>();
			return Headless->Run(Options);
		case EEditorFace::Call: return RunToolCalls(Options.Calls);
		case EEditorFace::Terminal: return FTerminalFace().Run();
		}
		return 1;
	}

private:
	TUniquePtr<FHeadlessFace> Headless;
};
}

IMPLEMENT_MODULE(FEditorFacesModule, EditorFaces)
