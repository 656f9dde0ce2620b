#include "Moth.h"

#include "Lantern.h"

void UMoth::Consider(ULantern* Lantern)
{
	if (Lantern == nullptr)
	{
		return;
	}
	const bool bInviting = Lantern->Oil.bDrawsMoths && Lantern->GetBrightness() >= Longing;
	if (Goal == Lantern)
	{
		if (!bInviting)
		{
			FlyOff();
		}
		return;
	}
	if (!bInviting)
	{
		return;
	}
	FlyOff();
	Goal = Lantern;
	Goal->MothsAtGlass += 1;
	Mood = EMothMood::Circling;
}

void UMoth::FlyOff()
{
	if (Goal == nullptr)
	{
		return;
	}
	Goal->MothsAtGlass = FMath::Max(0, Goal->MothsAtGlass - 1);
	Goal = nullptr;
	Mood = EMothMood::Curious;
}
