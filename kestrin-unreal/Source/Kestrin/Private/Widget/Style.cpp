#include "Style.h"

#include "Agent/KestrinInterface.h"
#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

#define LOCTEXT_NAMESPACE "FKestrinModule"

TSharedPtr<FSlateStyleSet> FKestrinStyle::StyleInstance;

namespace
{
TSharedRef<FSlateStyleSet> MakeStyleSet(const FString& PluginFolder)
{
	const TSharedRef<FSlateStyleSet> Style = MakeShared<FSlateStyleSet>(FKestrinStyle::GetStyleSetName());
	Style->SetContentRoot(FPaths::Combine(PluginFolder, TEXT("Resources")));
	const FString Icon = Style->RootToContentDir(TEXT("PlaceholderButtonIcon"), TEXT(".svg"));
	Style->Set("Kestrin.Icon", new FSlateVectorImageBrush(Icon, FVector2D(16.0, 16.0)));
	Style->Set("Kestrin.Icon.Large", new FSlateVectorImageBrush(Icon, FVector2D(40.0, 40.0)));
	return Style;
}
}

FName FKestrinStyle::GetStyleSetName()
{
	static const FName StyleSetName(TEXT("KestrinStyle"));
	return StyleSetName;
}

void FKestrinStyle::Initialize()
{
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("Kestrin"));
	if (Plugin.IsValid() && !StyleInstance.IsValid())
	{
		StyleInstance = MakeStyleSet(Plugin->GetBaseDir());
		FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
	}
	ReloadTextures();
	FKestrinInterface::Get().Initialize();
}

void FKestrinStyle::Shutdown()
{
	FKestrinInterface::Get().Shutdown();
	if (StyleInstance.IsValid())
	{
		FSlateStyleRegistry::UnRegisterSlateStyle(*StyleInstance);
		ensure(StyleInstance.IsUnique());
		StyleInstance.Reset();
	}
}

void FKestrinStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

FKestrinCommands::FKestrinCommands()
	: TCommands<FKestrinCommands>(
		  TEXT("Kestrin"), NSLOCTEXT("Contexts", "Kestrin", "Kestrin Plugin"), NAME_None, FKestrinStyle::GetStyleSetName())
{
}

void FKestrinCommands::RegisterCommands()
{
	UI_COMMAND(OpenPluginWindow, "Kestrin", "Bring up Kestrin window", EUserInterfaceActionType::Button, FInputChord());
}

#undef LOCTEXT_NAMESPACE
