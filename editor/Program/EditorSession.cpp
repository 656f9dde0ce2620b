#include "EditorSession.h"

#include "CoreHost/Clock.h"
#include "CoreHost/LogDevice.h"
#include "CoreHost/Project.h"
#include "Framework/Docking/TabManager.h"
#include "HAL/FileManager.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ProjectDescriptor.h"
#include "ProjectsHost/Plugins.h"

#include <filesystem>

DEFINE_LOG_CATEGORY_STATIC(LogEditor, Log, All);

namespace
{
const TCHAR* const PluginName = TEXT("Kestrin");

FString GetBinariesDirectory(const FString& Folder)
{
	return FPaths::Combine(Folder, TEXT("Binaries"), TEXT("Linux"));
}

FString GetDescriptorFile(const FString& PluginFolder)
{
	return FPaths::Combine(PluginFolder, FString(PluginName) + TEXT(".uplugin"));
}

/** Whether a folder holds the plug-in, built for this editor. */
bool HoldsBuiltPlugin(const FString& Folder)
{
	if (!FPaths::FileExists(GetDescriptorFile(Folder)))
	{
		return false;
	}
	const FString Library = FPaths::Combine(GetBinariesDirectory(Folder), TEXT("lib" KESTRIN_MODULE_PREFIX "Kestrin.so"));
	if (!FPaths::FileExists(Library))
	{
		UE_LOG(LogEditor, Warning, TEXT("The plug-in in %s is not built for this editor; the editor's own copy is used."), *Folder);
		return false;
	}
	return true;
}

/** The folder that this program lies in. */
FString GetProgramFolder()
{
	return FUtf8::Decode(std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
}

/** The project's copy of the plug-in, else the one built with the editor. */
FString ChoosePluginFolder()
{
	for (const FString& Folder : FHostPlugins::FindFolders(FPaths::ProjectPluginsDir().LeftChop(1)))
	{
		if (HoldsBuiltPlugin(Folder))
		{
			return Folder;
		}
	}
	return FPaths::Combine(GetProgramFolder(), TEXT("Plugins"), TEXT("kestrin-unreal"));
}

/** Loads what a descriptor names from its folder's binaries. @return whether all of it is there */
bool LoadModules(const FString& Folder, const TArray<FModuleDescriptor>& Modules, bool bGame)
{
	FModuleManager::Get().AddBinariesDirectory(*GetBinariesDirectory(Folder), bGame);
	bool bAll = true;
	for (const FModuleDescriptor& Module : Modules)
	{
		bAll &= FModuleManager::Get().LoadModule(Module.Name) != nullptr;
	}
	return bAll;
}

/** What is there in every project. */
void LoadEngine()
{
	for (const TCHAR* const Module : { TEXT("Settings"), TEXT("Engine"), TEXT("BlueprintGraph"), TEXT("AIModule"), TEXT("UnrealEd"),
			 TEXT("AssetRegistry"), TEXT("AssetTools"), TEXT("EditorScriptingUtilities"), TEXT("PythonScriptPlugin") })
	{
		FModuleManager::Get().LoadModule(Module);
	}
}

bool OpenProject(const FString& ProjectFile, FText& OutError)
{
	FProjectDescriptor Descriptor;
	if (!Descriptor.Load(ProjectFile, OutError))
	{
		return false;
	}
	FHostProject::Set(ProjectFile);
	// The editor's log may go elsewhere; others put theirs where it would be.
	IFileManager::Get().MakeDirectory(*FPaths::ProjectLogDir(), true);
	if (!LoadModules(FPaths::ProjectDir().LeftChop(1), Descriptor.Modules, true))
	{
		UE_LOG(LogEditor, Warning, TEXT("The project's own modules are not all built for this editor; their classes are not there."));
	}
	return true;
}

bool LoadPlugin(const FString& Folder, FText& OutError)
{
	const TSharedPtr<IPlugin> Plugin = FHostPlugins::Add(Folder, OutError);
	if (!Plugin.IsValid())
	{
		return false;
	}
	if (!LoadModules(Folder, Plugin->GetDescriptor().Modules, false))
	{
		OutError = FText::FromString(FString::Printf(TEXT("%s: the plug-in does not load; the log says why"), *Folder));
		return false;
	}
	return true;
}

int32 Fail(const FText& Error)
{
	std::fprintf(stderr, "kestrin-editor: %s\n", TCHAR_TO_UTF8(*Error.ToString()));
	return 2;
}
}

int32 RunEditor(FProgramOptions Options)
{
	const FLogDevice Log = Options.LogFile.IsEmpty() ? FLogDevice() : FLogDevice(Options.LogFile);
	if (!Log.IsOpen())
	{
		return Fail(FText::FromString(FString::Printf(TEXT("%s: the log can't be written"), *Options.LogFile)));
	}
	FHostClock::SetRate(Options.ClockRate);
	// The window's log shows from the start on what the window comes too late for.
	GLog->EnableBacklog(Options.Face.Face == EEditorFace::Window);

	FText Error;
	LoadEngine();
	if (!OpenProject(Options.Project, Error))
	{
		return Fail(Error);
	}
	const FString PluginFolder = Options.PluginFolder.IsEmpty() ? ChoosePluginFolder() : Options.PluginFolder;
	if (!LoadPlugin(PluginFolder, Error))
	{
		return Fail(Error);
	}
	IEditorFaces* const Faces = FModuleManager::LoadModulePtr<IEditorFaces>("EditorFaces");
	if (!Faces)
	{
		return Fail(FText::FromString(TEXT("the editor's faces do not load; the log says why")));
	}
	Options.Face.Project = Options.Project;
	Options.Face.PluginFolder = PluginFolder;
	const int32 ExitCode = Faces->Run(Options.Face);

	// The plug-in goes first: what it still has to say is heard by the face.
	FModuleManager::Get().UnloadModule(PluginName);
	FGlobalTabmanager::Get()->CloseAllTabs();
	FModuleManager::Get().UnloadModulesAtShutdown();
	return ExitCode;
}
