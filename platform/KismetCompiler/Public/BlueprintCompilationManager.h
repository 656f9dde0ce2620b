#pragma once

// KismetCompiler: what makes classes of Blueprints. A compile gives the generated class its variables, components, timelines and functions
// anew, replaces the objects of it and of the classes below it, and looks through the graphs for errors.
//
// It leaves out what nothing here needs: code for the graphs. A function has its parameters and flags, and nothing runs when it is called.

#include "Engine/Blueprint.h"

class FCompilerResultsLog;

/** Game thread. */
struct KISMETCOMPILER_API FBlueprintCompilationManager
{
	/** From now on a Blueprint that is loaded is compiled when its class does not match it, or its parent, any more. */
	static void Initialize();
	static void Shutdown();
	/**
	 * Compiles the Blueprint, then those whose classes derive from its class. Each gets its Status; what is found in any of them goes to
	 * the log, and what is found in the first one to Results. A Blueprint with errors has a class all the same.
	 */
	static void CompileSynchronously(UBlueprint* Blueprint, FCompilerResultsLog& Results);
	/** Makes "<Name>_C" for a new Blueprint, which it is to have before its first compile. @param Kind UBlueprintGeneratedClass or below */
	static void MakeGeneratedClass(UBlueprint* Blueprint, UClass* Kind);
	/** Makes the skeleton class "SKEL_<Name>_C": properties and functions without values, components' templates or checks. */
	static void GenerateSkeleton(UBlueprint* Blueprint);
};
