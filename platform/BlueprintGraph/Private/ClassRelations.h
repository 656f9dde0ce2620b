#pragma once

#include "Engine/Blueprint.h"
#include "K2Node.h"

/** Whether a class is Base or derives from it, where a skeleton class counts as the class that it stands in for. */
bool DerivesFrom(const UClass* Class, const UClass* Base);
/** The same for an interface that the class has. */
bool HasInterface(const UClass* Class, const UClass* Interface);
/** Whether the class is the Blueprint's own or one that it derives from. */
bool IsClassOf(const UBlueprint& Blueprint, const UClass* Class);
/** What the node's reference means. The node's own class, which may have to be made for it, is asked for its own members alone. */
UFunction* ResolveFunction(const FMemberReference& Reference, const UK2Node& Node);
