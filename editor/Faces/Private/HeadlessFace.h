#pragma once

#include "EditorFaces.h"

/**
 * Commands in, events out, one JSON object a line each. Commands run in order; the main loop runs between them and while one waits.
 * From its making to its end it hears what the plug-in says.
 */
class FHeadlessFace
{
public:
	FHeadlessFace();
	~FHeadlessFace();
	UE_NONCOPYABLE(FHeadlessFace)

	int32 Run(const FFaceOptions& Options);

private:
	FDelegateHandle StateHandle;
};
