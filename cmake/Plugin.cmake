# The plug-in as built with the editor: a plug-in folder beside the programs. The plug-in's own folder holds nothing of this build.
set(PluginSource ${CMAKE_SOURCE_DIR}/kestrin-unreal)
set(PluginFolder ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Plugins/kestrin-unreal)

kestrin_module(Kestrin HIDDEN
	ROOT ${PluginSource}/Source/Kestrin
	OUTPUT_DIRECTORY ${PluginFolder}/Binaries/Linux
	DEPENDS Core CoreUObject Json Engine
	LIBRARIES AIModule AssetRegistry AssetTools BlueprintGraph HotReload HTTP LiveCoding PythonScriptPlugin Settings SourceControl UnrealEd)

configure_file(${PluginSource}/Kestrin.uplugin ${PluginFolder}/Kestrin.uplugin COPYONLY)
