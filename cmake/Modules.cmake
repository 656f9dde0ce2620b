# One module: its folder's Public/ is what others include, Private/ is how, Host/ what the editor and the tests may use.
#
#   kestrin_module(Json DEPENDS Core LIBRARIES Some::Library)
#
# DEPENDS names modules whose headers the module's own headers use; LIBRARIES (modules or others) are private. Headers with
# reflection macros go through the header tool, whose output joins the module. HIDDEN exports only what says so.
# ROOT: the module's folder, when it is not the one of the calling file. OUTPUT_DIRECTORY: where the library goes.
set(KESTRIN_MODULE_PREFIX KestrinEditor-)

function(kestrin_module Name)
	cmake_parse_arguments(Arg "HIDDEN" "ROOT;OUTPUT_DIRECTORY" "DEPENDS;LIBRARIES" ${ARGN})
	string(TOUPPER ${Name} Upper)
	set(Root ${CMAKE_CURRENT_SOURCE_DIR})
	if(Arg_ROOT)
		set(Root ${Arg_ROOT})
	endif()
	file(GLOB_RECURSE Sources CONFIGURE_DEPENDS ${Root}/Private/*.cpp ${Root}/Host/*.cpp)
	file(GLOB_RECURSE Headers CONFIGURE_DEPENDS ${Root}/Public/*.h ${Root}/Private/*.h)

	add_library(${Name} SHARED ${Sources})
	set_target_properties(${Name} PROPERTIES OUTPUT_NAME ${KESTRIN_MODULE_PREFIX}${Name})
	if(Arg_OUTPUT_DIRECTORY)
		set_target_properties(${Name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${Arg_OUTPUT_DIRECTORY})
	endif()
	if(Arg_HIDDEN)
		set_target_properties(${Name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
	endif()
	target_include_directories(${Name} PUBLIC ${Root}/Public PRIVATE ${Root}/Private)
	if(EXISTS ${Root}/Host)
		# Host/ headers are reached as "<Module>Host/Name.h" through this target alone, so that a module's users do not see them.
		add_library(${Name}Host INTERFACE)
		target_include_directories(${Name}Host INTERFACE ${Root}/Host)
		target_link_libraries(${Name}Host INTERFACE ${Name})
		target_include_directories(${Name} PRIVATE ${Root}/Host)
	endif()
	target_compile_definitions(${Name} PUBLIC ${Upper}_API=DLLEXPORT PRIVATE UE_MODULE_NAME="${Name}")
	target_link_libraries(${Name} PUBLIC ${Arg_DEPENDS} PRIVATE KestrinFlags ${Arg_LIBRARIES})
	target_link_options(${Name} PRIVATE -Wl,--no-undefined)
	if(KESTRIN_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES Clang)
		# Clang's sanitizer runtime is linked into programs alone; its symbols are undefined in shared libraries.
		target_link_options(${Name} PRIVATE -Wl,-z,undefs)
	endif()
	target_precompile_headers(${Name} PRIVATE <CoreMinimal.h>)
	# A precompiled header from the cache of another checkout holds other time stamps, with which "#pragma once" fails.
	set_target_properties(${Name} PROPERTIES CXX_COMPILER_LAUNCHER "")
	kestrin_reflect(${Name} ${Root} ${Headers})
endfunction()

# Runs the header tool over those headers that include their own .generated.h.
function(kestrin_reflect Name Root)
	set(Reflected)
	foreach(Header ${ARGN})
		file(STRINGS ${Header} Hit REGEX "\\.generated\\.h\"" LIMIT_COUNT 1)
		if(Hit)
			list(APPEND Reflected ${Header})
		endif()
	endforeach()
	if(NOT Reflected)
		return()
	endif()
	set(Out ${CMAKE_CURRENT_BINARY_DIR}/Inc/${Name})
	set(Generated ${Out}/${Name}.gen.cpp)
	foreach(Header ${Reflected})
		get_filename_component(Stem ${Header} NAME_WE)
		list(APPEND GeneratedHeaders ${Out}/${Stem}.generated.h)
	endforeach()
	add_custom_command(
		OUTPUT ${Generated} ${GeneratedHeaders}
		COMMAND HeaderTool --module ${Name} --include-root ${Root}/Public --out ${Out} ${Reflected}
		DEPENDS HeaderTool ${Reflected}
		COMMENT "Reading the reflected headers of ${Name}"
		VERBATIM)
	target_sources(${Name} PRIVATE ${Generated} ${GeneratedHeaders})
	target_include_directories(${Name} PUBLIC ${Out})
	set_source_files_properties(${Generated} PROPERTIES SKIP_PRECOMPILE_HEADERS OFF)
endfunction()
