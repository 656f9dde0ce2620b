#pragma once

// Projects: what the descriptor files of projects and plug-ins say, and which plug-ins there are.
//
// It leaves out switching plug-ins on and off, their dependencies and content, and the platforms that a module is for.

#include "PluginDescriptor.h"

/** A plug-in that was found. */
class IPlugin
{
public:
	virtual ~IPlugin() = default;

	/** The descriptor file's name without extension. */
	virtual const FString& GetName() const = 0;
	virtual const FString& GetDescriptorFileName() const = 0;
	/** The folder that the descriptor file lies in, absolute, without "/" at the end. */
	virtual FString GetBaseDir() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
	FString GetFriendlyName() const { return GetDescriptor().FriendlyName.IsEmpty() ? GetName() : GetDescriptor().FriendlyName; }
};

/**
 * The plug-ins of the project: folders with a .uplugin file at any depth below <Project>/Plugins, but not inside each other. The host
 * may add others; of two plug-ins with one name, its come first. A descriptor that can't be read is logged and left out. Game thread.
 */
class PROJECTS_API IPluginManager
{
public:
	static IPluginManager& Get();
	virtual ~IPluginManager() = default;

	/** Looks the project's folders through again; the first question does it by itself. */
	virtual void RefreshPluginsList() = 0;
	/** Null when there is none of that name, ignoring case. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;
};
