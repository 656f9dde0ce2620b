#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

class FSlateStyleSet;

/** The plug-in's style set, with its icon in two sizes. Its life is also that of the interface. Game thread. */
class FKestrinStyle
{
public:
	/** Also valid while there is no style set. */
	static FName GetStyleSetName();
	/** Makes the style set when the plug-in's folder is known, and initializes the interface in any case. */
	static void Initialize();
	/** Shuts the interface down, then drops the style set. */
	static void Shutdown();
	static void ReloadTextures();

private:
	static TSharedPtr<FSlateStyleSet> StyleInstance;
};

class FKestrinCommands : public TCommands<FKestrinCommands>
{
public:
	FKestrinCommands();
	virtual void RegisterCommands() override;

	TSharedPtr<FUICommandInfo> OpenPluginWindow;
};
