#pragma once

class UBlueprint;

/** Writes the Blueprint's package to its file. @return whether that succeeded */
bool SaveBlueprintPackage(UBlueprint* Blueprint);
