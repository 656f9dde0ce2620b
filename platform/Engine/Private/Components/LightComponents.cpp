#include "Components/PointLightComponent.h"

void ULightComponent::SetLightColor(FLinearColor NewLightColor, bool bSRGB)
{
	LightColor = NewLightColor.ToFColor(bSRGB);
}

FLinearColor ULightComponent::GetLightColor() const
{
	return FLinearColor(LightColor);
}

UPointLightComponent::UPointLightComponent()
{
	Intensity = 5000.0f;
}
