#include "HAL/FileManager.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "ProjectsHost/Plugins.h"

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

namespace
{
class FPlugin final : public IPlugin
{
public:
	FPlugin(const FString& InFileName, const FPluginDescriptor& InDescriptor)
		: Name(FPaths::GetBaseFilename(InFileName))
		, FileName(InFileName)
		, Descriptor(InDescriptor)
	{
	}

	const FString& GetName() const override { return Name; }
	const FString& GetDescriptorFileName() const override { return FileName; }
	FString GetBaseDir() const override { return FPaths::GetPath(FileName); }
	const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

private:
	const FString Name;
	const FString FileName;
	const FPluginDescriptor Descriptor;
};

/** Of several in one folder the first by name; empty for a folder that is no plug-in's. */
FString FindDescriptorFile(const FString& Folder)
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *FPaths::Combine(Folder, TEXT("*.uplugin")), true, false);
	return Names.IsEmpty() ? FString() : FPaths::Combine(Folder, Names[0]);
}

void FindPluginFolders(const FString& Folder, int32 DepthLeft, TArray<FString>& OutFolders)
{
	if (!FindDescriptorFile(Folder).IsEmpty())
	{
		OutFolders.Add(Folder);
		return;
	}
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *FPaths::Combine(Folder, TEXT("*")), false, true);
	for (const FString& Name : Names)
	{
		if (DepthLeft > 0)
		{
			FindPluginFolders(FPaths::Combine(Folder, Name), DepthLeft - 1, OutFolders);
		}
	}
}

TSharedPtr<IPlugin> LoadPlugin(const FString& Folder, FText& OutFailReason)
{
	const FString FileName = FindDescriptorFile(Folder);
	if (FileName.IsEmpty())
	{
		OutFailReason = FText::FromString(Folder + TEXT(": the folder has no .uplugin file"));
		return nullptr;
	}
	FPluginDescriptor Descriptor;
	return Descriptor.Load(FileName, &OutFailReason) ? MakeShared<FPlugin>(FileName, Descriptor).ToSharedPtr() : nullptr;
}

class FPluginManager final : public IPluginManager
{
public:
	void RefreshPluginsList() override
	{
		bListed = true;
		ProjectPlugins.Empty();
		if (!FPaths::IsProjectFilePathSet())
		{
			return;
		}
		for (const FString& Folder : FHostPlugins::FindFolders(FPaths::ProjectPluginsDir()))
		{
			FText FailReason;
			if (const TSharedPtr<IPlugin> Plugin = LoadPlugin(Folder, FailReason))
			{
				ProjectPlugins.Add(Plugin.ToSharedRef());
			}
			else
			{
				UE_LOG(LogPluginManager, Error, TEXT("A plug-in is left out. %s"), *FailReason.ToString());
			}
		}
	}

	TSharedPtr<IPlugin> FindPlugin(const FString& Name) override
	{
		for (const TSharedRef<IPlugin>& Plugin : GetDiscoveredPlugins())
		{
			if (Plugin->GetName() == Name)
			{
				return Plugin;
			}
		}
		return nullptr;
	}

	TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override
	{
		if (!bListed)
		{
			RefreshPluginsList();
		}
		TArray<TSharedRef<IPlugin>> Plugins = AddedPlugins;
		Plugins.Append(ProjectPlugins);
		return Plugins;
	}

	TSharedPtr<IPlugin> Add(const FString& Folder, FText& OutFailReason)
	{
		const TSharedPtr<IPlugin> Plugin = LoadPlugin(FPaths::ConvertRelativePathToFull(Folder), OutFailReason);
		if (Plugin.IsValid())
		{
			AddedPlugins.Insert(Plugin.ToSharedRef(), 0);
		}
		return Plugin;
	}

private:
	bool bListed = false;
	TArray<TSharedRef<IPlugin>> AddedPlugins;
	TArray<TSharedRef<IPlugin>> ProjectPlugins;
};

FPluginManager& GetManager()
{
	static FPluginManager Manager;
	return Manager;
}
}

IPluginManager& IPluginManager::Get()
{
	return GetManager();
}

TArray<FString> FHostPlugins::FindFolders(const FString& Root)
{
	// Deeper than anybody nests plug-ins, so that links in a circle come to an end.
	static constexpr int32 MaxDepth = 8;
	FString Start = FPaths::ConvertRelativePathToFull(Root);
	FPaths::NormalizeDirectoryName(Start);
	TArray<FString> Folders;
	FindPluginFolders(Start, MaxDepth, Folders);
	return Folders;
}

TSharedPtr<IPlugin> FHostPlugins::Add(const FString& Folder, FText& OutFailReason)
{
	return GetManager().Add(Folder, OutFailReason);
}
