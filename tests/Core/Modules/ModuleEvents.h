#pragma once

#include "CoreMinimal.h"

/** The test modules tell through the log what is done to them. */
inline void ReportModuleEvent(const TCHAR* Text)
{
	UE_LOG(LogTemp, Display, TEXT("%s"), Text);
}
