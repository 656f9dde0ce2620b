#pragma once

#include "Delegates/Delegate.h"

class UPackage;

/**
 * What compiles Blueprints lies above and listens here: a class in a file may be older than the Blueprint beside it, or than its parent.
 * Fired when a call has loaded packages, once their objects are complete and before the caller has them; not for loads with
 * LOAD_DisableCompileOnLoad. The packages are clean afterwards. Game thread.
 */
COREUOBJECT_API TMulticastDelegate<const TArray<UPackage*>&>& GetCompileOnLoadEvent();
