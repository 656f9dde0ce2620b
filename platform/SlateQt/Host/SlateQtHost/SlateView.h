#pragma once

// SlateQt: shows trees of Slate widgets in Qt. The tree is the truth: it is asked in every frame of the main loop what it is like now, and
// what the user does goes to its widgets as events. Only what can be seen has a native widget, so that thousands of children cost little.
//
// It leaves out what no widget of this Slate has: images in borders, animations, drag and drop.

#include "Rendering/SlateRenderer.h"
#include "SlateQtHost/Qt.h"
#include "Textures/SlateIcon.h"

class SWidget;

/**
 * Qt's application, whose events are handled in each frame of the main loop, so that both go on whoever waits for what; and the Slate
 * application that draws with it. No Qt dialog may run a loop of its own (exec). One at a time, made before all Qt widgets.
 */
class SLATEQT_API FQtApplication
{
public:
	FQtApplication();
	~FQtApplication();
	UE_NONCOPYABLE(FQtApplication)

private:
	struct FState;
	TUniquePtr<FState> State;
};

/**
 * Shows the tree, and keeps it. The keyboard focus goes to the first text that can be edited when the view gets it.
 * @param Parent may be null
 */
SLATEQT_API QWidget* MakeSlateView(const TSharedRef<SWidget>& Root, QWidget* Parent);

/** In any size; empty when there is no such icon. */
SLATEQT_API QIcon MakeQtIcon(const FSlateIcon& Icon);
