#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"

class UBlueprint;

/**
 * Where a text is used: in the C++ files below the project's "Source" and "Plugins", and in its Blueprints. A place counts when it
 * contains the text, ignoring case; an empty text is nowhere. Every Blueprint of the project is loaded. Game thread.
 */
class KESTRIN_API FKestrinFindUtils
{
public:
	/**
	 * @return a JSON document, laid out in lines: {reference_string, cpp_references: [{Type, Name, Path}],
	 * blueprint_references: [{Type, Name, Blueprint, Path}]}; a Blueprint that is found by its own name has a record without Name
	 */
	static FString FindInAllFiles(const FString& Reference);

protected:
	/** Sets "cpp_references": one record for each file that can be read and has the text in it or in its full path. */
	static void FindInAllCppFiles(const FString& Reference, TSharedPtr<FJsonObject>& Result);
	/** Sets "blueprint_references". Blueprints of derived classes (of animations, of widgets) are not looked at. */
	static void FindInAllBlueprintFiles(const FString& Reference, TSharedPtr<FJsonObject>& Result);
	static void FindInBlueprint(UBlueprint* Blueprint, const FString& Reference, TArray<TSharedPtr<FJsonValue>>& Records);

private:
	/** Of a Blueprint below the project's content; of others it is a path at which there is no file. */
	static FString GetBlueprintFilePath(UBlueprint* Blueprint);
};
