#pragma once

#include "Engine/Blueprint.h"

/** Whether a class is Base or derives from it, where a skeleton class counts as the class that it stands in for. */
bool DerivesFrom(const UClass* Class, const UClass* Base);
/** The same for an interface that the class has. */
bool HasInterface(const UClass* Class, const UClass* Interface);
/** Whether the class is the Blueprint's own or one that it derives from. */
bool IsClassOf(const UBlueprint& Blueprint, const UClass* Class);
