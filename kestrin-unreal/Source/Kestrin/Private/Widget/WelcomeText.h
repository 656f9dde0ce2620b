#pragma once

#include "CoreMinimal.h"

/** What a new chat begins with: a message of the assistant's, with its header. */
const FString& GetWelcomeText();
