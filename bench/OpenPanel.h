#pragma once

#include "Agent/KestrinInterface.h"
#include "CoreHost/Project.h"
#include "Framework/Docking/TabManager.h"
#include "Modules/ModuleManager.h"

#include <cstdlib>
#include <filesystem>

/** A project of its own with the chat panel open in it. */
class FOpenPanel
{
public:
	FOpenPanel()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "kestrin-bench-XXXXXX").string();
		Folder = mkdtemp(Pattern.data());
		FHostProject::Set(FUtf8::Decode((Folder / "Game.uproject").string()));
		FModuleManager::Get().AddBinariesDirectory(TEXT("" PLUGIN_BINARIES));
		FModuleManager::Get().LoadModule("Kestrin");
		Content = FGlobalTabmanager::Get()->TryInvokeTab(FName("Kestrin"))->GetContent();
	}
	~FOpenPanel()
	{
		Content.Reset();
		FGlobalTabmanager::Get()->CloseAllTabs();
		FModuleManager::Get().UnloadModule("Kestrin");
		std::filesystem::remove_all(Folder);
	}
	UE_NONCOPYABLE(FOpenPanel)

	TSharedRef<SWidget> GetContent() const { return Content.ToSharedRef(); }

private:
	std::filesystem::path Folder;
	TSharedPtr<SWidget> Content;
};

/** A block of the chat. */
inline void Say(const FString& Text)
{
	FKestrinInterface::Get().OnAddStatusMessage(Text, FKestrinInterface::KestrinColor, FKestrinInterface::BoldFontName, 10.0f);
}

/** Two texts of so many lines, of which every fiftieth differs. */
struct FChangedFile
{
	explicit FChangedFile(int64_t Lines)
	{
		for (int64_t Index = 0; Index < Lines; ++Index)
		{
			const FString Line = FString::Printf(TEXT("\tconst float Lantern%d = Oil;\n"), static_cast<int32>(Index));
			Old += Line;
			New += Index % 50 == 0 ? FString(TEXT("\tchanged\n")) : Line;
		}
	}

	FString Old;
	FString New;
};
