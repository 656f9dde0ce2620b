#include "WindowTestSettings.h"

#include "UObject/UnrealType.h"

void UWindowTestSettings::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	Edits.Add(PropertyChangedEvent.GetPropertyName());
}
