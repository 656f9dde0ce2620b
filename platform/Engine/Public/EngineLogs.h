#pragma once

#include "Logging/LogMacros.h"

/** What Blueprints and their compile have to say. */
ENGINE_API DECLARE_LOG_CATEGORY_EXTERN(LogBlueprint, Log, All);
