#pragma once

#include "Engine/Blueprint.h"

class FCompilerResultsLog;
class UBlueprintGeneratedClass;
class UK2Node_Event;

/** The engine's; there is one way to compile here. */
enum class EBlueprintCompileOptions : uint32
{
	None = 0,
};

/** Making and compiling Blueprints. Game thread. */
class UNREALED_API FKismetEditorUtilities
{
public:
	/**
	 * Makes a Blueprint with what every one has from the start: its class, for actors components with a scene root and a construction
	 * script, and an event graph with the events that most have, disabled. It is dirty afterwards.
	 * @param ParentClass one of which CanCreateBlueprintOfClass
	 * @param NewBPName must be free in Outer, and "<NewBPName>_C" in its package
	 */
	static UBlueprint* CreateBlueprint(
		UClass* ParentClass, UObject* Outer, FName NewBPName, EBlueprintType BlueprintType, FName CallingContext = NAME_None);
	static UBlueprint* CreateBlueprint(UClass* ParentClass, UObject* Outer, FName NewBPName, EBlueprintType BlueprintType,
		TSubclassOf<UBlueprint> BlueprintClassType, TSubclassOf<UBlueprintGeneratedClass> BlueprintGeneratedClassType,
		FName CallingContext = NAME_None);
	/** Whether the class is Blueprintable, nearest word first, and neither deprecated nor a skeleton. */
	static bool CanCreateBlueprintOfClass(const UClass* Class);

	/**
	 * Makes the generated class anew, the same object; the objects of it and of the Blueprints below it are replaced by new ones with the
	 * same values. Errors and warnings go to the log. Status has the outcome; the package does not become dirty.
	 * @param pResults takes what is found, too
	 */
	static void CompileBlueprint(UBlueprint* BlueprintObj, EBlueprintCompileOptions CompileFlags = EBlueprintCompileOptions::None,
		FCompilerResultsLog* pResults = nullptr);
	/** Makes the skeleton class, properties and functions alone. @return whether there is one now */
	static bool GenerateBlueprintSkeleton(UBlueprint* BlueprintObj, bool bForceRegeneration = false);

	/** An event of a parent class as a disabled node, InOutNodePosY down; null when the class has no such event, or the graph has it. */
	static UK2Node_Event* AddDefaultEventNode(
		UBlueprint* InBlueprint, UEdGraph* InGraph, FName InEventName, UClass* InEventClass, int32& InOutNodePosY);
};
