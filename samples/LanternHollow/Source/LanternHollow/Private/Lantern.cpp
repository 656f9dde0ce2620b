#include "Lantern.h"

namespace
{
/** Each moth at the glass takes this share of the light. */
constexpr float ShadePerMoth = 0.12f;
/** Below this much oil the flame sinks. */
constexpr float LowOil = 15.0f;
/** A path stays open at this brightness. */
constexpr float PathBrightness = 0.35f;
}

bool ULantern::Light()
{
	bLit = OilLeft > 0.0f;
	return bLit;
}

void ULantern::Burn(float Minutes)
{
	if (!bLit)
	{
		return;
	}
	OilLeft = FMath::Max(0.0f, OilLeft - Oil.PerHour * Minutes / 60.0f);
	bLit = OilLeft > 0.0f;
}

float ULantern::Refill(float Millilitres)
{
	const float Poured = FMath::Clamp(Millilitres, 0.0f, Capacity - OilLeft);
	OilLeft += Poured;
	return Millilitres - Poured;
}

float ULantern::GetBrightness() const
{
	if (!bLit)
	{
		return 0.0f;
	}
	const float Flame = FMath::Min(1.0f, OilLeft / LowOil);
	const float Shade = ShadePerMoth * static_cast<float>(MothsAtGlass);
	return FMath::Clamp(Flame - Shade, 0.0f, 1.0f);
}

bool ULantern::KeepsPath() const
{
	return GetBrightness() >= PathBrightness;
}
