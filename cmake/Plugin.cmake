# The plug-in as built with the editor: a plug-in folder beside the programs. The plug-in's own folder holds nothing of this build.
set(PluginSource ${CMAKE_SOURCE_DIR}/kestrin-unreal)
set(PluginFolder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Plugins/kestrin-unreal)

kestrin_module(Kestrin HIDDEN
	ROOT ${PluginSource}/Source/Kestrin
	OUTPUT_DIRECTORY ${PluginFolder}/Binaries/Linux
	DEPENDS Core CoreUObject Json Engine
	LIBRARIES AIModule AssetRegistry AssetTools BlueprintGraph HotReload HTTP InputCore LiveCoding Projects PythonScriptPlugin Settings Slate
		SlateCore SourceControl ToolMenus UnrealEd)

configure_file(${PluginSource}/Kestrin.uplugin ${PluginFolder}/Kestrin.uplugin COPYONLY)
configure_file(${PluginSource}/Resources/PlaceholderButtonIcon.svg ${PluginFolder}/Resources/PlaceholderButtonIcon.svg COPYONLY)
