#include "OilStore.h"

#include "Lantern.h"

float UOilStore::Serve(ULantern* Lantern)
{
	if (Lantern == nullptr || Stock <= 0.0f)
	{
		return 0.0f;
	}
	const float Offered = FMath::Min(Stock, Lantern->Capacity);
	const float Given = Offered - Lantern->Refill(Offered);
	Stock -= Given;
	if (Given > 0.0f)
	{
		PathsServed.Add(Lantern->Path);
	}
	return Given;
}

float UOilStore::HoursFor(int32 Lanterns, float PerHour) const
{
	const float Use = static_cast<float>(Lanterns) * PerHour;
	return Use > 0.0f ? Stock / Use : 0.0f;
}
