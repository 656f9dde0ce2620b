#include "TestParts.h"

UTestWhole::UTestWhole()
{
	Part = CreateDefaultSubobject<UTestPart>("Part");
	Part->Number = 2;
	Part->Friend = this;
}

void UTestWhole::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << Links;
}

UTestDerivedWhole::UTestDerivedWhole()
{
	Part->Number = 3;
}
