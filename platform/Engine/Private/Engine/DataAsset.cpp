#include "Engine/DataAsset.h"

void UDataAsset::PostInitProperties()
{
	Super::PostInitProperties();
	NativeClass = GetClass();
}
