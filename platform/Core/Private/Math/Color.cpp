#include "Math/Color.h"

#include "Math/UnrealMathUtility.h"

constinit const FColor FColor::White(255, 255, 255);
constinit const FColor FColor::Black(0, 0, 0);
constinit const FColor FColor::Red(255, 0, 0);
constinit const FColor FColor::Green(0, 255, 0);
constinit const FColor FColor::Blue(0, 0, 255);
constinit const FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
constinit const FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
constinit const FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
constinit const FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);

namespace
{
float ToLinear(uint8 Channel)
{
	const double Value = Channel / 255.0;
	return static_cast<float>(Value > 0.04045 ? std::pow((Value + 0.055) / 1.055, 2.4) : Value / 12.92);
}

double ToScreen(double Value)
{
	return Value > 0.0031308 ? std::pow(Value, 1.0 / 2.4) * 1.055 - 0.055 : Value * 12.92;
}

/** What is no number counts as 0. */
uint8 ToByte(double Value)
{
	return Value > 0.0 ? static_cast<uint8>(FMath::Min(Value, 1.0) * 255.0 + 0.5) : uint8(0);
}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(ToLinear(Color.R))
	, G(ToLinear(Color.G))
	, B(ToLinear(Color.B))
	, A(static_cast<float>(Color.A) / 255.0f)
{
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	const auto Channel = [bSRGB](float Value) { return ToByte(bSRGB ? ToScreen(Value) : static_cast<double>(Value)); };
	return { Channel(R), Channel(G), Channel(B), ToByte(A) };
}
