#pragma once

#include "ClassMembers.h"

/** The functions "<Graph>__DelegateSignature" of the Blueprint's signature graphs. */
void AddDelegateSignatures(FClassMembers& Members, const UBlueprint& Blueprint);
/** Those of the function graphs, of the interfaces' and of the events, and the one that all events run in. */
void AddFunctions(FClassMembers& Members, const UBlueprint& Blueprint);
