#pragma once

#include "Engine/Blueprint.h"

/** Whether the generated class, and the defaults of its variables, are what a compile would make of the Blueprint now. */
bool DoesClassMatch(UBlueprint& Blueprint);
