#include "TestKinds.h"

void UTestKinds::NoteCount(int32 InCount, const FString& What)
{
	Noted += FString::Printf(TEXT("%d %s;"), InCount, *What);
}

bool UTestKinds::Double_Implementation(uint8 Small, double& Large) const
{
	Large *= 2;
	return Small > 0;
}
