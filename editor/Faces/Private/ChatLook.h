#pragma once

#include "CoreMinimal.h"

/** The name of a chat line's look, told by its font: "user", "assistant" or "progress". */
const TCHAR* GetChatLook(const FName& FontName);
